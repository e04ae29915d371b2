// Copyright Velmorant. All Rights Reserved.

#include "UObject/Object.h"

#include "CoreGlobals.h"
#include "HostState.h"
#include "Misc/AssertionMacros.h"
#include "Misc/ITransaction.h"
#include "Objects/ObjectNameTable.h"
#include "UObject/Interface.h"
#include "UObject/Package.h"
#include "UObject/Stack.h"
#include "UObject/UnrealType.h"

FCoreUObjectDelegates::FOnObjectPropertyChanged FCoreUObjectDelegates::OnObjectPropertyChanged;
FCoreUObjectDelegates::FOnObjectModified FCoreUObjectDelegates::OnObjectModified;

FSimpleMulticastDelegate& FCoreUObjectDelegates::GetPreGarbageCollectDelegate()
{
	static FSimpleMulticastDelegate Delegate;
	return Delegate;
}

FSimpleMulticastDelegate& FCoreUObjectDelegates::GetPostGarbageCollect()
{
	static FSimpleMulticastDelegate Delegate;
	return Delegate;
}

static FHostStateReset GResetObjectDelegates([] {
	FCoreUObjectDelegates::OnObjectPropertyChanged.Clear();
	FCoreUObjectDelegates::OnObjectModified.Clear();
	FCoreUObjectDelegates::GetPreGarbageCollectDelegate().Clear();
	FCoreUObjectDelegates::GetPostGarbageCollect().Clear();
});

UObject::~UObject() = default;

void UObject::AddToRoot()
{
	FObjectTable::Get().GetItem(this).bRooted = true;
}

void UObject::RemoveFromRoot()
{
	FObjectTable::Get().GetItem(this).bRooted = false;
}

bool UObject::IsRooted() const
{
	return FObjectTable::Get().GetItem(this).bRooted;
}

void UObject::MarkAsGarbage()
{
	checkf(!IsRooted(), TEXT("%s is in the root set and cannot be garbage."), *GetFullName());
	FObjectTable::Get().GetItem(this).bGarbage = true;
}

void UObject::ClearGarbage()
{
	FObjectTable::Get().GetItem(this).bGarbage = false;
}

bool UObject::IsUnreachable() const
{
	return FObjectTable::Get().GetItem(this).bUnreachable;
}

bool IsValid(const UObject* Test)
{
	if (!Test)
	{
		return false;
	}
	const FObjectItem& Item = FObjectTable::Get().GetItem(Test);
	return !Item.bGarbage && !Item.bUnreachable;
}

bool UObject::IsAsset() const
{
	return HasAnyFlags(RF_Public) && !HasAnyFlags(RF_Transient | RF_ClassDefaultObject) && IsValid(this) && OuterPrivate && OuterPrivate->GetClass() == UPackage::StaticClass() && OuterPrivate != ::GetTransientPackage();
}

UObject* UObject::GetArchetype() const
{
	if (HasAnyFlags(RF_ClassDefaultObject))
	{
		const UClass* SuperClass = GetClass()->GetSuperClass();
		return SuperClass ? SuperClass->GetDefaultObject() : nullptr;
	}
	if (HasAnyFlags(RF_DefaultSubObject))
	{
		UObject* OuterArchetype = OuterPrivate->GetArchetype();
		UObject* Found = OuterArchetype ? FObjectNameTable::Get().Find(nullptr, OuterArchetype, NamePrivate) : nullptr;
		if (Found && GetClass()->IsChildOf(Found->GetClass()))
		{
			return Found;
		}
	}
	return GetClass()->GetDefaultObject();
}

void UObject::PostInitProperties()
{
}

void UObject::BeginDestroy()
{
	SetFlags(RF_BeginDestroyed);
}

bool UObject::ConditionalBeginDestroy()
{
	if (HasAnyFlags(RF_BeginDestroyed))
	{
		return false;
	}
	BeginDestroy();
	checkf(HasAnyFlags(RF_BeginDestroyed), TEXT("%s: BeginDestroy() must call Super's."), *GetFullName());
	return true;
}

