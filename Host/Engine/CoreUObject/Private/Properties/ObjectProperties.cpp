// Copyright Velmorant. All Rights Reserved.
// Properties that lead to objects, and dynamic delegates.

#include "Properties/PropertyText.h"
#include "UObject/Class.h"
#include "UObject/Package.h"
#include "UObject/UnrealType.h"

#include <cstring>

namespace ObjectProperties
{
	// Members are T* or wrap one: read and written as bytes, so that the compiler need not know which.
	UObject* LoadPointer(const void* Value)
	{
		UObject* Object = nullptr;
		std::memcpy(&Object, Value, sizeof(Object));
		return Object;
	}

	void StorePointer(void* Value, UObject* Object)
	{
		std::memcpy(Value, &Object, sizeof(Object));
	}

	void AppendMaybeQuoted(FString& ValueStr, const FString& Text, int32 PortFlags)
	{
		if (PortFlags & PPF_Delimited)
		{
			ValueStr += TEXT('"');
			ValueStr += Text;
			ValueStr += TEXT('"');
			return;
		}
		ValueStr += Text;
	}

	/** "/Script/Module.Class'/Path/A.A'" */
	FString ExportPath(const UObject* Object)
	{
		return Object->GetClass()->GetPathName() + TEXT("'") + Object->GetPathName() + TEXT("'");
	}

	UObject* FindOrLoad(UClass* Class, const FString& Text, UObject* Owner)
	{
		const FString Path = PropertyText::StripClass(Text);
		if (UObject* Inner = Owner && !Path.StartsWith(TEXT("/")) ? StaticFindObject(Class, Owner, *Path) : nullptr)
		{
			return Inner;
		}
		if (!Path.StartsWith(TEXT("/")))
		{
			return StaticFindFirstObject(Class, *Path);
		}
		return StaticLoadObject(Class, nullptr, *Path);
	}
}

//~ Base

void FObjectPropertyBase::ExportText_Internal(FString& ValueStr, const void* Value, const void*, UObject*, int32 PortFlags, UObject*) const
{
	if (const FSoftObjectProperty* Soft = CastField<FSoftObjectProperty>(this))
	{
		const FString Path = Soft->GetPropertyValue(Value).ToString();
		ObjectProperties::AppendMaybeQuoted(ValueStr, Path.IsEmpty() && !(PortFlags & PPF_Delimited) ? FString(TEXT("None")) : Path, PortFlags);
		return;
	}
	const UObject* Object = GetObjectPropertyValue(Value);
	if (!Object)
	{
		ValueStr += TEXT("None");
		return;
	}
	ObjectProperties::AppendMaybeQuoted(ValueStr, ObjectProperties::ExportPath(Object), PortFlags);
}

const TCHAR* FObjectPropertyBase::ImportText_Internal(const TCHAR* Buffer, void* Value, UObject* OwnerObject, int32 PortFlags, FOutputDevice*) const
{
	FString Text;
	const TCHAR* Rest = PropertyText::ReadText(PropertyText::SkipBlanks(Buffer), PortFlags, Text);
	if (!Rest)
	{
		return nullptr;
	}
	Text = Text.TrimStartAndEnd();
	if (const FSoftObjectProperty* Soft = CastField<FSoftObjectProperty>(this))
	{
		Soft->SetPropertyValue(Value, FSoftObjectPtr(FSoftObjectPath(PropertyText::StripClass(Text))));
		return Rest;
	}
	UObject* Object = nullptr;
	if (!Text.IsEmpty() && Text != TEXT("None"))
	{
		Object = ObjectProperties::FindOrLoad(PropertyClass, Text, OwnerObject);
		const FClassProperty* ClassProperty = CastField<FClassProperty>(this);
		const bool bFits = Object && (!ClassProperty || static_cast<UClass*>(Object)->IsChildOf(ClassProperty->MetaClass));
		if (!bFits)
		{
			return nullptr;
		}
	}
	SetObjectPropertyValue(Value, Object);
	return Rest;
}

//~ Objects and classes

UObject* FObjectProperty::GetObjectPropertyValue(const void* PropertyValueAddress) const
{
	return ObjectProperties::LoadPointer(PropertyValueAddress);
}

