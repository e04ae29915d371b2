// Copyright Velmorant. All Rights Reserved.

#include "UObject/SoftObjectPath.h"

#include "Properties/PropertyText.h"
#include "UObject/Class.h"
#include "UObject/Package.h"
#include "UObject/SoftObjectPtr.h"

//~ FSoftObjectPath

FSoftObjectPath::FSoftObjectPath(const UObject* InObject)
{
	if (InObject)
	{
		SetPath(InObject->GetPathName());
	}
}

FSoftObjectPath& FSoftObjectPath::operator=(const FString& Path)
{
	SetPath(Path);
	return *this;
}

FSoftObjectPath& FSoftObjectPath::operator=(const TCHAR* Path)
{
	SetPath(Path);
	return *this;
}

FSoftObjectPath& FSoftObjectPath::operator=(std::nullptr_t)
{
	Reset();
	return *this;
}

void FSoftObjectPath::SetPath(FStringView Path)
{
	Reset();
	FString Text = PropertyText::StripClass(FString(Path));
	if (Text.IsEmpty() || Text == TEXT("None"))
	{
		return;
	}
	int32 Colon = INDEX_NONE;
	FString SubPath;
	if (Text.FindChar(TEXT(':'), Colon))
	{
		SubPath = Text.RightChop(Colon + 1);
		Text = Text.Left(Colon);
	}
	if (AssetPath.TrySetPath(Text))
	{
		SubPathString = SubPath;
	}
}

void FSoftObjectPath::SetPath(FAnsiStringView Path)
{
	FString Text;
	for (const ANSICHAR Character : Path)
	{
		Text += static_cast<TCHAR>(Character); // view of plain ASCII
	}
	SetPath(Text);
}

void FSoftObjectPath::SetPath(FName Path)
{
	SetPath(Path.IsNone() ? FString() : Path.ToString());
}

void FSoftObjectPath::SetPath(const TCHAR* Path)
{
	SetPath(FStringView(Path ? Path : TEXT("")));
}

void FSoftObjectPath::SetPath(const ANSICHAR* Path)
{
	SetPath(FString(Path ? Path : ""));
}

void FSoftObjectPath::SetPath(const FString& Path)
{
	SetPath(FStringView(Path));
}

FString FSoftObjectPath::ToString() const
{
	FString Result = AssetPath.ToString();
	if (!SubPathString.IsEmpty())
	{
		Result += TEXT(':');
		Result += SubPathString;
	}
	return Result;
}

void FSoftObjectPath::Reset()
{
	AssetPath.Reset();
	SubPathString.Reset();
}

UObject* FSoftObjectPath::ResolveObject() const
{
	if (IsNull())
	{
		return nullptr;
	}
	if (SubPathString.IsEmpty())
	{
		return StaticFindObject(nullptr, AssetPath);
	}
	return StaticFindObject(nullptr, nullptr, *ToString());
}

UObject* FSoftObjectPath::TryLoad(FUObjectSerializeContext*) const
{
	if (IsNull())
	{
		return nullptr;
	}
	UObject* Loaded = ResolveObject();
	return Loaded ? Loaded : StaticLoadObject(UObject::StaticClass(), nullptr, *ToString());
}

bool FSoftObjectPath::operator==(const FSoftObjectPath& Other) const
{
	return AssetPath == Other.AssetPath && SubPathString == Other.SubPathString;
}

//~ FSoftClassPath

//~ FSoftObjectPtr

FSoftObjectPtr& FSoftObjectPtr::operator=(const FSoftObjectPath& InPath)
{
	return *this = FSoftObjectPtr(InPath);
}

FSoftObjectPtr& FSoftObjectPtr::operator=(const UObject* Object)
{
	return *this = FSoftObjectPtr(Object);
}

UObject* FSoftObjectPtr::Get() const
{
	UObject* Object = WeakPtr.Get();
	if (!Object && !ObjectID.IsNull())
	{
		Object = ObjectID.ResolveObject();
		Object = ::IsValid(Object) ? Object : nullptr;
		WeakPtr = Object;
	}
	return Object;
}

UObject* FSoftObjectPtr::LoadSynchronous() const
{
	UObject* Object = Get();
	if (!Object && !ObjectID.IsNull())
	{
		Object = ObjectID.TryLoad();
		WeakPtr = Object;
	}
	return Object;
}
