// Copyright Velmorant. All Rights Reserved.

#include "PropertyReader.h"

#include "HostPackages.h"
#include "UObject/Class.h"
#include "UObject/Package.h"
#include "UObject/SoftObjectPtr.h"
#include "UObject/UnrealType.h"

namespace PropertyReader
{
	/** Whether a part of "/Package.Object:Inner" is longer than a name can be. */
	bool HasLongName(const FString& Path)
	{
		int32 Length = 0;
		for (const TCHAR Character : Path)
		{
			Length = Character == TEXT('.') || Character == TEXT(':') ? 0 : Length + 1;
			if (Length >= NAME_SIZE)
			{
				return true;
			}
		}
		return false;
	}
}

bool FPropertyReader::ReadReference(const FProperty* Property, void* Value, const FJson& Json, const FJsonPlace& Place)
{
	FString Path;
	if (!Json.is_null() && !ReadString(Json, Place, Path))
	{
		return false;
	}
	if (PropertyReader::HasLongName(Path))
	{
		return RefuseType(Place, Json, TEXT("a path of names with at most 1023 characters each"));
	}
	if (Value == nullptr)
	{
		return true;
	}
	if (const FSoftObjectProperty* Soft = CastField<FSoftObjectProperty>(Property))
	{
		Soft->SetPropertyValue(Value, FSoftObjectPtr(Path.IsEmpty() ? FSoftObjectPath() : FSoftObjectPath(Path)));
		return true;
	}
	const FObjectPropertyBase* Reference = CastFieldChecked<FObjectPropertyBase>(Property);
	UObject* Object = Resolve(Path, Reference->PropertyClass, Place);
	const FClassProperty* ClassReference = CastField<FClassProperty>(Property);
	if (ClassReference != nullptr && Object != nullptr && !static_cast<UClass*>(Object)->IsChildOf(ClassReference->MetaClass))
	{
		NoteUnresolved(Place, FString::Printf(TEXT("\"%s\" is not derived from %s"), *Path, *ClassReference->MetaClass->GetName()));
		Object = nullptr;
	}
	Reference->SetObjectPropertyValue(Value, Object);
	return true;
}

UObject* FPropertyReader::Resolve(const FString& Path, const UClass* WantedClass, const FJsonPlace& Place)
{
	if (Path.IsEmpty() || Path == TEXT("None"))
	{
		return nullptr;
	}
	UObject* Object = StaticFindObject(nullptr, nullptr, *Path);
	if (!IsValid(Object))
	{
		FString PackageName = Path;
		Path.Split(TEXT("."), &PackageName, nullptr, ESearchCase::CaseSensitive);
		Object = HostPackages::Load(PackageName) != nullptr ? StaticFindObject(nullptr, nullptr, *Path) : nullptr;
	}
	if (IsValid(Object) && (WantedClass == nullptr || Object->IsA(WantedClass)))
	{
		return Object;
	}
	NoteUnresolved(Place, IsValid(Object) ? FString::Printf(TEXT("\"%s\" is no %s"), *Path, *WantedClass->GetName()) : FString::Printf(TEXT("\"%s\" does not exist or could not be loaded"), *Path));
	return nullptr;
}

void FPropertyReader::NoteUnresolved(const FJsonPlace& Place, const FString& Message)
{
	FJsonProblem Missing;
	Missing.Pointer = Place.ToString();
	Missing.Message = Message;
	Missing.Remedy = TEXT("Bring the missing asset back, or set the reference to null. Until then this file is not written, lest the reference be lost.");
	Unresolved.Add(Missing);
}
