// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "ToolkitTest.h"

class ULevelVariantSets;
class UVelmorantConfiguratorDataAsset;

/** Configurators and what is made of them, in a project of somebody who has signed in. */
class FConfiguratorTest : public FToolkitTest
{
protected:
	/** Starts with a selected project that has the configurators, given as JSON objects. */
	void StartWithConfigurators(std::string_view Configurators);

	/** Makes the configurator's data asset as the editor tools do; the save dialog is accepted. The outcome is taken. */
	UVelmorantConfiguratorDataAsset* CreateAsset(const TCHAR* Configurator);

	/** Null when there is no such asset in memory. */
	static UVelmorantConfiguratorDataAsset* FindAsset(const TCHAR* Path);

	/** Makes a data asset without data through the asset tools; like any new asset it is unsaved. */
	static UVelmorantConfiguratorDataAsset* MakeDataAssetAt(const TCHAR* Folder, const TCHAR* Name);

	/** Makes an empty asset through the asset tools, at "/Game/Folder/Name". */
	static ULevelVariantSets* MakeLevelVariantSets(const TCHAR* Folder, const TCHAR* Name);

	/** The tree of variant sets, in order: "Set: variant, variant". */
	static std::vector<std::string> Describe(ULevelVariantSets* LevelVariantSets);

	/** Of the asset that the data asset's path names; it must be loaded. */
	static std::vector<std::string> DescribeVariants(const UVelmorantConfiguratorDataAsset* Asset);

	/** Rooms of the data asset: "Room/Group: product, product". */
	static std::vector<std::string> DescribeRooms(const UVelmorantConfiguratorDataAsset* Asset);
};

/** A configurator with one room of one group of two products. */
extern const char* const OneRoomConfigurator;
