// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Input/Reply.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

class UVelmorantUser;

/**
 * Who is signed in, and the way to the developer panel, where one signs in and chooses a project.
 *
 * Made each time the menu opens: it shows the state of that moment.
 */
class SVelmorantUserOptions : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SVelmorantUserOptions)
		{
		}
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs);

private:
	TSharedRef<SWidget> MakeUser(const UVelmorantUser& User);
	TSharedRef<SWidget> MakeNobody();

	/** Two lines: who it is, and the button that opens the developer panel. */
	TSharedRef<SWidget> MakePanel(const TSharedRef<SWidget>& Who, const FText& ButtonLabel);
	TSharedRef<SWidget> MakeLine(FName Icon, const TSharedRef<SWidget>& Content);
	TSharedRef<SWidget> MakeText(FName Name, const FText& Text);

	FReply OpenDeveloperPanel();
};
