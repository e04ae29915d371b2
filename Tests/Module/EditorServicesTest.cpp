// Copyright Velmorant. All Rights Reserved.

#include "HostAssertions.h"
#include "HostClipboard.h"
#include "SourceText.h"
#include "ToolkitTest.h"
#include "UObject/Class.h"
#include "VelmorantEditorUtilitiesLibrary.h"

#include <filesystem>
#include <regex>

using testing::ElementsAre;

/** Notifications, clipboard and versions, as native code and scripts use them. */
class EditorServices : public FToolkitTest
{
protected:
	static const FHostNotification& LastNotification() { return *HostNotifications::GetHistory().Last(); }

	static std::string ClipboardText() { return HostClipboard::GetHistory().IsEmpty() ? "nothing copied" : ToUtf8(HostClipboard::GetHistory().Last()); }
};

TEST_F(EditorServices, PushedNotificationsHaveTheStateOfTheirNumber)
{
	const struct
	{
		uint8 Value;
		SNotificationItem::ECompletionState State;
	} Cases[] = {{0, SNotificationItem::CS_None}, {1, SNotificationItem::CS_Pending}, {2, SNotificationItem::CS_Success}, {3, SNotificationItem::CS_Fail}, {7, SNotificationItem::CS_None}, {255, SNotificationItem::CS_None}};

	StartEditor();
	for (const auto& Case : Cases)
	{
		UVelmorantEditorUtilitiesLibrary::PushEditorNotification(TEXT("Title"), TEXT("Sub-text"), static_cast<EEditorNotificationCompletionState>(Case.Value), 2.5f);
		EXPECT_THAT(TakeOutcomes(), ElementsAre(FOutcome{"Title", "Sub-text", Case.State, 2.5f})) << "value " << static_cast<int>(Case.Value);
	}
}

TEST_F(EditorServices, NotificationTextsAreNoTextsToTranslate)
{
	StartEditor();
	UVelmorantEditorUtilitiesLibrary::NotifyPopup(TEXT("Title {0}"), TEXT("Sub-text"), SNotificationItem::CS_Success, 1.0f);
	EXPECT_TRUE(LastNotification().Text.IsCultureInvariant());
	EXPECT_TRUE(LastNotification().SubText.IsCultureInvariant());
	EXPECT_EQ(ToUtf8(LastNotification().Text), "Title {0}");
}

TEST_F(EditorServices, NotificationsKeepTheSystemsDefaultsOtherwise)
{
	StartEditor();
	UVelmorantEditorUtilitiesLibrary::NotifyPopup(TEXT("Title"), TEXT(""), SNotificationItem::CS_Fail, 1.0f);
	const FNotificationInfo Defaults{FText()};
	EXPECT_TRUE(LastNotification().bFireAndForget);
	EXPECT_EQ(LastNotification().bUseSuccessFailIcons, Defaults.bUseSuccessFailIcons);
	EXPECT_EQ(LastNotification().bUseThrobber, Defaults.bUseThrobber);
	EXPECT_FALSE(LastNotification().Width.IsSet());
	EXPECT_TRUE(LastNotification().ImageName.IsNone());
	EXPECT_TRUE(LastNotification().SubText.IsEmpty());
}

TEST_F(EditorServices, ANotificationOfNoSecondsExpiresAtOnce)
{
	StartEditor();
	UVelmorantEditorUtilitiesLibrary::NotifyPopup(TEXT("Brief"), TEXT(""), SNotificationItem::CS_None, 0.0f);
	UVelmorantEditorUtilitiesLibrary::NotifyPopup(TEXT("Long"), TEXT(""), SNotificationItem::CS_None, 60.0f);
	Wait(10.0); // time to fade
	EXPECT_TRUE(FindNotification(TEXT("Brief"))->IsGone());
	EXPECT_FALSE(FindNotification(TEXT("Long"))->IsGone());
}

TEST_F(EditorServices, CopyingTellsSo)
{
	StartEditor();
	UVelmorantEditorUtilitiesLibrary::CopyToClipboard(TEXT("Türmchen Ñ"), TEXT("The tower's name"));
	EXPECT_EQ(ClipboardText(), "Türmchen Ñ");
	EXPECT_THAT(TakeOutcomes(), ElementsAre(FOutcome{"Copied to Clipboard", "The tower's name", SNotificationItem::CS_Success, 3.0f}));
}

