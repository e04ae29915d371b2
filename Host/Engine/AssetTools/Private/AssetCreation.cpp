// Copyright Velmorant. All Rights Reserved.

#include "AssetCreation.h"

#include "AssetNames.h"
#include "AssetRegistry/AssetRegistryModule.h"
#include "Engine/World.h"
#include "Factories/Factory.h"
#include "HostPackages.h"
#include "HostQuestions.h"
#include "Misc/FeedbackContext.h"
#include "UObject/Class.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"

#define LOCTEXT_NAMESPACE "AssetTools"

DEFINE_LOG_CATEGORY_STATIC(LogAssetTools, Log, All);

namespace AssetCreation
{
	/** Levels are not replaced by assets: one of them may be open. */
	bool IsLevel(const FString& PackageName)
	{
		const UObject* InMemory = HostPackages::FindMainAsset(FindPackage(nullptr, *PackageName));
		return (InMemory != nullptr && InMemory->IsA<UWorld>()) || HostPackages::FindFile(PackageName).EndsWith(TEXT(".umap.json"));
	}

	/** Below the root of what nobody means to keep; host: it has no folder on disk. */
	bool IsTemporary(const FString& PackageName)
	{
		return PackageName.StartsWith(TEXT("/Temp/"));
	}

	/** False, with the reason in the log, for a request that cannot become an asset. */
	bool IsPossible(const FAssetRequest& Request, const FString& PackageName)
	{
		FString Reason;
		if (!HostPackages::IsValidAssetName(Request.AssetName, &Reason) || (!IsTemporary(PackageName) && !HostPackages::IsValidPackageName(PackageName, &Reason)))
		{
			UE_LOG(LogAssetTools, Error, TEXT("Cannot create the asset '%s' in '%s': %s."), *Request.AssetName, *Request.PackagePath, *Reason);
			return false;
		}
		if (Request.AssetClass == nullptr && Request.Factory == nullptr)
		{
			UE_LOG(LogAssetTools, Error, TEXT("Cannot create the asset '%s': neither a class nor a factory is given."), *PackageName);
			return false;
		}
		if (Request.Factory == nullptr && Request.AssetClass->HasAnyClassFlags(CLASS_Abstract))
		{
			UE_LOG(LogAssetTools, Error, TEXT("Cannot create the asset '%s': the class '%s' is abstract."), *PackageName, *Request.AssetClass->GetName());
			return false;
		}
		if (HostPackages::GetStored(PackageName) == HostPackages::EStored::Binary)
		{
			UE_LOG(LogAssetTools, Error, TEXT("Cannot create the asset '%s': the engine's own file '%s' has that name, and this editor cannot read it."),
				*PackageName, *HostPackages::FindFile(PackageName));
			return false;
		}
		if (IsLevel(PackageName))
		{
			UE_LOG(LogAssetTools, Error, TEXT("Cannot create the asset '%s': a level has that name."), *PackageName);
			return false;
		}
		return true;
	}

	bool AskToReplace(const FAssetRequest& Request, const FString& PackageName)
	{
		FHostQuestion Question;
		Question.Kind = FName("ReplaceAsset");
		Question.Title = LOCTEXT("ReplaceAssetTitle", "Replace Asset");
		Question.Message = FText::Format(
			LOCTEXT("ReplaceAssetMessage", "An asset named '{0}' exists already. Replace it?"), FText::FromString(PackageName));
		Question.Choices = {TEXT("Yes"), TEXT("No")};
		Question.DefaultChoice = TEXT("No");
		Question.Fields.Add(TEXT("Name"), Request.AssetName);
		Question.Fields.Add(TEXT("Path"), Request.PackagePath);
		const bool bReplace = HostQuestions::Ask(Question).Choice == TEXT("Yes");
		if (!bReplace)
		{
			UE_LOG(LogAssetTools, Warning, TEXT("The asset '%s' exists already and is kept."), *PackageName);
		}
		return bReplace;
	}

	UObject* MakeObject(const FAssetRequest& Request, UPackage* Package)
	{
		const EObjectFlags Flags = RF_Public | RF_Standalone | RF_Transactional;
		const FName Name(*Request.AssetName);
		if (Request.Factory == nullptr)
		{
			return NewObject<UObject>(Package, Request.AssetClass, Name, Flags);
		}
		UClass* AssetClass = Request.AssetClass != nullptr ? Request.AssetClass : Request.Factory->GetSupportedClass();
		return Request.Factory->FactoryCreateNew(AssetClass, Package, Name, Flags, nullptr, GWarn, Request.CallingContext);
	}
}

UObject* AssetCreation::Create(const FAssetRequest& Request)
{
	const FString PackageName = Request.PackagePath / Request.AssetName;
	if (!IsPossible(Request, PackageName))
	{
		return nullptr;
	}
	if (AssetNames::IsTaken(PackageName))
	{
		if (!AskToReplace(Request, PackageName))
		{
			return nullptr;
		}
		if (UPackage* OldPackage = FindPackage(nullptr, *PackageName))
		{
			HostPackages::Displace(OldPackage);
		}
	}

	UPackage* Package = CreatePackage(*PackageName);
	UObject* Asset = MakeObject(Request, Package);
	if (Asset == nullptr)
	{
		return nullptr;
	}
	FAssetRegistryModule::AssetCreated(Asset);
	Package->MarkPackageDirty();
	UE_CLOG(!Request.CallingContext.IsNone(), LogAssetTools, Log, TEXT("%s was made in the context '%s'."), *Request.AssetName, *Request.CallingContext.ToString()); // the engine's analytics get it
	return Asset;
}

bool AssetCreation::AskWhereToSave(FAssetRequest& Request)
{
	FHostQuestion Question;
	Question.Kind = FName("SaveAsset");
	Question.Title = LOCTEXT("SaveAssetTitle", "Save Asset As");
	Question.Message = LOCTEXT("SaveAssetMessage", "Name and folder of the new asset");
	Question.Choices = {TEXT("Save"), TEXT("Cancel")};
	Question.DefaultChoice = TEXT("Save");
	Question.Fields.Add(TEXT("Name"), Request.AssetName);
	Question.Fields.Add(TEXT("Path"), Request.PackagePath);

	const FHostAnswer Answer = HostQuestions::Ask(Question);
	if (Answer.Choice != TEXT("Save"))
	{
		return false;
	}
	if (const FString* Name = Answer.Fields.Find(TEXT("Name")))
	{
		Request.AssetName = *Name;
	}
	if (const FString* Path = Answer.Fields.Find(TEXT("Path")))
	{
		Request.PackagePath = *Path;
		Request.PackagePath.RemoveFromEnd(TEXT("/"));
	}
	return true;
}

#undef LOCTEXT_NAMESPACE
