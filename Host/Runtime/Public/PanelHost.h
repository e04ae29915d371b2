// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/Array.h"
#include "Containers/UnrealString.h"
#include "Templates/SharedPointer.h"
#include "UObject/NameTypes.h"
#include "UObject/StrongObjectPtr.h"

class SWidget;
class UUserWidget;

/**
 * The panels that a person has open, each under a short name: for programs and tests that have no window.
 *
 * To be destroyed, or emptied with CloseAll(), before the editor goes down. Opening a panel constructs it as a tab would; closing
 * destructs it.
 */
class FPanelHost
{
public:
	struct FPanel
	{
		FString Name;
		TStrongObjectPtr<UUserWidget> Widget;
		TSharedPtr<SWidget> Content; // never null
		FName Tab; // of a panel that stands in an editor tab; None for others
	};

	FPanelHost() = default;
	~FPanelHost();
	FPanelHost(const FPanelHost&) = delete;
	FPanelHost& operator=(const FPanelHost&) = delete;

	/**
	 * Opens the panel of a widget blueprint.
	 * @param AssetPath "/Plugin/Folder/Panel", also with ".Panel" behind it
	 * @param Name      empty: the asset's own name. Names ignore case; one that is in use is refused
	 * @return null with a reason
	 */
	UUserWidget* Open(const FString& AssetPath, const FString& Name, FString& OutReason);

	/** @return whether there was such a panel. */
	bool Close(const FString& Name);
	void CloseAll();

	/**
	 * Null when there is no such panel. Good until panels are opened or closed. A tab that something else opened, such as a menu entry,
	 * is a panel from then on, under its label.
	 */
	const FPanel* Find(const FString& Name);

	/** In order of opening. */
	const TArray<FPanel>& GetAll() const { return Panels; }

private:
	void TakeOverTab(const FString& Name);
	void DropClosedTabs();

	TArray<FPanel> Panels;
};
