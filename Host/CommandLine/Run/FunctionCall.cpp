// Copyright Velmorant. All Rights Reserved.

#include "Run/FunctionCall.h"

#include "Run/ScriptProperties.h"
#include "UObject/UnrealType.h"

namespace FunctionCall
{
	/** Parameters that the function writes to and the caller does not give. */
	bool IsOutput(const FProperty& Property)
	{
		return Property.HasAnyPropertyFlags(CPF_ReturnParm) || (Property.HasAnyPropertyFlags(CPF_OutParm) && !Property.HasAnyPropertyFlags(CPF_ReferenceParm | CPF_ConstParm));
	}
}

FFunctionCall::FFunctionCall(UFunction& InFunction)
	: Function(InFunction)
{
	checkf(Function.GetMinAlignment() <= static_cast<int32>(alignof(uint64)), TEXT("A parameter of %s needs a stricter alignment."), *Function.GetName());
	Block.SetNumZeroed((Function.ParmsSize + static_cast<int32>(sizeof(uint64)) - 1) / static_cast<int32>(sizeof(uint64)));
	for (FProperty* Property : TFieldRange<FProperty>(&Function, EFieldIterationFlags::None))
	{
		Property->InitializeValue_InContainer(GetBlock());
	}
}

FFunctionCall::~FFunctionCall()
{
	for (FProperty* Property : TFieldRange<FProperty>(&Function, EFieldIterationFlags::None))
	{
		Property->DestroyValue_InContainer(GetBlock());
	}
}

TArray<FProperty*> FFunctionCall::GetInputs() const
{
	TArray<FProperty*> Inputs;
	for (FProperty* Property : TFieldRange<FProperty>(&Function, EFieldIterationFlags::None))
	{
		if (!FunctionCall::IsOutput(*Property))
		{
			Inputs.Add(Property);
		}
	}
	return Inputs;
}

FString FFunctionCall::DescribeParameters() const
{
	return FString::JoinBy(GetInputs(), TEXT(", "), [](const FProperty* Property) { return Property->GetName() + TEXT(": ") + Property->GetCPPType(); });
}

FString FFunctionCall::SetArguments(const TArray<FString>& Texts)
{
	const TArray<FProperty*> Inputs = GetInputs();
	if (Texts.Num() != Inputs.Num())
	{
		return Inputs.IsEmpty() ? FString(TEXT("it takes no arguments")) : FString::Printf(TEXT("its arguments are: %s"), *DescribeParameters());
	}
	for (int32 Index = 0; Index < Inputs.Num(); ++Index)
	{
		const FProperty& Input = *Inputs[Index];
		const FString Problem = ScriptProperties::FromText(Input, Texts[Index], Input.ContainerPtrToValuePtr(GetBlock()));
		if (!Problem.IsEmpty())
		{
			return Input.GetName() + TEXT(": ") + Problem;
		}
	}
	return FString();
}

void FFunctionCall::Run(UObject& Object)
{
	Object.ProcessEvent(&Function, GetBlock());
}

FString FFunctionCall::GetResult() const
{
	const FProperty* Result = Function.GetReturnProperty();
	if (Result == nullptr)
	{
		for (const FProperty* Property : TFieldRange<FProperty>(&Function, EFieldIterationFlags::None))
		{
			Result = Result == nullptr && FunctionCall::IsOutput(*Property) ? Property : Result;
		}
	}
	return Result != nullptr ? ScriptProperties::ToText(*Result, Result->ContainerPtrToValuePtr(GetBlock())) : FString();
}
