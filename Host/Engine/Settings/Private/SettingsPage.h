// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"

class FHostDetailsView;
class SWidget;
class UDeveloperSettings;

/** What a settings page looks like. */
namespace SettingsPage
{
	/** Where the page is, and the details of its settings. */
	TSharedRef<SWidget> Make(const UDeveloperSettings& Settings, FHostDetailsView& Details);
}
