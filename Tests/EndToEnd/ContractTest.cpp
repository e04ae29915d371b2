// Copyright Velmorant. All Rights Reserved.

#include "PluginOnDisk.h"

#include <gmock/gmock.h>

using testing::HasSubstr;
using testing::Not;

/** The companions of a plugin against what the module expects of them. */
class PluginContract : public FPluginOnDisk
{
protected:
	/** The part of the output between two headings. */
	static std::string GetPart(const std::string& Output, const std::string& Heading)
	{
		const size_t Begin = Output.find("\n" + Heading);
		size_t End = Begin == std::string::npos ? Begin : Output.find('\n', Begin + 1);
		while (End != std::string::npos && Output.compare(End + 1, 2, "  ") == 0)
		{
			End = Output.find('\n', End + 1);
		}
		return Begin == std::string::npos ? "" : Output.substr(Begin, End - Begin);
	}

	static std::string GetGiven(const FProgramResult& Result) { return GetPart(Result.Output, "Given by the toolkit"); }
	static std::string GetChosen(const FProgramResult& Result) { return GetPart(Result.Output, "Chosen here"); }
	static std::string GetUnread(const FProgramResult& Result) { return GetPart(Result.Output, "Unread"); }

	/** "path(line)" of the first line of a header that has the text. */
	std::string Locate(const std::string& Header, const std::string& Text) const
	{
		const std::string Bytes = Folder.Read(Plugin + "/" + FindHeader(Header));
		const auto Line = 1 + std::count(Bytes.begin(), Bytes.begin() + static_cast<std::ptrdiff_t>(Bytes.find(Text)), '\n');
		return GetPath(FindHeader(Header)) + "(" + std::to_string(Line) + ")";
	}
};

TEST_F(PluginContract, FindsNothingToSayOfTheReferenceCompanions)
{
	const FProgramResult Result = Compare();
	EXPECT_EQ(Result.ExitStatus, 0) << Result.Errors;
	EXPECT_EQ(Result.Errors, "");
	EXPECT_EQ(GetGiven(Result) + GetChosen(Result) + GetUnread(Result), "");
	EXPECT_THAT(Result.Output, HasSubstr(": 0 given and 0 chosen ones differ."));
	EXPECT_THAT(Result.Output, Not(HasSubstr("missing")));
}

