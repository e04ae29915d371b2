// Copyright Velmorant. All Rights Reserved.

#include "PackageReferences.h"

#include "HostFiles.h"
#include "HostPackages.h"
#include "HostProblems.h"
#include "HostTextFiles.h"
#include "PackageFormats.h"
#include "PackageStorage.h"
#include "PackageWriter.h"
#include "PropertyReader.h"
#include "PropertyWriter.h"
#include "UObject/Class.h"
#include "UObject/Package.h"
#include "UObject/UObjectHash.h"
#include "UObject/UObjectIterator.h"

namespace PackageReferences
{
	/** Where the text names the package: at its start, or quoted behind the name of a class. -1 when it does not. */
	int32 FindIn(const FString& Text, const FString& PackageName)
	{
		const int32 Start = Text.Find(PackageName);
		const int32 End = Start + PackageName.Len();
		const bool bWhole = Start != INDEX_NONE && (Start == 0 || Text[Start - 1] == TEXT('\'')) && (End == Text.Len() || Text[End] == TEXT('.') || Text[End] == TEXT('\''));
		return bWhole ? Start : INDEX_NONE;
	}

	/** "/Game/Old.Old:Part" becomes "/Game/New.New:Part". */
	FString ReplaceIn(const FString& Text, int32 Start, const FString& OldPackage, const FString& NewPackage)
	{
		FString Rest = Text.RightChop(Start + OldPackage.Len());
		const FString OldAsset = TEXT(".") + PackageFiles::ShortNameOf(OldPackage);
		const TCHAR Behind = Rest.Len() > OldAsset.Len() ? Rest[OldAsset.Len()] : TEXT('\'');
		if (Rest.StartsWith(OldAsset) && (Behind == TEXT('\'') || Behind == TEXT(':') || Behind == TEXT('.')))
		{
			Rest = TEXT(".") + PackageFiles::ShortNameOf(NewPackage) + Rest.RightChop(OldAsset.Len());
		}
		return Text.Left(Start) + NewPackage + Rest;
	}

	/** The document as it would be saved now; null for what is not in memory, or is never written. */
	FJson WriteFromMemory(const UPackage* Package)
	{
		FJson Document;
		UObject* const Asset = HostPackages::FindMainAsset(Package);
		if (!IsValid(Asset))
		{
			return Document;
		}
		const FPackageFormat* Format = FPackageFormat::Find(Asset->GetClass()->GetClassPathName().ToString());
		if (Format == nullptr)
		{
			return PackageWriter::Write(Asset);
		}
		return Format->Writer && Format->Writer(Asset, Document) ? Document : FJson();
	}

	/** Null for what cannot be read: it reports itself when it is opened. */
	FJson ReadFile(const FString& File)
	{
		std::string Text;
		FJson Document;
		FJsonProblem Problem;
		return HostTextFiles::ReadUtf8(File, Text) == HostFiles::ERead::Done && PackageJson::Parse(Text, Document, Problem) ? Document : FJson();
	}
}

bool PackageReferences::Mentions(const FJson& Document, const FString& PackageName)
{
	if (Document.is_string())
	{
		return FindIn(PackageJson::ToString(Document.get_ref<const std::string&>()), PackageName) != INDEX_NONE;
	}
	if (!Document.is_structured())
	{
		return false;
	}
	for (const auto& Member : Document.items())
	{
		if ((Document.is_object() && FindIn(PackageJson::ToString(Member.key()), PackageName) != INDEX_NONE) || Mentions(Member.value(), PackageName))
		{
			return true;
		}
	}
	return false;
}

bool PackageReferences::Replace(FJson& Document, const FString& OldPackage, const FString& NewPackage)
{
	if (Document.is_string())
	{
		const FString Text = PackageJson::ToString(Document.get_ref<const std::string&>());
		const int32 Start = FindIn(Text, OldPackage);
		if (Start != INDEX_NONE)
		{
			Document = PackageJson::FromString(ReplaceIn(Text, Start, OldPackage, NewPackage));
		}
		return Start != INDEX_NONE;
	}
	bool bChanged = false;
	if (Document.is_structured())
	{
		for (FJson& Member : Document)
		{
			bChanged |= Replace(Member, OldPackage, NewPackage);
		}
	}
	return bChanged;
}

bool PackageReferences::Replace(UObject* Object, const FString& OldPackage, const FString& NewPackage)
{
	FPropertyWriter Writer;
	const FJson All = Writer.WriteDifferences(Object, Object->GetClass()->GetDefaultObject());
	FJson Changed = FJson::object();
	for (const auto& Member : All.items())
	{
		FJson Value = Member.value();
		if (Replace(Value, OldPackage, NewPackage))
		{
			Changed[Member.key()] = Value;
		}
	}
	return !Changed.empty() && FPropertyReader().ReadProperties(Object->GetClass(), Object, Changed, FJsonPlace());
}

TArray<FString> HostPackages::FindReferencers(const FString& PackageName)
{
	TArray<FString> Referencers;
	TSet<FName> InMemory;
	const FName Own(*PackageName);
	for (TObjectIterator<UPackage> It; It; ++It)
	{
		const FJson Document = It->GetFName() != Own && *It != GetTransientPackage() ? PackageReferences::WriteFromMemory(*It) : FJson();
		if (Document.is_null())
		{
			continue;
		}
		InMemory.Add(It->GetFName());
		if (PackageReferences::Mentions(Document, PackageName))
		{
			Referencers.Add(It->GetName());
		}
	}
	const FPackageStorage& Storage = FPackageStorage::Get();
	for (const FString& File : Storage.ListFiles())
	{
		const FString Stored = Storage.GetPackageName(File);
		const bool bAsked = IsValidPackageName(Stored) && FName(*Stored) != Own && !InMemory.Contains(FName(*Stored));
		if (bAsked && PackageReferences::Mentions(PackageReferences::ReadFile(File), PackageName))
		{
			Referencers.Add(Stored);
		}
	}
	Referencers.Sort([](const FString& Left, const FString& Right) { return Left.Compare(Right, ESearchCase::IgnoreCase) < 0; });
	return Referencers;
}