TEST_F(EditorServices, AnEmptyTextIsCopiedToo)
{
	StartEditor();
	UVelmorantEditorUtilitiesLibrary::CopyToClipboard(TEXT("something"), TEXT(""));
	UVelmorantEditorUtilitiesLibrary::CopyToClipboard(TEXT(""), TEXT("Nothing"));
	EXPECT_EQ(ClipboardText(), "");
	EXPECT_EQ(HostClipboard::GetHistory().Num(), 2);
	EXPECT_EQ(TakeOutcomes().back(), (FOutcome{"Copied to Clipboard", "Nothing", SNotificationItem::CS_Success, 3.0f}));
}

TEST_F(EditorServices, VersionsAreTheFreeTextsOfTheCompanionPlugins)
{
	const char* const Modules = R"("Modules": [{"Name": "VelmorantProEditor", "Type": "Editor", "LoadingPhase": "Default"}]})";
	Folder.Write("Plugins/VelmorantPro/VelmorantPro.uplugin", std::string(R"({"FileVersion": 3, "Version": 12, "VersionName": "7.8 beta", )") + Modules);
	Folder.Write("Plugins/VelmorantSDK/VelmorantSDK.uplugin", R"({"FileVersion": 3, "Version": 9, "VersionName": "0.9-rc1"})");
	PluginDirs = {Folder.Get("Plugins")};
	StartEditor();
	EXPECT_EQ(ToUtf8(UVelmorantEditorUtilitiesLibrary::GetVelmorantProVersion()), "7.8 beta");
	EXPECT_EQ(ToUtf8(UVelmorantEditorUtilitiesLibrary::GetVelmorantSDKVersion()), "0.9-rc1");

	std::filesystem::remove_all(Folder.GetNative("Plugins/VelmorantSDK"));
	StartEditor();
	EXPECT_THROW(UVelmorantEditorUtilitiesLibrary::GetVelmorantSDKVersion(), FHostAssertionFailure) << "a missing companion has no version to fall back to";
}

TEST(EditorTexts, WhatIsFormattedHasTheKeysThatTranslationsKnow)
{
	// Once formatted, a text no longer tells its key.
	std::vector<std::string> Keys;
	for (const std::filesystem::path& File : SourceText::FindSources(SourceText::Root / "Source/VelmorantProEditor"))
	{
		const std::string Text = SourceText::Read(File);
		const std::vector<std::string> Namespace = SourceText::FindAll(Text, std::regex("#define LOCTEXT_NAMESPACE \"(\\w+)\""));
		for (const std::string& Key : SourceText::FindAll(Text, std::regex("FText::Format\\(LOCTEXT\\((\"\\w+\", \"[^\"]+\")")))
		{
			Keys.push_back(Namespace.at(0) + ": " + Key);
		}
		for (const std::string& Key : SourceText::FindAll(Text, std::regex("NSLOCTEXT\\((\"[^\"]*\", \"[^\"]*\", \"[^\"]*\")\\)")))
		{
			Keys.push_back(Key);
		}
	}
	EXPECT_THAT(Keys, testing::UnorderedElementsAre(R"x("UnrealEd", "Null", "(null)")x", R"("UnrealEd", "CannotCreateBlueprintFromClass", "Cannot create a blueprint based on the class '{ClassName}'.")", R"(FVelmorantProEditor: "VelmorantVersionCopied", "Velmorant version {0} copied to clipboard.")", R"(FVelmorantProEditor: "VelmorantVersion", "Velmorant Version: {0}")"));
}

TEST_F(EditorServices, CopyingTheVersionTellsWhichOne)
{
	StartEditor();
	UVelmorantEditorUtilitiesLibrary::CopyVersionToClipboard(TEXT("3.1.0"));
	EXPECT_EQ(ClipboardText(), "3.1.0");
	EXPECT_TRUE(LastNotification().bUseSuccessFailIcons);
	EXPECT_THAT(TakeOutcomes(), ElementsAre(FOutcome{"Velmorant version 3.1.0 copied to clipboard.", "", SNotificationItem::CS_Success, 4.0f}));
}

