// Copyright Velmorant. All Rights Reserved.

#include "SettingsPage.h"

#include "Engine/DeveloperSettings.h"
#include "HostDetailsView.h"
#include "UObject/Class.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/Text/STextBlock.h"

namespace SettingsPage
{
	TSharedRef<SWidget> Make(const UDeveloperSettings& Settings, FHostDetailsView& Details)
	{
		const FString Where = Settings.GetContainerName().ToString() + TEXT(" - ") + Settings.GetCategoryName().ToString();
		// clang-format off
		return SNew(SVerticalBox)
			+ SVerticalBox::Slot()
			.AutoHeight()
			[
				SNew(STextBlock).Text(FText::FromString(Where + TEXT(" - ") + Settings.GetClass()->GetDisplayNameText().ToString()))
			]
			+ SVerticalBox::Slot()
			[
				Details.GetWidget()
			];
		// clang-format on
	}
}
