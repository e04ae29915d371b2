// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "QtHeaders.h"

#include "Containers/UnrealString.h"
#include "UObject/NameTypes.h"

#include <functional>

class IWindowServices;

/** The editor's own menus about assets, as Qt's. */
namespace ContentMenus
{
	using FCreate = std::function<void(const FName& FactoryClass, const FString& Category)>;

	/** Takes everything out of a menu that is filled anew each time it opens. */
	void Clear(QMenu& Menu);

	/** Kinds of asset that can be made, by category. */
	void FillAdd(QMenu& Menu, IWindowServices& Services, const FCreate& Create);

	/** What the editor's menu for the selected assets has. @return whether there was anything */
	bool FillContext(QMenu& Menu, IWindowServices& Services);
}
