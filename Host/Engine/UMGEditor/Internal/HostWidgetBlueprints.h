// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"

class UClass;
class UObject;

/** Widget blueprints as files: `<Name>.uasset.json` with a widget layout in it. */
namespace HostWidgetBlueprints
{
	/** Reasons why a layout does not fit this kind of asset; empty for none. */
	using FCheckParent = FString (*)(const UClass& ParentClass);

	/** Reads the assets of one class of widget blueprints. Once, while the program is loaded. */
	void RegisterReader(const TCHAR* ClassPath, UClass* (*AssetClass)(), FCheckParent CheckParent = nullptr);
}
