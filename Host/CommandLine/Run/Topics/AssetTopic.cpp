// Copyright Velmorant. All Rights Reserved.
// Assets: the content browser's selection and menu, properties, variant sets.

#include "AssetRegistry/AssetRegistryModule.h"
#include "HostAssetTools.h"
#include "HostContentBrowser.h"
#include "IAssetTools.h"
#include "LevelVariantSets.h"
#include "ObjectTools.h"
#include "Run/ScriptContext.h"
#include "Run/ScriptObjects.h"
#include "Run/ScriptProperties.h"
#include "Run/ScriptTopics.h"
#include "Variant.h"
#include "VariantSet.h"

namespace AssetTopic
{
	IAssetRegistry& GetRegistry()
	{
		return FModuleManager::LoadModuleChecked<FAssetRegistryModule>("AssetRegistry").Get();
	}

	/** False, with the reason, when one of them is not there. */
	bool FindAll(const FScriptArguments& Arguments, TArray<FAssetData>& OutAssets, FString& OutReason)
	{
		for (int32 Index = 0; Index < Arguments.Num(); ++Index)
		{
			UObject* Asset = ScriptObjects::FindAsset(Arguments[Index], OutReason);
			if (Asset == nullptr)
			{
				return false;
			}
			OutAssets.Add(FAssetData(Asset));
		}
		return true;
	}

	FStepResult Select(FScriptContext&, const FScriptArguments& Arguments)
	{
		TArray<FAssetData> Selection;
		FString Reason;
		if (!FindAll(Arguments, Selection, Reason))
		{
			return FStepResult::Error(Reason);
		}
		HostContentBrowser::SetSelection(Selection);
		return FStepResult::Done();
	}

	/** "/Game/Folder/Asset" in its two parts. */
	void SplitPath(const FString& Path, FString& OutFolder, FString& OutName)
	{
		OutName = Path;
		Path.Split(TEXT("/"), &OutFolder, &OutName, ESearchCase::CaseSensitive, ESearchDir::FromEnd);
	}

	FStepResult Make(FScriptContext&, const FScriptArguments& Arguments)
	{
		FString Reason;
		UClass* Class = ScriptObjects::FindClass(Arguments[0], Reason);
		if (Class == nullptr)
		{
			return FStepResult::Error(Reason);
		}
		FString Folder;
		FString Name;
		SplitPath(Arguments[1], Folder, Name);
		return HostAssetTools::MakeAsset(*Class, Folder, Name, Reason) != nullptr ? FStepResult::Done() : FStepResult::Error(Reason);
	}

	FStepResult Rename(FScriptContext&, const FScriptArguments& Arguments)
	{
		FString Reason;
		UObject* Asset = ScriptObjects::FindAsset(Arguments[0], Reason);
		if (Asset == nullptr)
		{
			return FStepResult::Error(Reason);
		}
		FString Folder;
		FString Name;
		SplitPath(Arguments[1], Folder, Name);
		const bool bRenamed = IAssetTools::Get().RenameAssets({FAssetRenameData(Asset, Folder, Name)});
		return bRenamed ? FStepResult::Done() : FStepResult::Error(FString::Printf(TEXT("%s cannot be renamed to %s; the log says why"), *Arguments[0], *Arguments[1]));
	}

	FStepResult Delete(FScriptContext&, const FScriptArguments& Arguments)
	{
		TArray<FAssetData> Assets;
		FString Reason;
		if (!FindAll(Arguments, Assets, Reason))
		{
			return FStepResult::Error(Reason);
		}
		const int32 NumDeleted = ObjectTools::DeleteAssets(Assets);
		return NumDeleted == Assets.Num() ? FStepResult::Done() : FStepResult::Error(FString::Printf(TEXT("%d of %d were deleted"), NumDeleted, Assets.Num()));
	}

