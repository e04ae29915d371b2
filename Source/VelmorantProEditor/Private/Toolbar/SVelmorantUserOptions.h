// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Framework/SlateDelegates.h"
#include "Misc/Optional.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

/** Who is signed in, and the way to the developer panel, where one signs in and chooses a project. */
class SVelmorantUserOptions : public SCompoundWidget
{
public:
	/** As the service knows them. */
	struct FUser
	{
		FString Name;
		FString Email;
	};

	// clang-format off
	SLATE_BEGIN_ARGS(SVelmorantUserOptions) {}
		/** Unset while nobody is signed in. */
		SLATE_ARGUMENT(TOptional<FUser>, User)
		SLATE_EVENT(FOnClicked, OnOpenDeveloperPanel)
	SLATE_END_ARGS()
	// clang-format on

	void Construct(const FArguments& InArgs);

private:
	TSharedRef<SWidget> MakeUser(const FUser& User);
	TSharedRef<SWidget> MakeLine(FName Icon, const TSharedRef<SWidget>& Content);
	TSharedRef<SWidget> MakeText(FName Name, const FText& Text);
};
