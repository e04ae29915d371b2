// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "QtHeaders.h"

#include "AssetRegistry/AssetData.h"

#include <functional>

class IWindowServices;

/** What a person does to assets. What came of it is told in a sentence. */
class FContentActions
{
public:
	explicit FContentActions(IWindowServices& InServices);

	std::function<void(const QString& Text, bool bGood)> OnTold;

	/** Makes an asset as one line of the editor's menu of new assets does. */
	void Create(const FName& FactoryClass, const FString& Category, const FString& Folder);

	bool Rename(const FAssetData& Asset, const FString& Name);
	void Delete(const TArray<FAssetData>& Assets);
	void Save(const TArray<FAssetData>& Assets);

	/** A level is opened, a panel shown in a tab, variants in the variant manager; everything else shows in the details. */
	void Open(const FAssetData& Asset);

private:
	void OpenLevel(const FAssetData& Asset);
	bool MayLeaveLevel();
	void OpenLoaded(UObject* Asset);

	IWindowServices& Services;
};
