// Copyright Velmorant. All Rights Reserved.

#include "Widgets/SWidget.h"

#include "HostWidget.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/SCompoundWidget.h"
#include "Widgets/SLeafWidget.h"
#include "Widgets/SPanel.h"

namespace SlateWidget
{
	class SNullWidgetContent : public SLeafWidget
	{
	public:
		SLATE_BEGIN_ARGS(SNullWidgetContent)
			{
			}
		SLATE_END_ARGS()

	protected:
		virtual void DescribeToHost(FHostWidgetDescription& OutDescription) const override { OutDescription.bTransparent = true; }
	};

	/** Visits the texts that show in a widget and below it, in order, until the visitor returns false. @return whether it never did */
	bool VisitTexts(SWidget& Widget, TFunctionRef<bool(const FString&)> Visit, TFunctionRef<bool(const FHostWidgetDescription&)> IsPassedOver)
	{
		const FHostWidgetDescription Description = FHostWidgetAccess::Describe(Widget);
		if (!Description.bVisible || Description.bPassword || Description.Role == TEXT("swatch")) // a colour is no text
		{
			return true;
		}
		const FString Own = Description.Value.IsSet() ? Description.Value.GetValue() : Description.Label;
		if (!Own.IsEmpty() && !Visit(Own))
		{
			return false;
		}
		if (Description.bSealed)
		{
			return true;
		}
		for (const TSharedRef<SWidget>& Child : FHostWidgetAccess::ChildrenOf(Widget))
		{
			if (!IsPassedOver(FHostWidgetAccess::Describe(*Child)) && !VisitTexts(*Child, Visit, IsPassedOver))
			{
				return false;
			}
		}
		return true;
	}
}

TSharedRef<SWidget> SNullWidget::NullWidget = MakeShared<SlateWidget::SNullWidgetContent>();

FNoChildren FNoChildren::NoChildrenInstance;

TSharedRef<SWidget> FNoChildren::GetChildAt(int32)
{
	checkf(false, TEXT("A widget without children was asked for one."));
	return SNullWidget::NullWidget;
}

const FSlotBase& FNoChildren::GetSlotAt(int32) const
{
	checkf(false, TEXT("A widget without children was asked for a slot."));
	static const FSlotBase NoSlot;
	return NoSlot;
}

TSharedRef<SWidget> FSingleWidgetChildrenWithBasicLayoutSlot::GetChildAt(int32)
{
	return GetWidget();
}

SWidget::SWidget() = default;
SWidget::~SWidget() = default;

void SWidget::SWidgetConstruct(const FSlateBaseNamedArgs& Args, const ANSICHAR* InTypeName)
{
	ToolTipText = Args._ToolTipText;
	EnabledState = Args._IsEnabled;
	Visibility = Args._Visibility;
	RenderOpacity = Args._RenderOpacity;
	Tag = Args._Tag;
	TypeOfWidget = FName(InTypeName);
}

void SWidget::DescribeToHost(FHostWidgetDescription&) const
{
}

FHostInputResult SWidget::TakeHostInput(const FHostInput&)
{
	return FHostInputResult::Refused(TEXT("takes no such input"));
}

void SWidget::ListHostOptions(TArray<TSharedRef<SWidget>>&)
{
}

void SWidget::DescribeLookToHost(FHostWidgetLook&) const
{
}

void SWidget::ListPartsForHost(TArray<FHostWidgetPart>& OutParts)
{
	const FChildren* Children = GetChildren();
	for (int32 Index = 0; Index < Children->Num(); ++Index)
	{
		OutParts.Add(FHostWidgetPart::FromSlot(Children->GetSlotAt(Index)));
	}
}

void SPanel::DescribeToHost(FHostWidgetDescription& OutDescription) const
{
	OutDescription.Role = TEXT("panel");
	OutDescription.bTransparent = true;
}

void SCompoundWidget::DescribeToHost(FHostWidgetDescription& OutDescription) const
{
	OutDescription.Role = TEXT("group");
	OutDescription.bTransparent = true;
}