TEST_F(EditorServices, AreFunctionsOfTheScriptLibraryExceptTheNativeNotification)
{
	StartEditor();
	const UClass* Library = UVelmorantEditorUtilitiesLibrary::StaticClass();
	for (const TCHAR* Name : {TEXT("CheckForUnitVolumeCollisionProfile"), TEXT("AddUnitVolumeCollisionProfile"), TEXT("PushEditorNotification"), TEXT("CopyToClipboard"), TEXT("GetVelmorantProVersion"), TEXT("GetVelmorantSDKVersion"),
			 TEXT("CopyVersionToClipboard"), TEXT("CreateConfiguratorDataAssetFromConfigurator"), TEXT("UpdateConfiguratorDataAssetInfo"), TEXT("CreateVariantSetFromConfigurator"), TEXT("FillOutLevelVariantWithConfigurator"), TEXT("CreateLevelVariantActorInLevel")})
	{
		const UFunction* Function = Library->FindFunctionByName(Name);
		ASSERT_NE(Function, nullptr) << ToUtf8(FString(Name));
		EXPECT_TRUE(Function->HasAllFunctionFlags(static_cast<EFunctionFlags>(FUNC_BlueprintCallable | FUNC_Static))) << ToUtf8(FString(Name));
	}
	EXPECT_EQ(Library->FindFunctionByName("NotifyPopup"), nullptr);
}

TEST_F(EditorServices, ShowTheirToolTipsLetterForLetter)
{
	const struct
	{
		const TCHAR* Function;
		const char* ToolTip;
	} Cases[] = {
		{TEXT("CreateConfiguratorDataAssetFromConfigurator"), "Creates a Configurator Data Asset from the specified Configurator ID.\n@param ConfiguratorID The ID of the configurator to generate a data asset for."},
		{TEXT("UpdateConfiguratorDataAssetInfo"), "Updates the information of the given Configurator Data Asset.\n@param ConfiguratorData The Velmorant Configurator Data Asset to update.\n@return True if the update was successful, false otherwise."},
		{TEXT("CreateVariantSetFromConfigurator"),
			"Creates or updates a LevelVariantSet using the given ConfiguratorData asset.\nThis method generates a LevelVariantSet for the provided Configurator data asset.\n"
			"If the LevelVariantSet already exists, it updates it based on the Configurator information.\nIf it does not exist, a new LevelVariantSet will be created.\n"
			"@param ConfiguratorData A reference to the UVelmorantConfiguratorDataAsset used to create or update the LevelVariantSet.\n"
			"                       It must contain valid data, such as a ConfiguratorName or Room, to create the LevelVariantSet.\n"
			"                       If null or invalid, the operation will not proceed."},
		{TEXT("CreateLevelVariantActorInLevel"),
			"Creates a Level Variant Actor in the current level using the specified configurator data.\n"
			"If a Level Variant Actor already exists in the level, it updates the existing actor with the provided configurator data.\n"
			"This function also manages viewport focus and actor selection in the editor.\n"
			"@param ConfiguratorData The configurator data asset used to set up the Level Variant Actor.\n"
			"                       If null, the function returns without performing any action."}};
	StartEditor();
	for (const auto& Case : Cases)
	{
		EXPECT_EQ(ToUtf8(UVelmorantEditorUtilitiesLibrary::StaticClass()->FindFunctionByName(Case.Function)->GetMetaData(TEXT("ToolTip"))), Case.ToolTip);
	}
}

TEST_F(EditorServices, CompletionStatesHaveTheirNamesAndNumbers)
{
	StartEditor();
	const UEnum* Enum = StaticEnum<EEditorNotificationCompletionState>();
	const TCHAR* const Names[] = {TEXT("CS_None"), TEXT("CS_Pending"), TEXT("CS_Success"), TEXT("CS_Fail")};
	for (int32 Value = 0; Value < 4; ++Value)
	{
		EXPECT_EQ(ToUtf8(Enum->GetNameStringByValue(Value)), ToUtf8(FString(Names[Value])));
	}
}
