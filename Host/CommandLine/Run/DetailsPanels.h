// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/Array.h"
#include "Containers/UnrealString.h"
#include "HostDetailsView.h"
#include "Templates/UniquePtr.h"

/**
 * The details panels that a script has open, each under a name; names ignore case.
 *
 * To be emptied before the editor goes down.
 */
class FDetailsPanels
{
public:
	/** Shows other objects in the panel of that name, which opens when it is not there yet. */
	void Show(const FString& Name, const TArray<UObject*>& Objects);

	/** Null when there is no such panel. Good until panels open or close. */
	FHostDetailsView* Find(const FString& Name) const;

	/** In order of opening. */
	TArray<FString> GetNames() const;

	/** @return whether there was such a panel. */
	bool Close(const FString& Name);
	void CloseAll() { Panels.Empty(); }

private:
	struct FPanel
	{
		FString Name;
		TUniquePtr<FHostDetailsView> View;
	};

	int32 IndexOf(const FString& Name) const;

	TArray<FPanel> Panels;
};
