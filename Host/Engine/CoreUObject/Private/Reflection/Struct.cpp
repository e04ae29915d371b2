// Copyright Velmorant. All Rights Reserved.

#include "Reflection/TypeBuilder.h"
#include "UObject/Class.h"
#include "UObject/Package.h"
#include "UObject/UnrealType.h"

UStruct::UStruct(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
}

UStruct::~UStruct()
{
	for (FProperty* Property : OwnProperties)
	{
		delete Property;
	}
}

void UStruct::SetSuperStruct(UStruct* NewSuperStruct)
{
	SuperStruct = NewSuperStruct;
	Chain.Reset();
	if (NewSuperStruct)
	{
		Chain = NewSuperStruct->Chain;
	}
	Depth = Chain.Add(this);
}

FTopLevelAssetPath UStruct::GetStructPathName() const
{
	return FTopLevelAssetPath(GetOutermost()->GetFName(), GetFName());
}

void UStruct::LinkProperties() const
{
	bLinked = true;
	bLinking = true;
	OwnProperties.Reserve(NumPropertyRecords);
	for (int32 Index = 0; Index < NumPropertyRecords; ++Index)
	{
		OwnProperties.Add(UE::Reflection::FTypeBuilder::MakeProperty(PropertyRecords[Index], const_cast<UStruct*>(this)));
	}
	AllProperties = OwnProperties;
	if (SuperStruct)
	{
		AllProperties.Append(SuperStruct->GetAllProperties());
	}
	for (FProperty* Property : AllProperties)
	{
		(Property->ContainsObjectReference() ? ReferenceProperties : PlainProperties).Add(Property);
	}
	bLinking = false;
}

const TArray<FProperty*>& UStruct::GetOwnProperties() const
{
	if (!bLinked)
	{
		LinkProperties();
	}
	return OwnProperties;
}

const TArray<FProperty*>& UStruct::GetAllProperties() const
{
	if (!bLinked)
	{
		LinkProperties();
	}
	return AllProperties;
}

const TArray<FProperty*>& UStruct::GetReferenceProperties() const
{
	if (!bLinked)
	{
		LinkProperties();
	}
	return ReferenceProperties;
}

const TArray<FProperty*>& UStruct::GetPlainProperties() const
{
	if (!bLinked)
	{
		LinkProperties();
	}
	return PlainProperties;
}

bool UStruct::HoldsReferences() const
{
	return !GetReferenceProperties().IsEmpty() || bLinking;
}

const TArray<UFunction*>& UStruct::GetOwnFunctions() const
{
	static const TArray<UFunction*> None;
	return None;
}

FProperty* UStruct::FindPropertyByName(FName InName) const
{
	for (FProperty* Property : GetAllProperties())
	{
		if (Property->GetFName() == InName)
		{
			return Property;
		}
	}
	return nullptr;
}

void UStruct::AddReferencedObjects(UObject* InThis, FReferenceCollector& Collector)
{
	Collector.AddReferencedObject(static_cast<UStruct*>(InThis)->SuperStruct);
	Super::AddReferencedObjects(InThis, Collector);
}

UScriptStruct::UScriptStruct(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
}

FName UScriptStruct::GetStructCPPName() const
{
	return FName(CppName);
}

void UScriptStruct::InitializeStruct(void* Dest, int32 ArrayDim) const
{
	for (int32 Index = 0; Index < ArrayDim; ++Index)
	{
		Ops->Construct(static_cast<uint8*>(Dest) + Index * PropertiesSize);
	}
}

void UScriptStruct::DestroyStruct(void* Dest, int32 ArrayDim) const
{
	for (int32 Index = 0; Index < ArrayDim; ++Index)
	{
		Ops->Destroy(static_cast<uint8*>(Dest) + Index * PropertiesSize);
	}
}

void UScriptStruct::CopyScriptStruct(void* Dest, const void* Src, int32 ArrayDim) const
{
	for (int32 Index = 0; Index < ArrayDim; ++Index)
	{
		Ops->Copy(static_cast<uint8*>(Dest) + Index * PropertiesSize, static_cast<const uint8*>(Src) + Index * PropertiesSize);
	}
}

void UScriptStruct::ClearScriptStruct(void* Dest, int32 ArrayDim) const
{
	DestroyStruct(Dest, ArrayDim);
	InitializeStruct(Dest, ArrayDim);
}

bool UScriptStruct::CompareScriptStruct(const void* A, const void* B, uint32 PortFlags) const
{
	if (Ops->Identical)
	{
		return Ops->Identical(A, B);
	}
	for (const FProperty* Property : GetAllProperties())
	{
		if (!Property->Identical_InContainer(A, B, 0, PortFlags))
		{
			return false;
		}
	}
	return true;
}
