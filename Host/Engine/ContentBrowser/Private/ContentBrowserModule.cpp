// Copyright Velmorant. All Rights Reserved.

#include "ContentBrowserModule.h"

#include "AssetRegistry/AssetData.h"
#include "ContentBrowserState.h"
#include "HostAssetTools.h"
#include "HostState.h"
#include "UObject/Object.h"

namespace ContentBrowserModule
{
	/** A browser without a window: shown means selected, and remembered. */
	class FContentBrowser : public IContentBrowserSingleton
	{
	public:
		//~ Begin IContentBrowserSingleton
		virtual void SyncBrowserToAssets(const TArray<FAssetData>& AssetDataList, bool bAllowLockedBrowsers, bool bFocusContentBrowser,
			const FName& InstanceName, bool bNewSpawnBrowser) override
		{
			FContentBrowserState& State = FContentBrowserState::Get();
			State.SyncHistory.Add({AssetDataList, bAllowLockedBrowsers, bFocusContentBrowser, InstanceName, bNewSpawnBrowser});
			State.Selection = AssetDataList;
		}

		virtual void SyncBrowserToAssets(const TArray<UObject*>& AssetList, bool bAllowLockedBrowsers, bool bFocusContentBrowser,
			const FName& InstanceName, bool bNewSpawnBrowser) override
		{
			TArray<FAssetData> Assets;
			for (const UObject* Asset : AssetList)
			{
				if (IsValid(Asset))
				{
					Assets.Emplace(Asset);
				}
			}
			SyncBrowserToAssets(Assets, bAllowLockedBrowsers, bFocusContentBrowser, InstanceName, bNewSpawnBrowser);
		}

		//~ End IContentBrowserSingleton
	};

	THostState<FContentBrowserState> State;
}

FContentBrowserState& FContentBrowserState::Get()
{
	return ContentBrowserModule::State.Get();
}

FContentBrowserModule::FContentBrowserModule() = default;
FContentBrowserModule::~FContentBrowserModule() = default;

void FContentBrowserModule::StartupModule()
{
	ContentBrowser = MakeUnique<ContentBrowserModule::FContentBrowser>();
	HostAssetTools::SetAssetShower([](const TArray<UObject*>& Assets) { IContentBrowserSingleton::Get().SyncBrowserToAssets(Assets); });
}

IContentBrowserSingleton& FContentBrowserModule::Get() const
{
	check(ContentBrowser.IsValid());
	return *ContentBrowser;
}

IContentBrowserSingleton& IContentBrowserSingleton::Get()
{
	return FModuleManager::LoadModuleChecked<FContentBrowserModule>(FName("ContentBrowser")).Get();
}

IMPLEMENT_MODULE(FContentBrowserModule, ContentBrowser)