bool UObject::MarkPackageDirty() const
{
	UPackage* Package = GetOutermost();
	if (HasAnyFlags(RF_Transient) || Package == ::GetTransientPackage() || Package->HasAnyFlags(RF_Transient) || Package->HasAnyPackageFlags(PKG_CompiledIn | PKG_PlayInEditor))
	{
		return false;
	}
	const bool bWasDirty = Package->IsDirty();
	Package->SetDirtyFlag(true);
	UPackage::PackageMarkedDirtyEvent.Broadcast(Package, bWasDirty);
	return true;
}

bool UObject::Modify(bool bAlwaysMarkDirty)
{
	const bool bRecorded = GUndo != nullptr && HasAnyFlags(RF_Transactional) && !GetOutermost()->HasAnyPackageFlags(PKG_PlayInEditor);
	if (bRecorded)
	{
		GUndo->SaveObject(this);
	}
	if (bAlwaysMarkDirty || bRecorded)
	{
		MarkPackageDirty();
	}
	FCoreUObjectDelegates::OnObjectModified.Broadcast(this);
	return bRecorded;
}

void UObject::PostEditChange()
{
	FPropertyChangedEvent Event(nullptr);
	PostEditChangeProperty(Event);
}

void UObject::PostEditChangeProperty(FPropertyChangedEvent& PropertyChangedEvent)
{
	FCoreUObjectDelegates::OnObjectPropertyChanged.Broadcast(this, PropertyChangedEvent);
}

void UObject::PostEditChangeChainProperty(FPropertyChangedChainEvent& PropertyChangedEvent)
{
	FPropertyChangedEvent Event(PropertyChangedEvent);
	PostEditChangeProperty(Event);
}

UWorld* UObject::GetWorld() const
{
	return OuterPrivate ? OuterPrivate->GetWorld() : nullptr;
}

UFunction* UObject::FindFunction(FName InName) const
{
	return GetClass()->FindFunctionByName(InName);
}

UFunction* UObject::FindFunctionChecked(FName InName) const
{
	UFunction* Function = FindFunction(InName);
	checkf(Function, TEXT("Failed to find function %s in %s"), *InName.ToString(), *GetFullName());
	return Function;
}

void UObject::ProcessEvent(UFunction* Function, void* Parms)
{
	checkf(Function, TEXT("%s is to run no function."), *GetFullName());
	if (IsUnreachable())
	{
		return;
	}
	FFrame Stack{Function, this, static_cast<uint8*>(Parms)};
	const FProperty* Return = Function->GetReturnProperty();
	Function->Invoke(this, Stack, Return ? Return->ContainerPtrToValuePtr(Parms) : nullptr);
}

bool UObject::ImplementsInterfaceClass(const UClass* InterfaceClass) const
{
	return GetClass()->ImplementsInterface(InterfaceClass);
}

void* UObject::GetNativeInterfaceAddress(UClass* InterfaceClass)
{
	for (const UClass* Class = GetClass(); Class; Class = Class->GetSuperClass())
	{
		for (const FImplementedInterface& Interface : Class->Interfaces)
		{
			if (Interface.ToInterface && Interface.Class->IsChildOf(InterfaceClass))
			{
				return Interface.ToInterface(this);
			}
		}
	}
	return nullptr;
}

void* UObject::GetInterfaceAddress(UClass* InterfaceClass)
{
	if (void* Native = GetNativeInterfaceAddress(InterfaceClass))
	{
		return Native;
	}
	return InterfaceClass && InterfaceClass->HasAnyClassFlags(CLASS_Interface) && ImplementsInterfaceClass(InterfaceClass) ? this : nullptr;
}

void UObject::AddReferencedObjects(UObject*, FReferenceCollector&)
{
	// Class and outer are known to the collector, properties are reflected.
}

UInterface::UInterface(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
}
