// Copyright Velmorant. All Rights Reserved.

#include "ObjectTools.h"

#include "Editor.h"
#include "HostEditor.h"
#include "HostPackages.h"
#include "HostQuestions.h"
#include "UObject/Class.h"
#include "UObject/Package.h"
#include "UObject/UnrealType.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UObjectHash.h"

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
	if (Packages.IsEmpty() || (bShowConfirmation && !Confirm(Packages, Referencers)))
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
