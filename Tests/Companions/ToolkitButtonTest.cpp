// Copyright Velmorant. All Rights Reserved.

#include "TestPanel.h"
#include "ToolkitTest.h"
#include "VlmButton.h"

using testing::HasSubstr;

namespace ToolkitButtonTest
{
	const char* const Layout = R"({
		"ParentClass": "/Script/VelmorantProEditor.VlmEWProjectSelector",
		"Tree": {"Class": "VerticalBox", "Children": [
			{"Class": "EditableText", "Name": "ProjectKeyCode"}, {"Class": "EditableText", "Name": "ProjectName"},
			{"Class": "ComboBoxString", "Name": "ProjectSelection"}, {"Class": "CheckBox", "Name": "ForceUpdateCheckBox"},
			{"Class": "VlmButton", "Name": "SetAsDefault", "Properties": {"Label": "Set"}},
			{"Class": "VlmButton", "Name": "CopyApyKey", "Properties": {"Label": "Copy"}},
			{"Class": "VlmButton", "Name": "Toggle", "Properties": {"Label": "Units", "ButtonID": "UnitsButton", "bSelectable": true}}]},
		"Calls": {
			"Toggle.OnButtonClicked": [{"Set": "ProjectKeyCode.Text", "To": "{ButtonID}"}],
			"Toggle.OnSelectionStateChanged": [{"Set": "ProjectName.Text", "To": "{bSelected}"}]}})";
}

using namespace ToolkitButtonTest;

class ToolkitButton : public FToolkitTest
{
};

TEST_F(ToolkitButton, TellsItsIdentifierWithEveryClick)
{
	StartEditor();
	FTestPanel Panel(Layout, {});
	Panel.Show();
	EXPECT_EQ(Panel.Read(TEXT("Toggle")), "Units");
	Panel.Click(TEXT("Units"));
	EXPECT_EQ(Panel.Read(TEXT("ProjectKeyCode")), "UnitsButton");
}

TEST_F(ToolkitButton, StaysSelectedUntilClickedAgain)
{
	StartEditor();
	FTestPanel Panel(Layout, {});
	Panel.Show();
	const UVlmButton* Button = Panel.Find<UVlmButton>(TEXT("Toggle"));
	EXPECT_THAT(Panel.Snapshot(), HasSubstr("button Toggle [Units]\n"));
	Panel.Click(TEXT("Toggle"));
	EXPECT_TRUE(Button->IsButtonSelected());
	EXPECT_EQ(Panel.Read(TEXT("ProjectName")), "true");
	EXPECT_THAT(Panel.Snapshot(), HasSubstr("button Toggle [Units] (selected)\n")) << "a person sees it";
	Panel.Click(TEXT("Toggle"));
	EXPECT_FALSE(Button->IsButtonSelected());
	EXPECT_EQ(Panel.Read(TEXT("ProjectName")), "false");
	Panel.Click(TEXT("Set"));
	EXPECT_FALSE(Panel.Find<UVlmButton>(TEXT("SetAsDefault"))->IsButtonSelected()) << "this one cannot be selected";
}

TEST_F(ToolkitButton, TellsOnlyOfChangesItIsAskedToTell)
{
	StartEditor();
	FTestPanel Panel(Layout, {});
	Panel.Show();
	UVlmButton* Button = Panel.Find<UVlmButton>(TEXT("Toggle"));
	Button->SetSelectionState(true, false);
	EXPECT_TRUE(Button->IsButtonSelected());
	EXPECT_THAT(Panel.Snapshot(), HasSubstr("(selected)"));
	EXPECT_EQ(Panel.Read(TEXT("ProjectName")), "") << "quietly";
	Button->SetSelectionState(true, true);
	EXPECT_EQ(Panel.Read(TEXT("ProjectName")), "") << "nothing has changed";
	Button->SetSelectionState(false, true);
	EXPECT_EQ(Panel.Read(TEXT("ProjectName")), "false");
}
