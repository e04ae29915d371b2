// Copyright Velmorant. All Rights Reserved.

#include "PackageReader.h"

#include "PackageStorage.h"
#include "PackageWriter.h"
#include "PropertyReader.h"
#include "UObject/Class.h"
#include "UObject/Package.h"

#include <algorithm>

namespace PackageReader
{
	const std::string ObjectsMember(PackageFormat::Objects);
	const std::string PropertiesMember(PackageFormat::Properties);

	bool IsObjectName(const FString& Name)
	{
		return !Name.IsEmpty() && Name.Len() < 1024 && !Name.Contains(TEXT(".")) && !Name.Contains(TEXT(":")) && !Name.Contains(TEXT("/")) &&
			Name != TEXT("None");
	}

	FString Join(const FString& Outer, const FString& Name)
	{
		return Outer.IsEmpty() ? Name : Outer + TEXT(".") + Name;
	}
}

UPackage* FPackageReader::Read()
{
	if (!CheckDocument())
	{
		return nullptr;
	}
	UPackage* Package = CreatePackage(*PackageName);
	if (!MakeObjects(Package))
	{
		TakeBack();
		return nullptr;
	}
	SetValues();
	Package->MarkAsFullyLoaded();
	Package->SetDirtyFlag(false);
	return Package;
}

bool FPackageReader::CheckDocument()
{
	const FJsonPlace Root;
	FString ClassPath;
	// The class first: a file of a kind that nobody knows has members that nobody knows.
	if (Document.is_object() && (!ReadString(Document, PackageFormat::Class, Root, ClassPath) || FindClass(ClassPath, Root) == nullptr))
	{
		return false;
	}
	if (!CheckMembers(Document, Root, {PackageFormat::Class, PackageFormat::Format, PackageFormat::Objects}))
	{
		return false;
	}
	const auto Format = Document.find(PackageFormat::Format);
	if (Format == Document.end() || *Format != PackageFormat::CurrentFormat)
	{
		return Refuse(Root, FString::Printf(TEXT("the file is not of format %d"), PackageFormat::CurrentFormat),
			TEXT("It may come from a newer version of this program; use that one."));
	}
	const auto Objects = Document.find(PackageFormat::Objects);
	if (Objects == Document.end() || !Objects->is_array() || Objects->empty())
	{
		return Refuse(FJsonPlace(Root, PackageReader::ObjectsMember), TEXT("there must be an array with at least the asset itself"),
			TEXT("Take the file back from version control."));
	}
	const FJsonPlace ObjectsPlace(Root, PackageReader::ObjectsMember);
	for (size_t Index = 0; Index < Objects->size(); ++Index)
	{
		if (!CheckEntry((*Objects)[Index], FJsonPlace(ObjectsPlace, Index)))
		{
			return false;
		}
	}
	const FString ShortName = PackageFiles::ShortNameOf(PackageName);
	const FEntry& Main = Entries[0];
	if (Main.Name != FName(*ShortName) || !Main.Outer.IsEmpty())
	{
		return RefuseEntry(Main, FString::Printf(TEXT("the first object must be the asset, named \"%s\" like its file"), *ShortName),
			TEXT("Rename the file, or the object and all references to it."));
	}
	if (Main.Class->GetClassPathName().ToString() != ClassPath)
	{
		return Refuse(Root, TEXT("\"Class\" must be the class of the first object"), TEXT("Make the two equal."));
	}
	return true;
}

