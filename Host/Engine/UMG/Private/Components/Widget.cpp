// Copyright Velmorant. All Rights Reserved.

#include "Components/Widget.h"

#include "Blueprint/UserWidget.h"
#include "Components/PanelWidget.h"
#include "Slate/SObjectWidget.h"
#include "Widgets/SNullWidget.h"
#include "Widgets/SWidget.h"

EVisibility UWidget::ConvertSerializedVisibilityToRuntime(ESlateVisibility Input)
{
	switch (Input)
	{
		case ESlateVisibility::Collapsed: return EVisibility::Collapsed;
		case ESlateVisibility::Hidden: return EVisibility::Hidden;
		case ESlateVisibility::HitTestInvisible: return EVisibility::HitTestInvisible;
		case ESlateVisibility::SelfHitTestInvisible: return EVisibility::SelfHitTestInvisible;
		default: return EVisibility::Visible;
	}
}

void UWidget::SetIsEnabled(bool bInIsEnabled)
{
	bIsEnabled = bInIsEnabled;
	if (const TSharedPtr<SWidget> Widget = GetCachedWidget())
	{
		Widget->SetEnabled(bInIsEnabled);
	}
}

void UWidget::SetToolTipText(const FText& InToolTipText)
{
	ToolTipText = InToolTipText;
	if (const TSharedPtr<SWidget> Widget = GetCachedWidget())
	{
		Widget->SetToolTipText(InToolTipText);
	}
}

void UWidget::SetVisibility(ESlateVisibility InVisibility)
{
	Visibility = InVisibility;
	if (const TSharedPtr<SWidget> Widget = GetCachedWidget())
	{
		Widget->SetVisibility(ConvertSerializedVisibilityToRuntime(InVisibility));
	}
}

bool UWidget::IsVisible() const
{
	return ConvertSerializedVisibilityToRuntime(Visibility).IsVisible();
}

UPanelWidget* UWidget::GetParent() const
{
	return Slot ? Slot->Parent.Get() : nullptr;
}

void UWidget::RemoveFromParent()
{
	if (UPanelWidget* Parent = GetParent())
	{
		Parent->RemoveChild(this);
	}
}

TSharedPtr<SWidget> UWidget::GetCachedWidget() const
{
	const TSharedPtr<SObjectWidget> Wrapper = MyGCWidget.Pin();
	return Wrapper.IsValid() ? TSharedPtr<SWidget>(Wrapper) : MyWidget.Pin();
}

TSharedRef<SWidget> UWidget::TakeWidget()
{
	if (const TSharedPtr<SWidget> Cached = GetCachedWidget())
	{
		return Cached.ToSharedRef();
	}
	const TSharedRef<SWidget> Inner = RebuildWidget();
	MyWidget = Inner;
	TSharedRef<SWidget> Public = Inner;
	if (UUserWidget* UserWidget = Cast<UUserWidget>(this))
	{
		const TSharedRef<SObjectWidget> Wrapper = SNew(SObjectWidget, UserWidget)[Inner];
		MyGCWidget = Wrapper;
		Public = Wrapper;
	}
	if (bIsVariable)
	{
		Public->SetTag(GetFName());
	}
	SynchronizeProperties();
	OnWidgetRebuilt();
	return Public;
}

void UWidget::SynchronizeProperties()
{
	if (const TSharedPtr<SWidget> Widget = GetCachedWidget())
	{
		Widget->SetEnabled(bIsEnabled);
		Widget->SetVisibility(ConvertSerializedVisibilityToRuntime(Visibility));
		Widget->SetToolTipText(ToolTipText);
	}
}

TSharedRef<SWidget> UWidget::RebuildWidget()
{
	ensureMsgf(false, TEXT("You must implement RebuildWidget() in your child class: %s"), *GetClass()->GetName());
	return SNullWidget::NullWidget;
}

void UWidget::ReleaseSlateResources(bool bReleaseChildren)
{
	Super::ReleaseSlateResources(bReleaseChildren);
	MyWidget.Reset();
}