	FStepResult Action(FScriptContext&, const FScriptArguments& Arguments)
	{
		const FHostInputResult Result = HostContentBrowser::RunContextMenuEntry(Arguments[0]);
		return Result.bDone ? FStepResult::Done() : FStepResult::Error(FString::Printf(TEXT("\"%s\" cannot be chosen: %s"), *Arguments[0], *Result.Reason));
	}

	FStepResult PrintMenu(FScriptContext& Context, const FScriptArguments&)
	{
		for (const FHostMenuEntry& Entry : HostContentBrowser::GetContextMenu())
		{
			Context.Print(Entry.Label + (Entry.bEnabled ? TEXT("") : TEXT(" (disabled)")));
		}
		return FStepResult::Done();
	}

	FStepResult PrintAssets(FScriptContext& Context, const FScriptArguments& Arguments)
	{
		TArray<FAssetData> Assets;
		GetRegistry().GetAssetsByPath(ScriptObjects::ToName(Arguments.Num() > 0 ? Arguments[0] : FString(TEXT("/Game"))), Assets, true);
		for (const FAssetData& Asset : Assets)
		{
			Context.Print(FString::Printf(TEXT("%s (%s)"), *Asset.PackageName.ToString(), *Asset.AssetClassPath.GetAssetName().ToString()));
		}
		return FStepResult::Done();
	}

	ULevelVariantSets* FindVariants(const FString& Path, FString& OutReason)
	{
		UObject* Asset = ScriptObjects::FindAsset(Path, OutReason);
		ULevelVariantSets* Sets = Cast<ULevelVariantSets>(Asset);
		if (Asset != nullptr && Sets == nullptr)
		{
			OutReason = FString::Printf(TEXT("%s holds no variant sets"), *Path);
		}
		return Sets;
	}

	FStepResult PrintVariants(FScriptContext& Context, const FScriptArguments& Arguments)
	{
		FString Reason;
		const ULevelVariantSets* Sets = FindVariants(Arguments[0], Reason);
		if (Sets == nullptr)
		{
			return FStepResult::Error(Reason);
		}
		Context.Print(Sets->GetName());
		for (const UVariantSet* Set : Sets->GetVariantSets())
		{
			Context.Print(TEXT("  ") + Set->GetDisplayText().ToString());
			for (const UVariant* Variant : Set->GetVariants())
			{
				Context.Print(TEXT("    ") + Variant->GetDisplayText().ToString());
			}
		}
		return FStepResult::Done();
	}

	FStepResult PrintProperty(FScriptContext& Context, const FScriptArguments& Arguments)
	{
		FString Reason;
		const UObject* Object = ScriptObjects::Find(Context, Arguments[0], Reason);
		if (Object == nullptr)
		{
			return FStepResult::Error(Reason);
		}
		const ScriptProperties::FReading Seen = ScriptProperties::Read(*Object, Arguments[1]);
		if (!Seen.Error.IsEmpty())
		{
			return FStepResult::Error(Seen.Error);
		}
		Context.Print(Seen.Text);
		return FStepResult::Done();
	}

	FExpectation ExpectAsset(FScriptContext&, const FScriptArguments& Arguments)
	{
		FExpectation Result;
		const UObject* Asset = ScriptObjects::FindAsset(Arguments[0], Result.Found);
		const FString* ClassName = Arguments.FindOption(1, TEXT("class"));
		if (Asset == nullptr || ClassName == nullptr)
		{
			Result.bHolds = Asset != nullptr;
			return Result;
		}
		const UClass* Class = ScriptObjects::FindClass(*ClassName, Result.Error);
		Result.bHolds = Class != nullptr && Asset->IsA(Class);
		Result.Found = FString::Printf(TEXT("it is a %s"), *Asset->GetClass()->GetName());
		return Result;
	}