TEST_F(PluginContract, ListsWhatDiffersWithFileAndLine)
{
	const struct
	{
		const char* Behaviour;
		const char* Header;
		const char* From;
		const char* To;
		bool bStops;
		const char* Message; // behind the place of To
	} Cases[] = {
		{"a field that the toolkit has given, renamed", "FontIconHandler.h", "FName FontIconName;", "FName FontName;", true, "module expects \"FName FontIconName\" in FFontIconHandler (FontIconHandler.h), found \"FName FontName\""},
		{"one that was chosen here, renamed", "VelmorantSDKTypes.h", "FString ProjectName;", "FString DisplayedAs;", false, "module expects \"FString ProjectName\" in FProject (VelmorantSDKTypes.h), found \"FString DisplayedAs\""},
		{"one of another type", "UnitVolumeActor.h", "int32 UnitID = -1;", "int64 UnitID = -1;", false, "module expects \"int32 UnitID\" in FUnitVolumeUniqueIdentifier (UnitVolumeActor.h), found \"int64 UnitID\""},
		{"a given function with other parameters, which are given", "VlmButton.h", "SetSelectionState(bool bInSelected, bool bBroadcast)", "SetSelectionState(bool bInSelected)", true, "module expects \"void SetSelectionState(bool bInSelected, bool bBroadcast)\" in UVlmButton (VlmButton.h), found \"void SetSelectionState(bool bInSelected)\""},
		{"a given function with another result, which was chosen", "VelmorantUISubsystem.h", "TArray<FName> GetAllFontIconOptions() const;", "TSet<FName> GetAllFontIconOptions() const;", false, "module expects \"TArray<FName> GetAllFontIconOptions() const\" in UVelmorantUISubsystem (VelmorantUISubsystem.h), found \"TSet<FName> GetAllFontIconOptions() const\""},
		{"a given function that needs an object now", "VelmorantSDKEngineSubsystem.h", "static UVelmorantDeveloperUser* GetVelmorantEditorUser", "UVelmorantDeveloperUser* GetVelmorantEditorUser", true, "module expects \"static UVelmorantDeveloperUser* GetVelmorantEditorUser(bool bCreateIfMissing)\" in UVelmorantSDKEngineSubsystem (VelmorantSDKEngineSubsystem.h), found \"UVelmorantDeveloperUser* GetVelmorantEditorUser(bool bCreateIfMissing)\""},
		{"one that is not reflected, by its name alone", "ProjectWrapper.h", "const FProject& GetProjectData() const", "FProject GetProjectsData() const", true, "module expects \"const FProject& GetProjectData() const\" in UProjectWrapper (ProjectWrapper.h), found \"FProject GetProjectsData() const\""},
		{"the same under its name with another result says nothing", "ProjectWrapper.h", "const FProject& GetProjectData() const", "FProject GetProjectData() const", false, ""},
		{"an enumerator's number", "VelmorantSDKTypes.h", "\tConfigurator = 2,", "\tConfigurator = 12,", false, "module expects \"Configurator = 2\" in EUpdateRequestDataType (VelmorantSDKTypes.h), found \"Configurator = 12\""},
		{"a number that follows from the one before", "VelmorantSDKTypes.h", "\tConfigurator = 2,", "\tConfigurator,", false, ""},
		{"a delegate's parameters", "VelmorantUser.h", "(FLoginResult, bool, bSuccess, FLoginInfo, LoginInfo)", "(FLoginResult, int32, Code, FLoginInfo, LoginInfo)", true, "module expects \"DECLARE_DYNAMIC_MULTICAST_DELEGATE_TwoParams(FLoginResult, bool, bSuccess, FLoginInfo, LoginInfo)\" in VelmorantUser.h, found \"dynamic multicast delegate void FLoginResult(int32 Code, FLoginInfo LoginInfo)\""},
		{"a constructor with fewer parameters", "VelmorantSDKTypes.h", "FVelmorantUserInformation(bool bInRememberMe, const FString& InUserName, const FString& InPassword);", "FVelmorantUserInformation(const FString& InUserName, const FString& InPassword);", true, "module expects \"FVelmorantUserInformation(bool bInRememberMe, const FString& InUserName, const FString& InPassword)\""},
		{"a given base class", "VelmorantDeveloperUser.h", ": public UVelmorantUser", ": public UObject", true, "module expects \"class UVelmorantDeveloperUser : public UVelmorantUser\" in VelmorantDeveloperUser.h, found \"class UVelmorantDeveloperUser : public UObject\""},
		{"a field that others cannot reach", "VelmorantConfiguratorDataAsset.h", "\tFName ConfiguratorName;", "\tFName ConfiguratorName;\n\nprotected:", false, "module expects \"FVelmorantConfigUnit ConfiguratorUnit\""},
		{"a class under another name", "VelmorantUISubsystem.h", "API UVelmorantUISubsystem :", "API UVelmorantUserInterfaceSubsystem :", true, "module expects \"class UVelmorantUISubsystem : public UEngineSubsystem\" in VelmorantUISubsystem.h, found no type of that name"},
		{"a field that the details panel shows and does not let change", "FontIconHandler.h", "UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = \"Velmorant|Icon\")\n\tFName IconStyle;", "UPROPERTY(VisibleAnywhere, Category = \"Velmorant|Icon\")\n\tFName IconStyle;", false, "module expects \"FName IconStyle\" in FFontIconHandler (FontIconHandler.h), found \"FName IconStyle\", which is not EditAnywhere"},
		{"one that is not reflected any more", "FontIconHandler.h", "UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = \"Velmorant|Icon\")\n\tFName IconStyle;", "FName IconStyle;", false, "module expects \"FName IconStyle\" in FFontIconHandler (FontIconHandler.h), found \"FName IconStyle\", which is not EditAnywhere"},
		{"a field's specifiers that the module can do without", "FontIconHandler.h", "UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = \"Velmorant|Icon\")\n\tFName IconStyle;", "UPROPERTY(EditAnywhere, Transient)\n\tFName IconStyle;", false, ""},
		{"a class of which no Blueprint can be made", "VelmorantAssets.h", "UCLASS(Blueprintable, Abstract)\nclass VELMORANTPRO_API UUnitVolumeAction", "UCLASS(Abstract)\nclass VELMORANTPRO_API UUnitVolumeAction", false, "found \"class UUnitVolumeAction : public UObject\", which is not Blueprintable"},
		{"one that is Blueprintable by its base", "VelmorantAssets.h", "UCLASS(Blueprintable, Abstract)\nclass VELMORANTPRO_API UUnitVolumeAction : public UObject\n", "UCLASS(Blueprintable)\nclass UVlmAction : public UObject\n{\n\tGENERATED_BODY()\n};\n\nUCLASS()\nclass VELMORANTPRO_API UUnitVolumeAction : public UVlmAction\n", false, ""},
		{"settings of another file", "VelmorantSDKSettings.h", "config = Game, defaultconfig", "config = Engine", false, "which is not Config=Game, DefaultConfig"},
		{"what a base declares is there", "VelmorantSDKTypes.h", "struct VELMORANTSDK_API FUnitGroupData\n{\n\tGENERATED_BODY()\n\n\tUPROPERTY(BlueprintReadOnly, Category = \"Velmorant|Units\")\n\tFString KeyCode;\n", "struct VELMORANTSDK_API FKeyed\n{\n\tGENERATED_BODY()\n\n\tUPROPERTY()\n\tFString KeyCode;\n};\n\nUSTRUCT()\nstruct VELMORANTSDK_API FUnitGroupData : public FKeyed\n{\n\tGENERATED_BODY()\n", false, ""},
	};
	for (const auto& Case : Cases)
	{
		SCOPED_TRACE(Case.Behaviour);
		const std::string Before = Folder.Read(Plugin + "/" + FindHeader(Case.Header));
		ReplaceInHeader(Case.Header, Case.From, Case.To);
		const FProgramResult Result = Compare();
		EXPECT_EQ(Result.ExitStatus, Case.bStops ? 1 : 0) << Result.Output.substr(Result.Output.find("Headers that")) << Result.Errors;
		EXPECT_THAT(Case.bStops ? GetGiven(Result) : GetChosen(Result), HasSubstr(Case.Message));
		EXPECT_EQ(Case.bStops ? GetChosen(Result) : GetGiven(Result), "");
		if (*Case.Message == '\0')
		{
			EXPECT_EQ(GetChosen(Result), "");
		}
		Folder.Write(Plugin + "/" + FindHeader(Case.Header), Before);
	}
}