bool FPackageReader::CheckEntry(const FJson& Json, const FJsonPlace& Place)
{
	FString Name;
	FString ClassPath;
	if (!CheckMembers(Json, Place,
			{PackageFormat::Name, PackageFormat::Class, PackageFormat::Outer, PackageFormat::Flags, PackageFormat::Properties}) ||
		!ReadString(Json, PackageFormat::Name, Place, Name) || !ReadString(Json, PackageFormat::Class, Place, ClassPath))
	{
		return false;
	}
	FEntry Entry;
	if (Json.contains(PackageFormat::Outer) && !ReadString(Json, PackageFormat::Outer, Place, Entry.Outer))
	{
		return false;
	}
	if (!CheckEntryName(Entry, Name, Place))
	{
		return false;
	}
	Entry.Name = FName(*Name);
	Entry.Class = FindClass(ClassPath, Place);
	if (Entry.Class == nullptr)
	{
		return false;
	}
	Entry.Flags = PackageFormat::GetUsualFlags(Entry.Outer.IsEmpty());
	FString Flags;
	if (Json.contains(PackageFormat::Flags) &&
		(!ReadString(Json, PackageFormat::Flags, Place, Flags) || !PackageFormat::FlagsFromText(Flags, Entry.Flags)))
	{
		return Refuse(Place, FString::Printf(TEXT("\"%s\" are no object flags"), *Flags), TEXT("Use Public, Standalone and Transactional, with | between."));
	}
	const auto Properties = Json.find(PackageFormat::Properties);
	if (Properties != Json.end())
	{
		FPropertyReader Checker;
		if (!Checker.ReadProperties(Entry.Class, nullptr, *Properties, FJsonPlace(Place, PackageReader::PropertiesMember)))
		{
			Problem = Checker.GetProblem();
			return false;
		}
		Entry.Properties = &*Properties;
	}
	EntriesByPath.Add(PackageReader::Join(Entry.Outer, Name), Entries.Num());
	Entries.Add(Entry);
	return true;
}

bool FPackageReader::CheckEntryName(const FEntry& Entry, const FString& Name, const FJsonPlace& Place)
{
	if (!PackageReader::IsObjectName(Name))
	{
		return Refuse(Place, FString::Printf(TEXT("\"%s\" cannot be the name of an object"), *Name), TEXT("Correct \"Name\"."));
	}
	if (!Entry.Outer.IsEmpty() && !EntriesByPath.Contains(Entry.Outer))
	{
		return Refuse(Place, FString::Printf(TEXT("no object before this one is called \"%s\""), *Entry.Outer), TEXT("Correct \"Outer\"; owners stand before what they own."));
	}
	if (EntriesByPath.Contains(PackageReader::Join(Entry.Outer, Name)))
	{
		return Refuse(Place, FString::Printf(TEXT("there are two objects \"%s\" in the same owner"), *Name), TEXT("Remove or rename one of them."));
	}
	return true;
}

bool FPackageReader::CheckMembers(const FJson& Json, const FJsonPlace& Place, std::initializer_list<const char*> Known)
{
	if (!Json.is_object())
	{
		return Refuse(Place, TEXT("this must be an object"), TEXT("Take the file back from version control."));
	}
	for (auto Member = Json.begin(); Member != Json.end(); ++Member)
	{
		if (std::none_of(Known.begin(), Known.end(), [&Member](const char* Name) { return Member.key() == Name; }))
		{
			return Refuse(FJsonPlace(Place, Member.key()), TEXT("no such member is known here"), TEXT("Correct the name or remove the member."));
		}
	}
	return true;
}

bool FPackageReader::ReadString(const FJson& Json, const char* Member, const FJsonPlace& Place, FString& OutText)
{
	const std::string Key(Member);
	const auto Found = Json.find(Key);
	if (Found == Json.end() || !Found->is_string() || Found->get_ref<const std::string&>().empty())
	{
		return Refuse(FJsonPlace(Place, Key), FString::Printf(TEXT("\"%s\" must be there and be a text"), *PackageJson::ToString(Key)), TEXT("Add or correct it."));
	}
	OutText = PackageJson::ToString(Found->get_ref<const std::string&>());
	return true;
}

