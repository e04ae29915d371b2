// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Layout/Children.h"
#include "Layout/Visibility.h"
#include "Misc/Attribute.h"
#include "Styling/SlateColor.h"
#include "Types/SlateEnums.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SlateControlledConstruction.h"

class FHostWidgetAccess;
struct FHostInput;
struct FHostInputResult;
struct FHostWidgetDescription;
struct FHostWidgetLook;
struct FHostWidgetPart;

/**
 * One node of the tree that a person sees.
 *
 * Host: the tree is kept, and drawn by others. What a person could see of a widget and do to it goes through the host functions below,
 * which only the host's own headers reach.
 */
class SLATECORE_API SWidget : public FSlateControlledConstruction, public TSharedFromThis<SWidget>
{
public:
	virtual ~SWidget() override;

	/** Takes over what every widget has; SNew calls it before Construct(). */
	void SWidgetConstruct(const FSlateBaseNamedArgs& Args, const ANSICHAR* InTypeName);

	virtual FChildren* GetChildren() = 0;

	EVisibility GetVisibility() const { return Visibility.Get(EVisibility::Visible); }
	virtual void SetVisibility(TAttribute<EVisibility> InVisibility) { Visibility = MoveTemp(InVisibility); }

	/** This widget's own switch; a disabled parent disables it as well without changing this. */
	bool IsEnabled() const { return EnabledState.Get(true); }
	void SetEnabled(TAttribute<bool> InEnabledState) { EnabledState = MoveTemp(InEnabledState); }

	void SetToolTipText(const TAttribute<FText>& InToolTipText) { ToolTipText = InToolTipText; }

	float GetRenderOpacity() const { return RenderOpacity; }

	FName GetTag() const { return Tag; }
	void SetTag(FName InTag) { Tag = InTag; }

	/** The widget class as SNew was given it. */
	FName GetType() const { return TypeOfWidget; }
	FString GetTypeAsString() const { return TypeOfWidget.ToString(); }

protected:
	SWidget();

	//~ Host: what can be seen of this widget, and what a person does to it. See HostWidget.h.
	friend class FHostWidgetAccess;
	virtual void DescribeToHost(FHostWidgetDescription& OutDescription) const;
	virtual FHostInputResult TakeHostInput(const FHostInput& Input);
	virtual void ListHostOptions(TArray<TSharedRef<SWidget>>& OutOptions);
	virtual void DescribeLookToHost(FHostWidgetLook& OutLook) const;
	virtual void ListPartsForHost(TArray<FHostWidgetPart>& OutParts);

private:
	TAttribute<EVisibility> Visibility = EVisibility::Visible;
	TAttribute<bool> EnabledState = true;
	TAttribute<FText> ToolTipText;
	float RenderOpacity = 1.0f;
	FName Tag;
	FName TypeOfWidget;
};
