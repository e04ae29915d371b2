// Copyright Velmorant. All Rights Reserved.

#include "PackageWriter.h"

#include "PropertyWriter.h"
#include "UObject/Class.h"
#include "UObject/Package.h"

#include <vector>

namespace PackageFormat
{
	struct FFlagName
	{
		EObjectFlags Flag;
		const TCHAR* Name;
	};

	const TCHAR* const NoFlags = TEXT("None");

	const FFlagName FlagNames[] = {
		{RF_Public, TEXT("Public")},
		{RF_Standalone, TEXT("Standalone")},
		{RF_Transactional, TEXT("Transactional")},
	};
}

FString PackageFormat::PathInPackage(const UObject* Object)
{
	FString Path;
	for (const UObject* Part = Object; Part != nullptr && !Part->IsA<UPackage>(); Part = Part->GetOuter())
	{
		Path = Path.IsEmpty() ? Part->GetName() : Part->GetName() + TEXT(".") + Path;
	}
	return Path;
}

FString PackageFormat::FlagsToText(EObjectFlags ObjectFlags)
{
	TArray<FString> Names;
	for (const FFlagName& Candidate : FlagNames)
	{
		if ((ObjectFlags & Candidate.Flag) != 0)
		{
			Names.Add(Candidate.Name);
		}
	}
	return Names.IsEmpty() ? FString(NoFlags) : FString::Join(Names, TEXT("|"));
}

bool PackageFormat::FlagsFromText(const FString& Text, EObjectFlags& OutFlags)
{
	OutFlags = RF_NoFlags;
	if (Text == NoFlags)
	{
		return true;
	}
	TArray<FString> Words;
	Text.ParseIntoArray(Words, TEXT("|"));
	for (const FString& Word : Words)
	{
		const EObjectFlags Before = OutFlags;
		for (const FFlagName& Candidate : FlagNames)
		{
			OutFlags = Word == Candidate.Name ? OutFlags | Candidate.Flag : OutFlags;
		}
		if (OutFlags == Before)
		{
			return false;
		}
	}
	return true;
}

EObjectFlags PackageFormat::GetUsualFlags(bool bTopLevel)
{
	return bTopLevel ? RF_Public | RF_Standalone | RF_Transactional : RF_Transactional; // whatever is in a file can be undone
}

namespace PackageWriter
{
	/** Collects objects as their values name them and writes an entry for each. */
	class FEntries
	{
	public:
		explicit FEntries(UObject* MainAsset)
			: Package(MainAsset->GetPackage())
			, Writer([this](UObject* Object) { Add(Object); })
		{
			Add(MainAsset);
		}

		FJson Write()
		{
			for (size_t Index = 0; Index < Objects.size(); ++Index)
			{
				Entries.push_back(WriteEntry(Objects[Index]));
			}
			DropUnchangedSubobjects();
			FJson Json = FJson::array();
			for (FJson& Entry : Entries)
			{
				if (!Entry.is_null())
				{
					Json.push_back(MoveTemp(Entry));
				}
			}
			return Json;
		}

	private:
		void Add(UObject* Object)
		{
			if (Object == Package || Object->GetPackage() != Package || Object->IsA<UField>() || Known.Contains(Object))
			{
				return;
			}
			Known.Add(Object);
			Add(Object->GetOuter());
			Objects.push_back(Object);
		}

		FJson WriteEntry(UObject* Object)
		{
			const bool bTopLevel = Object->GetOuter() == Package;
			const FString Flags = PackageFormat::FlagsToText(Object->GetFlags());
			FJson Entry = FJson::object();
			Entry[PackageFormat::Name] = PackageJson::FromString(Object->GetName());
			Entry[PackageFormat::Class] = PackageJson::FromString(Object->GetClass()->GetClassPathName().ToString());
			if (!bTopLevel)
			{
				Entry[PackageFormat::Outer] = PackageJson::FromString(PackageFormat::PathInPackage(Object->GetOuter()));
			}
			if (Flags != PackageFormat::FlagsToText(PackageFormat::GetUsualFlags(bTopLevel)))
			{
				Entry[PackageFormat::Flags] = PackageJson::FromString(Flags);
			}
			FJson Properties = Writer.WriteDifferences(Object, Object->GetArchetype());
			if (!Properties.empty())
			{
				Entry[PackageFormat::Properties] = MoveTemp(Properties);
			}
			return Entry;
		}

		/** What an owner makes by itself, and nobody changed, need not be in the file. Owners stand before what they own. */
		void DropUnchangedSubobjects()
		{
			TSet<const UObject*> Needed;
			for (size_t Index = Objects.size(); Index-- > 1;)
			{
				const UObject* Object = Objects[Index];
				const bool bMadeByOwner = Object->GetArchetype() != Object->GetClass()->GetDefaultObject();
				if (bMadeByOwner && !Entries[Index].contains(PackageFormat::Properties) && !Needed.Contains(Object))
				{
					Entries[Index] = nullptr;
				}
				else
				{
					Needed.Add(Object->GetOuter());
				}
			}
		}

		UPackage* Package;
		FPropertyWriter Writer;
		TSet<const UObject*> Known;
		std::vector<UObject*> Objects; // grows while it is walked
		std::vector<FJson> Entries; // one per object; null once dropped
	};
}

FJson PackageWriter::Write(UObject* MainAsset)
{
	FJson Document = FJson::object();
	Document[PackageFormat::Class] = PackageJson::FromString(MainAsset->GetClass()->GetClassPathName().ToString());
	Document[PackageFormat::Format] = PackageFormat::CurrentFormat;
	Document[PackageFormat::Objects] = FEntries(MainAsset).Write();
	return Document;
}