void FObjectProperty::SetObjectPropertyValue(void* PropertyValueAddress, UObject* Value) const
{
	ObjectProperties::StorePointer(PropertyValueAddress, Value);
}

FString FObjectProperty::GetCPPType() const
{
	return FString::Printf(TEXT("TObjectPtr<%s%s>"), PropertyClass->GetPrefixCPP(), *PropertyClass->GetName());
}

void FObjectProperty::InitializeValue(void* Dest) const
{
	ObjectProperties::StorePointer(Dest, nullptr);
}

void FObjectProperty::DestroyValue(void*) const
{
}

void FObjectProperty::CopyCompleteValue(void* Dest, const void* Src) const
{
	ObjectProperties::StorePointer(Dest, ObjectProperties::LoadPointer(Src));
}

bool FObjectProperty::Identical(const void* A, const void* B, uint32) const
{
	return ObjectProperties::LoadPointer(A) == (B ? ObjectProperties::LoadPointer(B) : nullptr);
}

void FObjectProperty::ExportText_Internal(FString& ValueStr, const void* Value, const void* DefaultValue, UObject* Parent, int32 PortFlags, UObject* ExportRootScope) const
{
	FObjectPropertyBase::ExportText_Internal(ValueStr, Value, DefaultValue, Parent, PortFlags, ExportRootScope);
}

const TCHAR* FObjectProperty::ImportText_Internal(const TCHAR* Buffer, void* Value, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText) const
{
	return FObjectPropertyBase::ImportText_Internal(Buffer, Value, OwnerObject, PortFlags, ErrorText);
}

void FObjectProperty::CollectReferences(void* Value, FReferenceCollector& Collector) const
{
	UObject* const Before = ObjectProperties::LoadPointer(Value);
	UObject* Object = Before;
	Collector.AddReferencedObject(Object);
	if (Object != Before)
	{
		ObjectProperties::StorePointer(Value, Object);
	}
}

FString FClassProperty::GetCPPType() const
{
	return FString::Printf(TEXT("TSubclassOf<%s%s>"), MetaClass->GetPrefixCPP(), *MetaClass->GetName());
}

//~ Weak pointers

UObject* FWeakObjectProperty::GetObjectPropertyValue(const void* PropertyValueAddress) const
{
	return static_cast<const FWeakObjectPtr*>(PropertyValueAddress)->Get();
}

void FWeakObjectProperty::SetObjectPropertyValue(void* PropertyValueAddress, UObject* Value) const
{
	*static_cast<FWeakObjectPtr*>(PropertyValueAddress) = FWeakObjectPtr(Value);
}

FString FWeakObjectProperty::GetCPPType() const
{
	return FString::Printf(TEXT("TWeakObjectPtr<%s%s>"), PropertyClass->GetPrefixCPP(), *PropertyClass->GetName());
}

void FWeakObjectProperty::InitializeValue(void* Dest) const
{
	::new (Dest) FWeakObjectPtr();
}

void FWeakObjectProperty::DestroyValue(void*) const
{
}

void FWeakObjectProperty::CopyCompleteValue(void* Dest, const void* Src) const
{
	*static_cast<FWeakObjectPtr*>(Dest) = *static_cast<const FWeakObjectPtr*>(Src);
}

bool FWeakObjectProperty::Identical(const void* A, const void* B, uint32) const
{
	return *static_cast<const FWeakObjectPtr*>(A) == (B ? *static_cast<const FWeakObjectPtr*>(B) : FWeakObjectPtr());
}

void FWeakObjectProperty::ExportText_Internal(FString& ValueStr, const void* Value, const void* DefaultValue, UObject* Parent, int32 PortFlags, UObject* ExportRootScope) const
{
	FObjectPropertyBase::ExportText_Internal(ValueStr, Value, DefaultValue, Parent, PortFlags, ExportRootScope);
}

const TCHAR* FWeakObjectProperty::ImportText_Internal(const TCHAR* Buffer, void* Value, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText) const
{
	return FObjectPropertyBase::ImportText_Internal(Buffer, Value, OwnerObject, PortFlags, ErrorText);
}

//~ Soft pointers

UObject* FSoftObjectProperty::GetObjectPropertyValue(const void* PropertyValueAddress) const
{
	return GetPropertyValue(PropertyValueAddress).Get();
}

