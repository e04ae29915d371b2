// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Blueprint/UserWidget.h"
#include "UObject/StrongObjectPtr.h"
#include "Widgets/SWidget.h"

#include <utility>

/** A panel on screen, in a bare layout of its widgets. It remembers the last call of one of its Blueprint events: its first argument, a number or a flag. */
class FBenchmarkPanel
{
public:
	/** The layout must fit its panel class. */
	FBenchmarkPanel(const char* Layout, const TCHAR* EventName);

	//~ What a person does. False when the panel does not let them.
	bool Click(const TCHAR* Widget);
	bool Type(const TCHAR* Widget, const TCHAR* Text);

	/** What the last call of the event told; forgets it: -1 until the event comes again. */
	int32 TakeEvent() { return std::exchange(*LastEvent, -1); }

	UUserWidget* Get() const { return Panel.Get(); }

private:
	TSharedRef<int32> LastEvent = MakeShared<int32>(-1);
	TStrongObjectPtr<UClass> Class;
	TStrongObjectPtr<UUserWidget> Panel;
	TSharedPtr<SWidget> Screen;
};