TEST_F(PluginContract, NamesThePlaceInTheCompanionsHeader)
{
	ReplaceInHeader("FontIconHandler.h", "FName FontIconName;", "FName FontName;");
	ReplaceInHeader("ProjectWrapper.h", "bool HasUnitGroupTarget() const", "bool Targets() const");
	const std::string Given = GetGiven(Compare());
	EXPECT_THAT(Given, HasSubstr("\n  " + Locate("FontIconHandler.h", "FName FontName;") + ": module expects"));
	EXPECT_THAT(Given, HasSubstr("\n  " + Locate("ProjectWrapper.h", "UProjectWrapper : ") + ": module expects \"bool HasUnitGroupTarget() const\" in UProjectWrapper (ProjectWrapper.h), found nothing of that name"));
}

TEST_F(PluginContract, TellsWhereHeadersAndModulesAre)
{
	std::string User = GetPath(FindHeader("VelmorantUser.h"));
	FProgramResult Result;
	for (const char* Place : {"Source/VelmorantSDK/Public/Users/VelmorantUser.h", "Source/VelmorantSDK/Private/VelmorantUser.h", "Source/VelmorantUsers/Public/VelmorantUser.h"})
	{
		const std::string Moved = GetPath(Place);
		std::filesystem::create_directories(std::filesystem::path(Moved).parent_path());
		std::filesystem::rename(User, Moved);
		Result = Compare();
		EXPECT_EQ(Result.ExitStatus, 0) << "how headers are called was chosen here" << Result.Output;
		EXPECT_THAT(Result.Output, testing::ContainsRegex("VelmorantUser.h +in another place +" + Moved));
		EXPECT_THAT(GetChosen(Result), HasSubstr("\n  " + Moved + "("));
		User = Moved;
	}
	std::filesystem::remove(User);
	Result = Compare();
	EXPECT_EQ(Result.ExitStatus, 1);
	EXPECT_THAT(Result.Output, testing::ContainsRegex("VelmorantUser.h +missing"));
	EXPECT_THAT(GetGiven(Result), HasSubstr("module expects \"class UVelmorantUser : public UObject\" in VelmorantUser.h, found no type of that name"));

	std::filesystem::remove_all(GetPath("Source/VelmorantSDK"));
	Result = Compare();
	EXPECT_EQ(Result.ExitStatus, 1);
	EXPECT_THAT(Result.Output, testing::ContainsRegex("VelmorantSDK +missing"));
	EXPECT_THAT(Result.Output, testing::ContainsRegex("VelmorantProUI +found"));

	Folder.Write("Plugins/Sdk/VelmorantSDK.uplugin", "{}");
	Copy("Companions/VelmorantSDK/Public", "Plugins/Sdk/Source/Runtime/VelmorantSDK/Public");
	Folder.Write("Plugins/Sdk/Source/Runtime/VelmorantSDK/VelmorantSDK.Build.cs", "");
	Result = Compare();
	EXPECT_EQ(Result.ExitStatus, 0) << "a plugin beside it has the module" << Result.Output;
	EXPECT_THAT(Result.Output, testing::ContainsRegex("VelmorantSDK +found +.*/Plugins/Sdk/Source/Runtime/VelmorantSDK\n"));
}