void FSoftObjectProperty::SetObjectPropertyValue(void* PropertyValueAddress, UObject* Value) const
{
	SetPropertyValue(PropertyValueAddress, FSoftObjectPtr(Value));
}

FString FSoftObjectProperty::GetCPPType() const
{
	return FString::Printf(TEXT("TSoftObjectPtr<%s%s>"), PropertyClass->GetPrefixCPP(), *PropertyClass->GetName());
}

void FSoftObjectProperty::InitializeValue(void* Dest) const
{
	::new (Dest) FSoftObjectPtr();
}

void FSoftObjectProperty::DestroyValue(void* Dest) const
{
	static_cast<FSoftObjectPtr*>(Dest)->~FSoftObjectPtr();
}

void FSoftObjectProperty::CopyCompleteValue(void* Dest, const void* Src) const
{
	SetPropertyValue(Dest, GetPropertyValue(Src));
}

bool FSoftObjectProperty::Identical(const void* A, const void* B, uint32) const
{
	return B ? GetPropertyValue(A) == GetPropertyValue(B) : GetPropertyValue(A).IsNull();
}

void FSoftObjectProperty::ExportText_Internal(FString& ValueStr, const void* Value, const void* DefaultValue, UObject* Parent, int32 PortFlags, UObject* ExportRootScope) const
{
	FObjectPropertyBase::ExportText_Internal(ValueStr, Value, DefaultValue, Parent, PortFlags, ExportRootScope);
}

const TCHAR* FSoftObjectProperty::ImportText_Internal(const TCHAR* Buffer, void* Value, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText) const
{
	return FObjectPropertyBase::ImportText_Internal(Buffer, Value, OwnerObject, PortFlags, ErrorText);
}

FString FSoftClassProperty::GetCPPType() const
{
	return FString::Printf(TEXT("TSoftClassPtr<%s%s>"), MetaClass->GetPrefixCPP(), *MetaClass->GetName());
}

//~ Dynamic delegates

void FDelegateProperty::ExportText_Internal(FString& ValueStr, const void* Value, const void*, UObject*, int32, UObject*) const
{
	const FScriptDelegate& Delegate = GetPropertyValue(Value);
	const UObject* Object = Delegate.GetUObject();
	ValueStr += Object ? Object->GetPathName() + TEXT(".") + Delegate.GetFunctionName().ToString() : FString(TEXT("(null).None"));
}

const TCHAR* FDelegateProperty::ImportText_Internal(const TCHAR* Buffer, void* Value, UObject*, int32 PortFlags, FOutputDevice*) const
{
	FString Text;
	const TCHAR* Rest = PropertyText::ReadText(Buffer, PortFlags, Text);
	int32 Dot = INDEX_NONE;
	if (!Rest || !Text.FindLastChar(TEXT('.'), Dot) || Text.Len() - Dot > NAME_SIZE)
	{
		return nullptr;
	}
	FScriptDelegate Delegate;
	if (UObject* Object = StaticFindObject(nullptr, nullptr, *Text.Left(Dot)))
	{
		Delegate.BindUFunction(Object, FName(*Text.RightChop(Dot + 1)));
	}
	SetPropertyValue(Value, Delegate);
	return Rest;
}

void FMulticastDelegateProperty::AddDelegate(FScriptDelegate ScriptDelegate, UObject* Parent) const
{
	ContainerPtrToValuePtr<FMulticastScriptDelegate>(Parent)->AddUnique(ScriptDelegate);
}

void FMulticastDelegateProperty::RemoveDelegate(const FScriptDelegate& ScriptDelegate, UObject* Parent) const
{
	ContainerPtrToValuePtr<FMulticastScriptDelegate>(Parent)->Remove(ScriptDelegate);
}

void FMulticastDelegateProperty::ExportText_Internal(FString& ValueStr, const void*, const void*, UObject*, int32, UObject*) const
{
	ValueStr += TEXT("()");
}

const TCHAR* FMulticastDelegateProperty::ImportText_Internal(const TCHAR* Buffer, void*, UObject*, int32, FOutputDevice*) const
{
	return FStringView(Buffer).StartsWith(TEXT("()")) ? Buffer + 2 : nullptr;
}
