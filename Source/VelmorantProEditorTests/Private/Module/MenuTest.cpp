// Copyright Velmorant. All Rights Reserved.

#include "CoreMinimal.h"
#include "Engine/DeveloperSettings.h"
#include "Framework/Commands/InputBindingManager.h"
#include "Framework/Commands/UICommandInfo.h"
#include "Support/TestFlags.h"
#include "Support/WidgetText.h"
#include "ToolMenus.h"
#include "VelmorantEditorUtilitiesLibrary.h"
#include "VelmorantProSettings.h"
#include "VelmorantProUISettings.h"
#include "VelmorantSDKSettings.h"

#if WITH_DEV_AUTOMATION_TESTS

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantModuleCommandsTest, "Velmorant.Module.Commands", VelmorantTests::Flags)

bool FVelmorantModuleCommandsTest::RunTest(const FString&)
{
	struct FExpected
	{
		const TCHAR* Name;
		const TCHAR* Label;
		const TCHAR* Description;
	};
	const FExpected AllExpected[] = {
		{TEXT("VelmorantCommand_OpenMenu"), TEXT("Register User"), TEXT("Open Velmorant Options")},
		{TEXT("VelmorantPro_OpenProSettings"), TEXT("Velmorant Pro Settings"), TEXT("Open Velmorant Pro Settings panel")},
		{TEXT("VelmorantPro_OpenProUISettings"), TEXT("Velmorant Pro UI Settings"), TEXT("Open Velmorant Pro UI Settings panel")},
		{TEXT("VelmorantSDK_OpenSDKSettings"), TEXT("Velmorant SDK Settings"), TEXT("Open Velmorant SDK Settings panel")},
	};
	for (const FExpected& Expected : AllExpected)
	{
		const TSharedPtr<FUICommandInfo> Command = FInputBindingManager::Get().FindCommandInContext("VelmorantProEdCommands", Expected.Name);
		if (TestValid(Expected.Name, Command))
		{
			TestEqualSensitive(Expected.Name, *Command->GetLabel().ToString(), Expected.Label);
			TestEqualSensitive(Expected.Name, *Command->GetDescription().ToString(), Expected.Description);
			TestEqualSensitive(Expected.Name, *FTextInspector::GetKey(Command->GetDescription()).Get(FString()), *(FString(Expected.Name) + TEXT("_ToolTip")));
			TestEqualSensitive(Expected.Name, *FTextInspector::GetNamespace(Command->GetDescription()).Get(FString()), TEXT("FVelmorantProEditor"));
			TestTrue(Expected.Name, Command->GetUserInterfaceType() == EUserInterfaceActionType::Button && Command->GetInputText().IsEmpty());
		}
	}
	const TSharedPtr<FBindingContext> Context = FInputBindingManager::Get().GetContextByName("VelmorantProEdCommands");
	if (TestValid(TEXT("they have a context"), Context))
	{
		TestEqualSensitive(TEXT("its text"), *Context->GetContextDesc().ToString(), TEXT("VelmorantProEdCommands Settings"));
		TestTrue(TEXT("its style"), Context->GetStyleSetName() == FName(TEXT("VelmorantEditorStyle")));
	}
	TArray<TSharedPtr<FUICommandInfo>> Commands;
	FInputBindingManager::Get().GetCommandInfosFromContext("VelmorantProEdCommands", Commands);
	TestEqual(TEXT("there are no others"), Commands.Num(), 4);
	return true;
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantModuleMenuTest, "Velmorant.Module.Menu", VelmorantTests::Flags)

bool FVelmorantModuleMenuTest::RunTest(const FString&)
{
	UToolMenu* Toolbar = UToolMenus::Get()->FindMenu("LevelEditor.LevelEditorToolBar.PlayToolBar");
	FToolMenuSection* Section = Toolbar ? Toolbar->FindSection("PluginTools") : nullptr;
	const FToolMenuEntry* Button = Section ? Section->FindEntry("VelmorantMenu") : nullptr;
	if (!TestNotNull(TEXT("the toolbar has the button"), Button))
	{
		return false;
	}
	TestEqualSensitive(TEXT("its label"), *Button->Label.Get().ToString(), TEXT("Velmorant"));
	TestEqualSensitive(TEXT("its tool tip"), *Button->ToolTip.Get().ToString(), TEXT("Tools for Velmorant"));
	TestTrue(TEXT("its label stands beside the icon"), Button->StyleNameOverride == FName(TEXT("CalloutToolbar")));

	const TSharedRef<SWidget> Menu = Button->ToolBarData.ComboButtonContextMenuGenerator.OnGetContent.Execute();
	const FString Version = UVelmorantEditorUtilitiesLibrary::GetVelmorantProVersion();
	const TArray<FString> Expected = {
		TEXT("Velmorant User Options"), TEXT("Velmorant Tools"), TEXT("Unit Volume Tools"), TEXT("Velmorant Settings"), TEXT("Velmorant Pro Settings"),
		TEXT("Velmorant Pro UI Settings"), TEXT("Velmorant SDK Settings"), TEXT("About Velmorant"), TEXT("Support Ticket"), TEXT("Plugin Documentation"),
		Version.IsEmpty() ? FString(TEXT("Velmorant Version")) : TEXT("Velmorant Version: ") + Version};
	const TArray<FString> Texts = VelmorantTests::CollectTexts(Menu);
	int32 Last = INDEX_NONE;
	for (const FString& Text : Expected)
	{
		// Styles may set headings in capitals.
		const int32 Index = Texts.IndexOfByPredicate([&Text](const FString& Each) { return Each.Equals(Text, ESearchCase::IgnoreCase); });
		TestTrue(*(Text + TEXT(" is there, and in its place")), Index > Last);
		Last = FMath::Max(Last, Index);
	}
	return true;
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantModuleSettingsTest, "Velmorant.Module.SettingsPages", VelmorantTests::Flags)

bool FVelmorantModuleSettingsTest::RunTest(const FString&)
{
	// The menu opens the pages by these names. What a viewer shows for others is not tried: it would open a window.
	for (const UClass* Class : {UVelmorantProSettings::StaticClass(), UVelmorantProUISettings::StaticClass(), UVelmorantSDKSettings::StaticClass()})
	{
		const UDeveloperSettings* Settings = CastChecked<UDeveloperSettings>(Class->GetDefaultObject());
		const FString Page = Settings->GetContainerName().ToString() + TEXT(" ") + Settings->GetCategoryName().ToString() + TEXT(" ") + Settings->GetSectionName().ToString();
		TestEqualSensitive(TEXT("the settings have a page among the project's plugins, named like their class"), *Page, *(TEXT("Project Plugins ") + Class->GetName()));
	}
	return true;
}

#endif
