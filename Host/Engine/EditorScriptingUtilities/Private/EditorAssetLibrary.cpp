// Copyright Velmorant. All Rights Reserved.

#include "EditorAssetLibrary.h"

#include "HostPackages.h"
#include "Modules/ModuleManager.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"

DEFINE_LOG_CATEGORY_STATIC(LogEditorScripting, Log, All);

namespace EditorAssetLibrary
{
	/** "/Path/Asset" of any form of the path; unset, with the reason, when it is none. */
	TOptional<FString> ToPackageName(const FString& AssetPath, FString& OutReason)
	{
		FString Path = AssetPath.TrimStartAndEnd();
		int32 FirstQuote = INDEX_NONE;
		if (Path.FindChar(TEXT('\''), FirstQuote) && Path.EndsWith(TEXT("'")) && Path.Len() > FirstQuote + 1)
		{
			Path = Path.Mid(FirstQuote + 1, Path.Len() - FirstQuote - 2);
		}
		FString PackageName = Path;
		FString ObjectName;
		if (Path.Split(TEXT("."), &PackageName, &ObjectName) && (ObjectName.Contains(TEXT(".")) || ObjectName.Contains(TEXT(":"))))
		{
			OutReason = TEXT("it names a part of an asset");
			return NullOpt;
		}
		if (!HostPackages::IsValidPackageName(PackageName, &OutReason))
		{
			return NullOpt;
		}
		FString ShortName;
		PackageName.Split(TEXT("/"), nullptr, &ShortName, ESearchCase::CaseSensitive, ESearchDir::FromEnd);
		if (!ObjectName.IsEmpty() && ObjectName != ShortName)
		{
			OutReason = TEXT("package and asset have different names");
			return NullOpt;
		}
		return PackageName;
	}
}

UObject* UEditorAssetLibrary::LoadAsset(const FString& AssetPath)
{
	FString Reason;
	const TOptional<FString> PackageName = EditorAssetLibrary::ToPackageName(AssetPath, Reason);
	if (!PackageName.IsSet())
	{
		UE_LOG(LogEditorScripting, Error, TEXT("LoadAsset. '%s' is not the path of an asset: %s."), *AssetPath, *Reason);
		return nullptr;
	}
	UObject* Asset = HostPackages::LoadAsset(PackageName.GetValue());
	if (Asset == nullptr)
	{
		UE_LOG(LogEditorScripting, Error, TEXT("LoadAsset. The asset '%s' could not be loaded."), *AssetPath);
	}
	return Asset;
}

bool UEditorAssetLibrary::SaveLoadedAsset(UObject* AssetToSave, bool bOnlyIfIsDirty)
{
	UPackage* Package = IsValid(AssetToSave) ? AssetToSave->GetPackage() : nullptr;
	if (Package == nullptr || HostPackages::FindMainAsset(Package) != AssetToSave)
	{
		UE_LOG(LogEditorScripting, Error, TEXT("SaveLoadedAsset. '%s' is no asset."), *(AssetToSave ? AssetToSave->GetPathName() : FString(TEXT("None"))));
		return false;
	}
	if (bOnlyIfIsDirty && !Package->IsDirty())
	{
		return true;
	}
	const bool bSaved = HostPackages::Save(Package).Succeeded();
	if (!bSaved)
	{
		UE_LOG(LogEditorScripting, Error, TEXT("SaveLoadedAsset. The asset '%s' could not be saved."), *AssetToSave->GetPathName());
	}
	return bSaved;
}

IMPLEMENT_MODULE(FDefaultModuleImpl, EditorScriptingUtilities)
