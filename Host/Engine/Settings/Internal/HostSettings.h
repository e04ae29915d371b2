// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Misc/Optional.h"
#include "Templates/SharedPointer.h"

class FHostDetailsView;
class SWidget;
class UObject;

/** The settings viewer as a person sees it: one page at a time, whose changes are saved as they are made. Nothing while the module Settings is not loaded. */
namespace HostSettings
{
	/** The address of a page, as ShowViewer() takes it. */
	struct FPageAddress
	{
		FName Container;
		FName Category;
		FName Section;

		bool operator==(const FPageAddress& Other) const = default;
		FString ToString() const { return Container.ToString() + TEXT("/") + Category.ToString() + TEXT("/") + Section.ToString(); }
	};

	/** The pages that there are: those of all settings classes, by address. */
	TArray<FPageAddress> GetAllPages();

	struct FOpenPage
	{
		FPageAddress Address;
		UObject* Settings = nullptr; // a class's default object
		TSharedPtr<FHostDetailsView> Details; // of the settings, as part of the content; never null
		TSharedPtr<SWidget> Content; // for HostSnapshot; never null
	};

	/** Unset while the viewer is closed. */
	TOptional<FOpenPage> GetOpenPage();

	/** @return whether the viewer was open. */
	bool Close();
}