FHostWidgetDescription FHostWidgetAccess::Describe(const SWidget& Widget)
{
	FHostWidgetDescription Description;
	Description.Name = Widget.Tag;
	Description.ToolTip = Widget.ToolTipText.Get(FText::GetEmpty()).ToString();
	Description.bEnabled = Widget.IsEnabled();
	Description.bVisible = Widget.GetVisibility().IsVisible();
	Widget.DescribeToHost(Description);
	if (!Description.Name.IsNone())
	{
		Description.bTransparent = false; // somebody gave it a name to be found by
	}
	return Description;
}

FHostWidgetPart FHostWidgetPart::FromSlot(const FSlotBase& Slot, EHostPart Kind)
{
	FHostWidgetPart Part{Slot.GetWidget(), Kind, Slot.GetPadding(), Slot.GetHorizontalAlignment(), Slot.GetVerticalAlignment(), {}, 0.0f};
	if (const FBoxPanelSlot* Box = dynamic_cast<const FBoxPanelSlot*>(&Slot))
	{
		Part.MaxSize = Box->MaxSize.Get();
		if (Box->SizeParam.SizeRule != FSizeParam::SizeRule_Auto)
		{
			Part.Fill = Box->SizeParam.Value.Get();
		}
	}
	return Part;
}

FHostWidgetLook FHostWidgetAccess::LookOf(const SWidget& Widget)
{
	FHostWidgetLook Look;
	Look.Opacity = Widget.RenderOpacity;
	Look.bCollapsed = Widget.GetVisibility() == EVisibility::Collapsed;
	Widget.DescribeLookToHost(Look);
	return Look;
}

TArray<FHostWidgetPart> FHostWidgetAccess::PartsOf(const TSharedRef<SWidget>& Widget)
{
	TArray<FHostWidgetPart> Parts;
	Widget->ListPartsForHost(Parts);
	return Parts;
}

FHostInputResult FHostWidgetAccess::Give(const TSharedRef<SWidget>& Widget, const FHostInput& Input)
{
	const TSharedRef<SWidget> HeldWhileHandling = Widget;
	return HeldWhileHandling->TakeHostInput(Input);
}

TArray<FString> FHostWidgetAccess::OptionsOf(const TSharedRef<SWidget>& Widget)
{
	TArray<FString> Texts;
	for (const TSharedRef<SWidget>& Option : OptionWidgetsOf(Widget))
	{
		Texts.Add(TextOf(*Option));
	}
	return Texts;
}

TArray<TSharedRef<SWidget>> FHostWidgetAccess::OptionWidgetsOf(const TSharedRef<SWidget>& Widget)
{
	const TSharedRef<SWidget> HeldWhileHandling = Widget;
	TArray<TSharedRef<SWidget>> Options;
	HeldWhileHandling->ListHostOptions(Options);
	return Options;
}

FString FHostWidgetAccess::TextOf(SWidget& Widget)
{
	FString Text;
	const auto Append = [&Text](const FString& Own) {
		Text += Text.IsEmpty() ? Own : TEXT(" ") + Own;
		return true;
	};
	SlateWidget::VisitTexts(Widget, Append, [](const FHostWidgetDescription&) { return false; });
	return Text;
}

bool FHostWidgetAccess::ShowsText(SWidget& Widget, const FString& Text)
{
	const auto IsAnother = [&Text](const FString& Own) { return !Own.Equals(Text); };
	return !SlateWidget::VisitTexts(Widget, IsAnother, [](const FHostWidgetDescription& Child) { return Child.Role == TEXT("item"); });
}

TArray<TSharedRef<SWidget>> FHostWidgetAccess::ChildrenOf(SWidget& Widget)
{
	TArray<TSharedRef<SWidget>> Result;
	FChildren* Children = Widget.GetChildren();
	for (int32 Index = 0; Index < Children->Num(); ++Index)
	{
		Result.Add(Children->GetChildAt(Index));
	}
	return Result;
}