	FExpectation ExpectProperty(FScriptContext& Context, const FScriptArguments& Arguments)
	{
		Context.Mask(Arguments.GetWordIndex(2)); // until it is known not to be a guess at a password
		FExpectation Result;
		const UObject* Object = ScriptObjects::Find(Context, Arguments[0], Result.Error);
		if (Object == nullptr)
		{
			return Result;
		}
		const ScriptProperties::FReading Seen = ScriptProperties::Read(*Object, Arguments[1]);
		if (!Seen.Error.IsEmpty() || Seen.bSecret)
		{
			return FExpectation::Unanswerable(Seen.bSecret ? FString(TEXT("the value of a password field cannot be looked at")) : Seen.Error);
		}
		Context.Unmask(Arguments.GetWordIndex(2));
		Result.bHolds = ScriptProperties::AreEqual(Seen.Text, Arguments[2]);
		Result.Found = FString::Printf(TEXT("it is \"%s\""), *Seen.Text);
		return Result;
	}

	FExpectation ExpectVariant(FScriptContext&, const FScriptArguments& Arguments)
	{
		FExpectation Result;
		ULevelVariantSets* Sets = FindVariants(Arguments[0], Result.Error);
		if (Sets == nullptr)
		{
			return Result;
		}
		UVariantSet* Set = Sets->GetVariantSetByName(Arguments[1]);
		Result.bHolds = Set != nullptr && (Arguments.Num() < 3 || Set->GetVariantByName(Arguments[2]) != nullptr);
		Result.Found = Set != nullptr ? TEXT("the set has no such variant") : TEXT("there is no such set");
		return Result;
	}

	FExpectation ExpectAction(FScriptContext&, const FScriptArguments& Arguments)
	{
		const TArray<FHostMenuEntry> Menu = HostContentBrowser::GetContextMenu();
		return {Menu.ContainsByPredicate([&Arguments](const FHostMenuEntry& Entry) { return Entry.Label.Equals(Arguments[0]) || Entry.Name == ScriptObjects::ToName(Arguments[0]); }),
			FString(TEXT("the menu has: ")) + FString::JoinBy(Menu, TEXT(", "), [](const FHostMenuEntry& Entry) { return Entry.Label; }), FString()};
	}

	const FScriptCommand Commands[] = {
		{{TEXT("select"), TEXT("ASSET [ASSET ...]"), 1, FScriptSyntax::Any, TEXT("")}, &Select},
		{{TEXT("action"), TEXT("LABEL-OR-NAME"), 1, 1, TEXT("")}, &Action},
		{{TEXT("make asset"), TEXT("CLASS PATH"), 2, 2, TEXT("")}, &Make},
		{{TEXT("rename asset"), TEXT("ASSET PATH"), 2, 2, TEXT("")}, &Rename},
		{{TEXT("delete assets"), TEXT("ASSET [ASSET ...]"), 1, FScriptSyntax::Any, TEXT("")}, &Delete},
		{{TEXT("print menu"), TEXT(""), 0, 0, TEXT("")}, &PrintMenu},
		{{TEXT("print assets"), TEXT("[FOLDER]"), 0, 1, TEXT("")}, &PrintAssets},
		{{TEXT("print variants"), TEXT("ASSET"), 1, 1, TEXT("")}, &PrintVariants},
		{{TEXT("print property"), TEXT("OBJECT PROPERTY"), 2, 2, TEXT("")}, &PrintProperty},
	};

	const FScriptExpectation Expectations[] = {
		{{TEXT("asset"), TEXT("ASSET [class CLASS]"), 1, 1, TEXT("class")}, &ExpectAsset},
		{{TEXT("property"), TEXT("OBJECT PROPERTY VALUE"), 3, 3, TEXT("")}, &ExpectProperty},
		{{TEXT("variant"), TEXT("ASSET SET [VARIANT]"), 2, 3, TEXT("")}, &ExpectVariant},
		{{TEXT("action"), TEXT("LABEL-OR-NAME"), 1, 1, TEXT("")}, &ExpectAction},
	};
}

FScriptTopic ScriptTopics::GetAssets()
{
	return {AssetTopic::Commands, AssetTopic::Expectations};
}
