// Copyright Velmorant. All Rights Reserved.

#include "HostObjects.h"

#include "Misc/AssertionMacros.h"
#include "Objects/EditorPackages.h"
#include "Objects/GarbageCollector.h"
#include "Objects/ObjectTable.h"
#include "Reflection/TypeBuilder.h"
#include "UObject/Package.h"
#include "UObject/UnrealType.h"

using UE::Reflection::FTypeBuilder;

void HostObjects::Boot()
{
	FTypeBuilder::BuildAll();
	::GetTransientPackage();
}

void HostObjects::TearDown()
{
	FGarbageCollector::Get().TearDown();
}

int32 HostObjects::CollectGarbage()
{
	return FGarbageCollector::Get().Collect(RF_Standalone);
}

HostObjects::FCounts HostObjects::GetCounts()
{
	FCounts Counts;
	const FObjectTable& Table = FObjectTable::Get();
	for (int32 Index = 0; Index < Table.NumSlots(); ++Index)
	{
		const FObjectItem& Item = Table.GetItem(Index);
		if (!Item.Object)
		{
			continue;
		}
		++(Item.bNative ? Counts.Native : Counts.Editor);
		Counts.Defaults += Item.Object->HasAnyFlags(RF_ClassDefaultObject) ? 1 : 0;
		Counts.Rooted += Item.bRooted || Item.StrongCount > 0 ? 1 : 0;
	}
	return Counts;
}

void HostObjects::SetPackageLoader(TFunction<UPackage*(const FString& LongPackageName)> Loader)
{
	FEditorPackages::Get().Loader = MoveTemp(Loader);
}

UClass* HostObjects::DeriveClass(UClass* Parent, FName Name, UObject* Outer, UClass* ClassOfClass)
{
	checkf(ClassOfClass->IsChildOf(UClass::StaticClass()), TEXT("%s is not a class of classes."), *ClassOfClass->GetName());
	UClass* Class = NewObject<UClass>(Outer, ClassOfClass, Name, RF_Public);
	SetParentClass(Class, Parent);
	return Class;
}

void HostObjects::SetParentClass(UClass* Class, UClass* Parent)
{
	FTypeBuilder::Derive(Class, Parent);
}

UFunction* HostObjects::AddScriptFunction(UClass* Class, FName Name, UFunction::FScriptBody Body)
{
	checkf(!Class->HasAnyClassFlags(CLASS_Native), TEXT("%s is native: its functions are written in C++."), *Class->GetName());
	return FTypeBuilder::AddScriptFunction(Class, Name, MoveTemp(Body));
}

UFunction* HostObjects::AddScriptListener(UClass* Class, FName Name, const FMulticastDelegateProperty& Delegate, UFunction::FScriptBody Body)
{
	checkf(!Class->HasAnyClassFlags(CLASS_Native), TEXT("%s is native: its functions are written in C++."), *Class->GetName());
	return Delegate.Signature ? FTypeBuilder::AddScriptListener(Class, Name, *Delegate.Signature, MoveTemp(Body)) : nullptr;
}

void HostObjects::AddScriptInterface(UClass* Class, UClass* Interface)
{
	checkf(Interface->HasAnyClassFlags(CLASS_Interface), TEXT("%s is not an interface."), *Interface->GetName());
	Class->Interfaces.Add(FImplementedInterface{Interface, nullptr, true});
}
