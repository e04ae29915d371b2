// Copyright Velmorant. All Rights Reserved.

#include "Framework/Commands/Commands.h"
#include "Framework/Commands/UICommandList.h"
#include "UiTestEditor.h"

#define LOCTEXT_NAMESPACE "CommandsTest"

namespace CommandsTest
{
	class FTestCommands : public TCommands<FTestCommands>
	{
	public:
		FTestCommands()
			: TCommands(FName(TEXT("TestCommands")), LOCTEXT("Desc", "Test"), NAME_None, FName(TEXT("TestStyle")))
		{
		}

		virtual void RegisterCommands() override
		{
			++NumRegistered;
			UI_COMMAND(OpenPanel, "Open Panel", "Opens the panel", EUserInterfaceActionType::Button, FInputChord());
			UI_COMMAND(SaveAll, "Save All", "Saves", EUserInterfaceActionType::Button, FInputChord());
		}

		TSharedPtr<FUICommandInfo> OpenPanel;
		TSharedPtr<FUICommandInfo> SaveAll;

		static inline int32 NumRegistered = 0;
	};
}

#undef LOCTEXT_NAMESPACE

using CommandsTest::FTestCommands;
using CommandSets = FUiTestEditor;

TEST_F(CommandSets, CarryTheirTextsIconsAndKeys)
{
	FTestCommands::Register();
	const TSharedPtr<FUICommandInfo> Command = FTestCommands::Get().OpenPanel;
	EXPECT_EQ(Command->GetCommandName(), FName(TEXT("OpenPanel")));
	EXPECT_EQ(Command->GetLabel().ToString(), TEXT("Open Panel"));
	EXPECT_EQ(Utf8(FTextInspector::GetNamespace(Command->GetLabel()).Get(FString())), "CommandsTest");
	EXPECT_EQ(Utf8(FTextInspector::GetKey(Command->GetLabel()).Get(FString())), "OpenPanel");
	EXPECT_EQ(Utf8(FTextInspector::GetKey(Command->GetDescription()).Get(FString())), "OpenPanel_ToolTip");
	EXPECT_EQ(Command->GetIcon().GetStyleSetName(), FName(TEXT("TestStyle")));
	EXPECT_EQ(Command->GetIcon().GetStyleName(), FName(TEXT("TestCommands.OpenPanel")));
	EXPECT_EQ(FInputBindingManager::Get().FindCommandInContext(FName(TEXT("TestCommands")), FName(TEXT("OpenPanel"))), Command);
}

TEST_F(CommandSets, RegisterOnceInEachEditor)
{
	FTestCommands::NumRegistered = 0;
	FTestCommands::Register();
	FTestCommands::Register();
	EXPECT_EQ(FTestCommands::NumRegistered, 1);
	Restart();
	EXPECT_FALSE(FTestCommands::IsRegistered()) << "the set went down with its editor";
	FTestCommands::Register();
	EXPECT_EQ(FTestCommands::NumRegistered, 2);
}