TEST_F(PluginContract, ListsWhatItCouldNotReadAndGoesOn)
{
	ReplaceInHeader("VlmButton.h", "UFUNCTION(BlueprintCallable, Category = \"Velmorant|Button\")\n\tvoid SetSelectionState", "UFUNCTION(BlueprintCallable, SealedEvent, Category = \"Velmorant|Button\")\n\tvoid SetSelectionState");
	ReplaceInHeader("VelmorantSDKTypes.h", "FString ApiKey;", "FString ApiKey[2];");
	ReplaceInHeader("UnitGroupWrapper.h", "#pragma once", "#pragma once\nconst char* Broken = \"never closed;");
	ReplaceInHeader("VlmText.h", "#pragma once", "#pragma once // \xA9 in Latin-1");
	const FProgramResult Result = Compare();
	EXPECT_EQ(Result.ExitStatus, 0) << Result.Output << Result.Errors;
	EXPECT_EQ(GetGiven(Result) + GetChosen(Result), "") << "what was not read is not missing";
	const std::string Unread = GetUnread(Result);
	EXPECT_THAT(Unread, HasSubstr(GetPath(FindHeader("VlmButton.h")) + "("));
	EXPECT_THAT(Unread, HasSubstr("'SealedEvent' in UFUNCTION()"));
	EXPECT_THAT(Unread, HasSubstr("UPROPERTY 'ApiKey' is a C array"));
	EXPECT_THAT(Unread, HasSubstr(GetPath(FindHeader("UnitGroupWrapper.h")) + "(4,22): error: this string is not closed on its line"));
}

TEST_F(PluginContract, RefusesFoldersThatAreNotThere)
{
	const FProgramResult Result = FProgramRun::Run({"contract", GetPath(), GetPath("Nowhere")});
	EXPECT_EQ(Result.ExitStatus, 2);
	EXPECT_EQ(Result.Errors, GetPath("Nowhere") + ": there is no such folder. Name the folders of plugins.\n");
	EXPECT_EQ(FProgramRun::Run({"contract"}).ExitStatus, 2);
}
