// Copyright Velmorant. All Rights Reserved.

#include "UObject/ScriptDelegates.h"

#include "UObject/Class.h"
#include "UObject/Object.h"

void FScriptDelegate::BindUFunction(UObject* InObject, const FName& InFunctionName)
{
	Object = InObject;
	FunctionName = InFunctionName;
}

bool FScriptDelegate::IsBound() const
{
	const UObject* Target = FunctionName.IsNone() ? nullptr : Object.Get();
	return Target && Target->FindFunction(FunctionName) != nullptr;
}

void FScriptDelegate::Process(void* Parameters) const
{
	UObject* Target = Object.Get();
	checkf(Target, TEXT("A dynamic delegate is called whose object is gone."));
	Target->ProcessEvent(Target->FindFunctionChecked(FunctionName), Parameters);
}

bool FScriptDelegate::AcceptsBlock(int32 BlockSize) const
{
	const UObject* Target = Object.Get();
	const UFunction* Function = Target ? Target->FindFunction(FunctionName) : nullptr;
	if (!Function)
	{
		return false;
	}
	// Functions without parameters may answer any delegate; others must read exactly what is passed.
	const bool bFits = Function->ParmsSize == 0 || Function->ParmsSize == BlockSize;
	return ensureMsgf(bFits, TEXT("%s does not take the parameters of the delegate that it is bound to."), *Function->GetPathName());
}

bool FMulticastScriptDelegate::IsBound() const
{
	return InvocationList.ContainsByPredicate([](const FScriptDelegate& Binding) { return Binding.Object.IsValid(); });
}

bool FMulticastScriptDelegate::Contains(const FScriptDelegate& InDelegate) const
{
	return InvocationList.Contains(InDelegate);
}

void FMulticastScriptDelegate::Add(const FScriptDelegate& InDelegate)
{
	if (ensureMsgf(!Contains(InDelegate), TEXT("Function '%s' is already bound to this delegate."), *InDelegate.FunctionName.ToString()))
	{
		AddUnique(InDelegate);
	}
}

void FMulticastScriptDelegate::AddUnique(const FScriptDelegate& InDelegate)
{
	InvocationList.RemoveAll([](const FScriptDelegate& Binding) { return Binding.Object.IsStale(); });
	InvocationList.AddUnique(InDelegate);
}

void FMulticastScriptDelegate::Remove(const FScriptDelegate& InDelegate)
{
	InvocationList.Remove(InDelegate);
}

void FMulticastScriptDelegate::Remove(const UObject* InObject, FName InFunctionName)
{
	InvocationList.RemoveAll([InObject, InFunctionName](const FScriptDelegate& Binding) {
		return Binding.FunctionName == InFunctionName && Binding.IsBoundToObject(InObject);
	});
}

void FMulticastScriptDelegate::Process(void* Parameters, int32 BlockSize) const
{
	const TArray<FScriptDelegate> Bindings = InvocationList;
	for (const FScriptDelegate& Binding : Bindings)
	{
		if (Binding.IsBound() && (BlockSize == INDEX_NONE || Binding.AcceptsBlock(BlockSize)))
		{
			Binding.Process(Parameters);
		}
	}
}
