// Copyright Velmorant. All Rights Reserved.

#include "ObjectTools.h"

#include "Editor.h"
#include "HostEditor.h"
#include "HostFiles.h"
#include "HostPackages.h"
#include "HostPaths.h"
#include "HostQuestions.h"
#include "Misc/Paths.h"
#include "UObject/Class.h"
#include "UObject/Package.h"
#include "UObject/UnrealType.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UObjectHash.h"

#include <cctype>
#include <sstream>
#include <string_view>

#define LOCTEXT_NAMESPACE "ObjectTools"

DEFINE_LOG_CATEGORY_STATIC(LogObjectTools, Log, All);

namespace ObjectTools
{
	/** Garbage, or a part of it. */
	bool IsDead(const UObject* Object)
	{
		return Object != nullptr && (!IsValid(Object) || IsDead(Object->GetOuter()));
	}

	/** Points what still points at a dead object at nothing. */
	class FDeadReferences final : public FReferenceCollector
	{
	public:
		void Clear(UObject* Object)
		{
			for (const FProperty* Property : Object->GetClass()->GetReferenceProperties())
			{
				Property->CollectReferences(Property->ContainerPtrToValuePtr(Object), *this);
			}
		}

	protected:
		virtual void HandleObjectReference(UObject*& Object) override { Object = IsDead(Object) ? nullptr : Object; }
	};

	/** By package name, without what cannot be deleted, which the log names. */
	TArray<FString> ChoosePackages(const TArray<FAssetData>& Assets)
	{
		TArray<FString> Packages;
		for (const FAssetData& Asset : Assets)
		{
			const FString PackageName = Asset.PackageName.ToString();
			if (PackageName == HostEditor::GetOpenMap())
			{
				UE_LOG(LogObjectTools, Error, TEXT("Cannot delete '%s': the level is open."), *PackageName);
				continue;
			}
			Packages.AddUnique(PackageName);
		}
		return Packages;
	}

	/** Those that are not deleted with the others. */
	TArray<FString> FindReferencers(const TArray<FString>& Packages)
	{
		TArray<FString> Referencers;
		for (const FString& PackageName : Packages)
		{
			for (const FString& Referencer : HostPackages::FindReferencers(PackageName))
			{
				if (!Packages.Contains(Referencer))
				{
					Referencers.AddUnique(Referencer);
				}
			}
		}
		return Referencers;
	}

	/** Whether the line names the package, and not one whose name begins like it. */
	bool Mentions(std::string_view Line, std::string_view Package)
	{
		for (size_t At = Line.find(Package); At != std::string_view::npos; At = Line.find(Package, At + 1))
		{
			const size_t End = At + Package.size();
			const bool bGoesOn = End < Line.size() && (std::isalnum(static_cast<unsigned char>(Line[End])) || Line[End] == '_' || Line[End] == '/');
			if (!bGoesOn)
			{
				return true;
			}
		}
		return false;
	}

	/** Lines of the project's settings that name one of the packages: "Config/DefaultGame.ini, line 3". Nobody changes those by itself. */
	TArray<FString> FindSettings(const TArray<FString>& Packages)
	{
		TArray<FString> Places;
		const FString Folder = FPaths::Combine(HostPaths::GetProjectDir(), TEXT("Config"));
		for (const FString& File : HostFiles::FindFilesIn(Folder, TEXT(".ini")))
		{
			std::string Bytes;
			HostFiles::Read(File, Bytes);
			std::istringstream Lines(Bytes);
			int32 Number = 0;
			for (std::string Line; std::getline(Lines, Line);)
			{
				++Number;
				if (Packages.ContainsByPredicate([&Line](const FString& Package) { return Mentions(Line, TCHAR_TO_UTF8(*Package)); }))
				{
					Places.Add(FString::Printf(TEXT("Config/%s, line %d"), *FPaths::GetCleanFilename(File), Number));
				}
			}
		}
		return Places;
	}

	bool Confirm(const TArray<FString>& Packages, const TArray<FString>& Referencers)
	{
		FHostQuestion Question;
		Question.Kind = FName("DeleteAssets");
		Question.Title = LOCTEXT("DeleteAssetsTitle", "Delete Assets");
		const FText Names = FText::FromString(FString::Join(Packages, TEXT("\n")));
		Question.Message = Referencers.IsEmpty()
			? FText::Format(LOCTEXT("DeleteAssets", "These assets will be deleted, with their files. That cannot be undone.\n\n{0}"), Names)
			: FText::Format(LOCTEXT("ForceDeleteAssets", "These assets will be deleted, with their files. That cannot be undone.\n\n{0}\n\nStill in use by these, which will refer to nothing:\n\n{1}"),
				  Names, FText::FromString(FString::Join(Referencers, TEXT("\n"))));
		const FString Delete = Referencers.IsEmpty() ? TEXT("Delete") : TEXT("Force Delete");
		Question.Choices = {Delete, TEXT("Cancel")};
		Question.DefaultChoice = TEXT("Cancel");
		return HostQuestions::Ask(Question).Choice == Delete;
	}

	/** Soft references stay as they are: they may be meant for what comes later under that name. */
	void ClearReferences(const TArray<FString>& Referencers)
	{
		for (const FString& Name : Referencers)
		{
			UPackage* const Package = FindPackage(nullptr, *Name);
			if (Package == nullptr)
			{
				continue;
			}
			TArray<UObject*> Objects;
			GetObjectsWithOuter(Package, Objects, true);
			for (UObject* Object : Objects)
			{
				FDeadReferences().Clear(Object);
			}
			Package->MarkPackageDirty();
		}
	}
}

int32 ObjectTools::DeleteAssets(const TArray<FAssetData>& AssetsToDelete, bool bShowConfirmation)
{
	const TArray<FString> Packages = ChoosePackages(AssetsToDelete);
	const TArray<FString> Referencers = FindReferencers(Packages);
	TArray<FString> Users = Referencers;
	Users.Append(FindSettings(Packages));
	if (Packages.IsEmpty() || (bShowConfirmation && !Confirm(Packages, Users)))
	{
		return 0;
	}
	int32 NumDeleted = 0;
	for (const FString& PackageName : Packages)
	{
		NumDeleted += HostPackages::Delete(PackageName) ? 1 : 0;
	}
	if (NumDeleted > 0)
	{
		ClearReferences(Referencers);
		GEditor->ResetTransaction(LOCTEXT("ResetForDeletion", "assets were deleted"));
	}
	return NumDeleted;
}

#undef LOCTEXT_NAMESPACE
