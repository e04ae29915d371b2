// Copyright Velmorant. All Rights Reserved.

#include "Support/WidgetText.h"

#include "Layout/Children.h"
#include "Widgets/SWidget.h"
#include "Widgets/Text/STextBlock.h"

namespace VelmorantTests
{
	void VisitWidgets(const TSharedRef<SWidget>& Widget, TFunctionRef<void(const TSharedRef<SWidget>&)> Visitor)
	{
		Visitor(Widget);
		FChildren* Children = Widget->GetChildren();
		for (int32 Index = 0; Children && Index < Children->Num(); ++Index)
		{
			VisitWidgets(Children->GetChildAt(Index), Visitor);
		}
	}
}

TArray<FString> VelmorantTests::CollectTexts(const TSharedRef<SWidget>& Widget)
{
	TArray<FString> Texts;
	VisitWidgets(Widget, [&Texts](const TSharedRef<SWidget>& Each) {
		if (Each->GetType() == FName(TEXT("STextBlock")))
		{
			const FString Text = StaticCastSharedRef<STextBlock>(Each)->GetText().ToString();
			if (!Text.IsEmpty())
			{
				Texts.Add(Text);
			}
		}
	});
	return Texts;
}

bool VelmorantTests::IsTextEnabled(const TSharedRef<SWidget>& Widget, const TCHAR* Text)
{
	if (!Widget->IsEnabled())
	{
		return false;
	}
	bool bFound = Widget->GetType() == FName(TEXT("STextBlock")) && StaticCastSharedRef<STextBlock>(Widget)->GetText().ToString().Equals(Text);
	FChildren* Children = Widget->GetChildren();
	for (int32 Index = 0; Children && Index < Children->Num() && !bFound; ++Index)
	{
		bFound = IsTextEnabled(Children->GetChildAt(Index), Text);
	}
	return bFound;
}

int32 VelmorantTests::CountWidgets(const TSharedRef<SWidget>& Widget, const TCHAR* Class)
{
	int32 Number = 0;
	VisitWidgets(Widget, [&Number, Class](const TSharedRef<SWidget>& Each) {
		FString Type = Each->GetTypeAsString();
		Type.Split(TEXT("<"), &Type, nullptr);
		Number += Type.Equals(Class) ? 1 : 0;
	});
	return Number;
}
