// Copyright Velmorant. All Rights Reserved.

#include "Run/ScriptObjects.h"

#include "AssetRegistry/AssetRegistryModule.h"
#include "Blueprint/UserWidget.h"
#include "Editor.h"
#include "Engine/World.h"
#include "EngineUtils.h"
#include "HostPackages.h"
#include "Run/ScriptContext.h"
#include "Run/ScriptWidgets.h"
#include "Suggestions.h"
#include "UObject/Class.h"
#include "UObject/UObjectHash.h"

namespace ScriptObjects
{
	const TCHAR* const ActorPrefix = TEXT("actor:");
	const TCHAR* const DefaultPrefix = TEXT("default:");

	/** The actor of that label, or else of that name; labels ignore case. */
	AActor* FindActorByLabel(const FString& Label)
	{
		AActor* Named = nullptr;
		for (FActorIterator Actors(GetWorld(), AActor::StaticClass()); Actors; ++Actors)
		{
			if ((*Actors)->GetActorLabel(false) == Label)
			{
				return *Actors;
			}
			Named = Named == nullptr && (*Actors)->GetName() == Label ? *Actors : Named;
		}
		return Named;
	}

	TArray<FString> GetActorLabels()
	{
		TArray<FString> Labels;
		for (FActorIterator Actors(GetWorld(), AActor::StaticClass()); Actors; ++Actors)
		{
			Labels.AddUnique((*Actors)->GetActorLabel(false));
		}
		return Labels;
	}

	AActor* FindActor(const FString& ClassOrLabel, FString& OutReason)
	{
		FString ClassName = ClassOrLabel;
		ClassName.RemoveFromStart(ActorPrefix);
		UClass* Class = FindClass(ClassName, OutReason);
		if (Class == nullptr)
		{
			AActor* Labelled = FindActorByLabel(ClassName);
			OutReason = Labelled != nullptr ? FString() : Suggestions::Append(FString::Printf(TEXT("there is no class %s, and no actor of that label"), *ClassName), ClassName, GetActorLabels());
			return Labelled;
		}
		if (!Class->IsChildOf(AActor::StaticClass()))
		{
			OutReason = FString::Printf(TEXT("%s is no class of actors"), *ClassName);
			return nullptr;
		}
		const FActorIterator Actors(GetWorld(), Class);
		if (!Actors)
		{
			OutReason = FString::Printf(TEXT("no actor of the class %s stands in the open level"), *ClassName);
			return nullptr;
		}
		return *Actors;
	}

	UObject* FindPanel(FScriptContext& Context, const FString& Name, FString& OutReason)
	{
		const FPanelHost::FPanel* Panel = Context.Session.GetPanels().Find(Name);
		if (Panel == nullptr)
		{
			OutReason = Suggestions::Append(FString::Printf(TEXT("no panel named %s is open"), *Name), Name, ScriptWidgets::GetRootNames(Context));
			return nullptr;
		}
		return Panel->Widget.Get();
	}

	UObject* Find(FScriptContext& Context, const FString& Text, FString& OutReason)
	{
		FString Rest = Text;
		if (Text.StartsWith(TEXT("/")))
		{
			return FindAsset(Text, OutReason);
		}
		if (Text.StartsWith(ActorPrefix))
		{
			return FindActor(Text, OutReason);
		}
		if (Rest.RemoveFromStart(DefaultPrefix))
		{
			const UClass* Class = FindClass(Rest, OutReason);
			return Class != nullptr ? Class->GetDefaultObject() : nullptr;
		}
		return FindPanel(Context, Text, OutReason);
	}

	UObject* FindAsset(const FString& Path, FString& OutReason)
	{
		const FString Package = PackageOf(Path);
		UObject* Asset = HostPackages::IsValidPackageName(Package, &OutReason) ? HostPackages::LoadAsset(Package) : nullptr;
		if (Asset == nullptr && OutReason.IsEmpty())
		{
			OutReason = FString::Printf(TEXT("there is no asset %s, or it cannot be read"), *Package);
			if (HostPackages::GetStored(Package) == HostPackages::EStored::Nothing)
			{
				OutReason = Suggestions::Append(OutReason, Package, GetAssetPaths(UObject::StaticClass()), Suggestions::EList::No);
			}
		}
		return Asset;
	}

	FString PackageOf(const FString& Path)
	{
		FString Package = Path;
		Path.Split(TEXT("."), &Package, nullptr);
		return Package;
	}

	TArray<FString> GetAssetPaths(const UClass* Class)
	{
		TArray<FAssetData> Assets;
		FModuleManager::LoadModuleChecked<FAssetRegistryModule>("AssetRegistry").Get().GetAllAssets(Assets);
		TArray<FString> Paths;
		for (const FAssetData& Asset : Assets)
		{
			const UClass* Found = Asset.GetClass();
			if (Class == UObject::StaticClass() || (Found != nullptr && Found->IsChildOf(Class)))
			{
				Paths.Add(Asset.PackageName.ToString());
			}
		}
		return Paths;
	}

	TArray<FString> GetClassNames()
	{
		TArray<UObject*> Classes;
		GetObjectsOfClass(UClass::StaticClass(), Classes);
		TArray<FString> Names;
		for (const UObject* Class : Classes)
		{
			Names.Add(Class->GetName());
		}
		return Names;
	}

	UClass* FindClass(const FString& Name, FString& OutReason)
	{
		UClass* Class = UClass::TryFindTypeSlow<UClass>(Name);
		if (Class == nullptr && Name.Len() > 1 && (Name[0] == TEXT('U') || Name[0] == TEXT('A')))
		{
			Class = UClass::TryFindTypeSlow<UClass>(Name.RightChop(1));
		}
		if (Class == nullptr)
		{
			OutReason = Suggestions::Append(FString::Printf(TEXT("there is no class %s"), *Name), Name, GetClassNames(), Suggestions::EList::No);
		}
		return Class;
	}

	FName ToName(const FString& Text)
	{
		return Text.Len() < NAME_SIZE ? FName(*Text) : FName();
	}

	UWorld* GetWorld()
	{
		return GEditor->GetEditorWorldContext().World();
	}
}
