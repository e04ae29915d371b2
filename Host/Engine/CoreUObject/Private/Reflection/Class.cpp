// Copyright Velmorant. All Rights Reserved.

#include "UObject/Class.h"

#include "HostConfig.h"
#include "Reflection/TypeBuilder.h"
#include "UObject/Stack.h"
#include "UObject/UnrealType.h"

UClass::UClass(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
}

FName UClass::GetDefaultObjectName() const
{
	return FName(*(TEXT("Default__") + GetName()));
}

bool UClass::ImplementsInterface(const UClass* SomeInterface) const
{
	if (!SomeInterface || !SomeInterface->HasAnyClassFlags(CLASS_Interface) || SomeInterface == UObject::StaticClass())
	{
		return false;
	}
	for (const UClass* Class = this; Class; Class = Class->GetSuperClass())
	{
		for (const FImplementedInterface& Interface : Class->Interfaces)
		{
			if (Interface.Class->IsChildOf(SomeInterface))
			{
				return true;
			}
		}
	}
	return false;
}

void UClass::LinkFunctions() const
{
	bFunctionsLinked = true;
	OwnFunctions.Reserve(NumFunctionRecords);
	for (int32 Index = 0; Index < NumFunctionRecords; ++Index)
	{
		UFunction* Function = UE::Reflection::FTypeBuilder::MakeFunction(FunctionRecords[Index], const_cast<UClass*>(this));
		OwnFunctions.Add(Function);
		FunctionMap.Add(Function->GetFName(), Function);
	}
}

const TArray<UFunction*>& UClass::GetOwnFunctions() const
{
	if (!bFunctionsLinked)
	{
		LinkFunctions();
	}
	return OwnFunctions;
}

UFunction* UClass::FindOwnFunction(FName InName) const
{
	if (!bFunctionsLinked)
	{
		LinkFunctions();
	}
	return FunctionMap.FindRef(InName);
}

UFunction* UClass::FindFunctionByName(FName InName, EIncludeSuperFlag::Type IncludeSuper) const
{
	if (UFunction* Own = FindOwnFunction(InName))
	{
		return Own;
	}
	if (IncludeSuper == EIncludeSuperFlag::ExcludeSuper)
	{
		return nullptr;
	}
	for (const FImplementedInterface& Interface : Interfaces)
	{
		if (UFunction* Function = Interface.Class->FindFunctionByName(InName))
		{
			return Function;
		}
	}
	const UClass* SuperClass = GetSuperClass();
	return SuperClass ? SuperClass->FindFunctionByName(InName) : nullptr;
}

FString UClass::GetConfigName() const
{
	return ClassConfigName.IsNone() ? FString() : HostConfig::GetBranchFile(ClassConfigName.ToString());
}

const TCHAR* UClass::GetPrefixCPP() const
{
	return *CppPrefix == 'A' ? TEXT("A") : TEXT("U");
}

void UClass::AddReferencedObjects(UObject* InThis, FReferenceCollector& Collector)
{
	UClass* This = static_cast<UClass*>(InThis);
	Collector.AddReferencedObject(This->ClassDefaultObject);
	Collector.AddReferencedObject(This->ClassGeneratedBy);
	for (UFunction*& Function : This->OwnFunctions)
	{
		Collector.AddReferencedObject(Function);
	}
	for (FImplementedInterface& Interface : This->Interfaces)
	{
		Collector.AddReferencedObject(Interface.Class);
	}
	Super::AddReferencedObjects(InThis, Collector);
}

UFunction::UFunction(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
}

FProperty* UFunction::GetReturnProperty() const
{
	const TArray<FProperty*>& Parameters = GetOwnProperties();
	return !Parameters.IsEmpty() && Parameters.Last()->HasAnyPropertyFlags(CPF_ReturnParm) ? Parameters.Last() : nullptr;
}

void UFunction::Invoke(UObject* Obj, FFrame& Stack, void* const Result)
{
	if (Script)
	{
		const FScriptBody Body = Script; // the script may replace itself
		Body(Obj, Stack, Result);
	}
	else if (Thunk)
	{
		Thunk(Obj, Stack, Result);
	}
}