UClass* FPackageReader::FindClass(const FString& ClassPath, const FJsonPlace& Place)
{
	static const std::string Member(PackageFormat::Class);
	UClass* Class = nullptr;
	if (FTopLevelAssetPath(ClassPath).IsValid())
	{
		Class = FindObject<UClass>(nullptr, *ClassPath);
		if (Class == nullptr && !ClassPath.StartsWith(TEXT("/Script/")))
		{
			Class = LoadObject<UClass>(nullptr, *ClassPath);
		}
	}
	if (Class == nullptr)
	{
		Refuse(FJsonPlace(Place, Member), FString::Printf(TEXT("there is no class \"%s\""), *ClassPath),
			TEXT("Enable the plugin that has the class, or correct the path."));
		return nullptr;
	}
	if (Class->HasAnyClassFlags(CLASS_Abstract | CLASS_Interface) || Class->IsChildOf(UField::StaticClass()) || Class->IsChildOf(UPackage::StaticClass()))
	{
		Refuse(FJsonPlace(Place, Member), FString::Printf(TEXT("no objects can be made of the class \"%s\""), *ClassPath), TEXT("Name a class that is not abstract."));
		return nullptr;
	}
	return Class;
}

bool FPackageReader::MakeObjects(UPackage* Package)
{
	for (FEntry& Entry : Entries)
	{
		const int32* OwnerIndex = EntriesByPath.Find(Entry.Outer);
		UObject* Outer = OwnerIndex != nullptr ? Entries[*OwnerIndex].Object : Package;
		UObject* Existing = StaticFindObjectFast(nullptr, Outer, Entry.Name);
		if (IsValid(Existing) && Existing->GetClass() != Entry.Class)
		{
			return RefuseEntry(Entry, FString::Printf(TEXT("its owner makes \"%s\" itself, of class \"%s\""), *Entry.Name.ToString(), *Existing->GetClass()->GetPathName()), TEXT("Correct the class, or rename the object."));
		}
		Entry.bCreated = !IsValid(Existing);
		Entry.Object = Entry.bCreated ? NewObject<UObject>(Outer, Entry.Class, Entry.Name, Entry.Flags) : Existing;
		Entry.Object->SetFlags(Entry.Flags);
	}
	return true;
}

void FPackageReader::SetValues()
{
	for (const FEntry& Entry : Entries)
	{
		if (Entry.Properties == nullptr)
		{
			continue;
		}
		FPropertyReader Reader;
		const bool bSet = Reader.ReadProperties(Entry.Class, Entry.Object, *Entry.Properties, FJsonPlace());
		checkf(bSet, TEXT("%s was checked and cannot be set: %s"), *Entry.Object->GetPathName(), *Reader.GetProblem().Message);
		for (FJsonProblem Missing : Reader.GetUnresolved())
		{
			Missing.Pointer = PointerTo(Entry) + TEXT("/Properties") + Missing.Pointer;
			Unresolved.Add(Missing);
		}
	}
	for (const FEntry& Entry : Entries)
	{
		Entry.Object->PostLoad();
	}
}

void FPackageReader::TakeBack()
{
	for (FEntry& Entry : Entries)
	{
		if (Entry.Object != nullptr && Entry.bCreated)
		{
			const FName FreeName = MakeUniqueObjectName(GetTransientPackage(), Entry.Class, Entry.Name);
			Entry.Object->Rename(*FreeName.ToString(), GetTransientPackage(), REN_DontCreateRedirectors | REN_DoNotDirty);
			Entry.Object->ClearFlags(RF_Public | RF_Standalone);
			Entry.Object->MarkAsGarbage();
		}
	}
}

bool FPackageReader::Refuse(const FJsonPlace& Place, const FString& Message, const FString& Remedy)
{
	Problem = FJsonProblem();
	Problem.Pointer = Place.ToString();
	Problem.Message = Message;
	Problem.Remedy = Remedy;
	return false;
}

bool FPackageReader::RefuseEntry(const FEntry& Entry, const FString& Message, const FString& Remedy)
{
	Refuse(FJsonPlace(), Message, Remedy);
	Problem.Pointer = PointerTo(Entry);
	return false;
}

FString FPackageReader::PointerTo(const FEntry& Entry) const
{
	return FString::Printf(TEXT("/Objects/%d"), static_cast<int32>(&Entry - Entries.GetData()));
}
