// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "HostWidget.h"
#include "TemporaryFolder.h"
#include "TestPrinters.h"

#include <gtest/gtest.h>

#include <string>

class UUserWidget;

/** A running editor with a user interface, on a project folder of its own. Everything is gone again after the test. */
class FUiTestEditor : public ::testing::Test
{
protected:
	FUiTestEditor();
	virtual ~FUiTestEditor() override;

	/** Takes the editor down and brings another one up on the same project. */
	void Restart();

	/** Lets time pass, then ticks once and, if so asked by the environment, collects garbage. */
	void Wait(double Seconds = 0.0) const;

	/** Writes a layout asset: "/Game/<Name>". The document's braces are left out. */
	void WriteLayout(const std::string& Name, const std::string& Members, const std::string& Class = "/Script/UMGEditor.WidgetBlueprint") const;

	/** A panel of a layout that was written; null, with the problems in Problems(), when it is refused. */
	UUserWidget* MakePanel(const TCHAR* Name) const;

	/** All problems reported since the editor came up, one a line, without the folder. */
	std::string Problems() const;

	/** What was wrong with an input; empty when it was taken. */
	static std::string Refusal(const FHostInputResult& Result);

	FTemporaryFolder Project;

private:
	void BringUp() const;
	void TakeDown() const;
};

std::string Utf8(const FString& Text);
