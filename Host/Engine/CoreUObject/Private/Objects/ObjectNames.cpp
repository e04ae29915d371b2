// Copyright Velmorant. All Rights Reserved.
// Names, paths and outers.

#include "Misc/AssertionMacros.h"
#include "Objects/ObjectNameTable.h"
#include "UObject/Class.h"
#include "UObject/Object.h"
#include "UObject/Package.h"

FString UObject::GetPathName(const UObject* StopOuter) const
{
	FString Result;
	GetPathName(StopOuter, Result);
	return Result;
}

void UObject::GetPathName(const UObject* StopOuter, FString& ResultString) const
{
	ResultString.Reset();
	if (this == StopOuter)
	{
		return;
	}
	const UObject* Chain[64];
	int32 Depth = 0;
	for (const UObject* Object = this; Object && Object != StopOuter; Object = Object->OuterPrivate)
	{
		checkf(Depth < 64, TEXT("%s lies too deep."), *GetName());
		Chain[Depth++] = Object;
	}
	for (int32 Index = Depth - 1; Index >= 0; --Index)
	{
		const UObject* Object = Chain[Index];
		if (Index < Depth - 1)
		{
			// A colon stands between what is a package's own object and what lies in it.
			const UObject* Outer = Object->OuterPrivate;
			const bool bInsideAsset = Object->GetClass() != UPackage::StaticClass() && Outer->OuterPrivate && Outer->OuterPrivate->GetClass() == UPackage::StaticClass();
			ResultString += bInsideAsset ? TEXT(":") : TEXT(".");
		}
		Object->NamePrivate.AppendString(ResultString);
	}
}

FString UObject::GetFullName(const UObject* StopOuter) const
{
	return GetClass()->GetName() + TEXT(" ") + GetPathName(StopOuter);
}

UPackage* UObject::GetOutermost() const
{
	const UObject* Top = this;
	while (Top->OuterPrivate)
	{
		Top = Top->OuterPrivate;
	}
	return static_cast<UPackage*>(const_cast<UObject*>(Top));
}

UObject* UObject::GetTypedOuter(const UClass* Target) const
{
	for (UObject* Outer = OuterPrivate; Outer; Outer = Outer->OuterPrivate)
	{
		if (Outer->IsA(Target))
		{
			return Outer;
		}
	}
	return nullptr;
}

bool UObject::IsIn(const UObject* SomeOuter) const
{
	for (const UObject* Outer = OuterPrivate; Outer; Outer = Outer->OuterPrivate)
	{
		if (Outer == SomeOuter)
		{
			return true;
		}
	}
	return SomeOuter == nullptr;
}

bool UObject::Rename(const TCHAR* NewName, UObject* NewOuter, ERenameFlags Flags)
{
	UObject* TargetOuter = NewOuter ? NewOuter : OuterPrivate;
	FObjectNameTable& Names = FObjectNameTable::Get();
	FName TargetName = NamePrivate;
	if (NewName)
	{
		TargetName = FName(NewName);
	}
	else if (UObject* Taken = Names.Find(nullptr, TargetOuter, NamePrivate); Taken && Taken != this)
	{
		TargetName = Names.MakeUniqueName(TargetOuter, GetClass(), NAME_None);
	}
	UObject* Existing = Names.Find(nullptr, TargetOuter, TargetName);
	if (Existing && Existing != this)
	{
		checkf((Flags & REN_Test) != 0, TEXT("Renaming %s: there is %s already."), *GetFullName(), *Existing->GetFullName());
		return false;
	}
	if (Flags & REN_Test)
	{
		return true;
	}
	const bool bDirty = !(Flags & REN_DoNotDirty);
	if (bDirty && !(Flags & REN_NonTransactional))
	{
		Modify();
	}
	else if (bDirty)
	{
		MarkPackageDirty();
	}
	UObject* OldOuter = OuterPrivate;
	const FName OldName = NamePrivate;
	Names.ChangeName(this, TargetName, TargetOuter);
	if (bDirty)
	{
		MarkPackageDirty();
	}
	PostRename(OldOuter, OldName);
	return true;
}

FName MakeUniqueObjectName(UObject* Outer, const UClass* Class, FName BaseName)
{
	return FObjectNameTable::Get().MakeUniqueName(Outer, Class, BaseName);
}
