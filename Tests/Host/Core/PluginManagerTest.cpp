// Copyright Velmorant. All Rights Reserved.

#include "EditorFilesFixture.h"
#include "HostPlugins.h"
#include "HostProject.h"
#include "Interfaces/IPluginManager.h"

namespace PluginManagerTest
{
	class PluginManager : public FEditorFilesTest
	{
	protected:
		void Discover() { HostPlugins::Discover({Folder.Get("Plugins"), Folder.Get("Missing"), Folder.Get("More")}); }
	};

	TEST_F(PluginManager, ReadsWhatDescriptorsSay)
	{
		Folder.Write("Plugins/VelmorantPro/VelmorantPro.uplugin", R"({
			"FileVersion": 3, "Version": 7, "VersionName": "2.4.1-beta", "FriendlyName": "Velmorant Pro", "CanContainContent": true,
			"Modules": [{"Name": "VelmorantPro", "Type": "Runtime", "LoadingPhase": "PreDefault"}, {"Name": "VelmorantProEditor", "Type": "Editor"}],
			"Plugins": [{"Name": "VariantManagerContent", "Enabled": true}]})");
		Discover();
		const TSharedPtr<IPlugin> Plugin = IPluginManager::Get().FindPlugin(TEXT("velmorantpro"));
		ASSERT_TRUE(Plugin.IsValid());
		EXPECT_EQ(IPluginManager::Get().FindPlugin(TEXT("VelmorantPro")), Plugin);
		EXPECT_EQ(ToUtf8(Plugin->GetName()), "VelmorantPro");
		EXPECT_EQ(ToUtf8(Plugin->GetBaseDir()), ToUtf8(Folder.Get("Plugins/VelmorantPro")));
		const FPluginDescriptor& Descriptor = Plugin->GetDescriptor();
		EXPECT_EQ(Descriptor.Version, 7);
		EXPECT_EQ(ToUtf8(Descriptor.VersionName), "2.4.1-beta");
		ASSERT_EQ(Descriptor.Modules.Num(), 2);
		EXPECT_EQ(Descriptor.Modules[0].LoadingPhase, ELoadingPhase::PreDefault);
		EXPECT_EQ(Descriptor.Modules[1].Name, FName("VelmorantProEditor"));
		EXPECT_EQ(Descriptor.Modules[1].LoadingPhase, ELoadingPhase::Default);
		ASSERT_EQ(Descriptor.Plugins.Num(), 1);
		EXPECT_TRUE(Descriptor.Plugins[0].bEnabled);
		EXPECT_EQ(GetProblems(), "");
	}

	TEST_F(PluginManager, ListsContentOfTheProjectAndOfPluginsThatHaveSome)
	{
		Folder.Write("Plugins/B/B.uplugin", R"({"CanContainContent": true})");
		Folder.Write("Plugins/A/Named.uplugin", R"({"CanContainContent": true})");
		Folder.Write("Plugins/C/C.uplugin", "{}");
		Discover();
		std::vector<std::string> Roots;
		for (const HostPlugins::FContentMount& Mount : HostPlugins::GetContentMounts())
		{
			Roots.push_back(ToUtf8(Mount.Root) + " " + ToUtf8(Mount.Directory.RightChop(Folder.Get().Len())));
		}
		EXPECT_EQ(Roots, (std::vector<std::string>{"/Game/ /Content/", "/B/ /Plugins/B/Content/", "/Named/ /Plugins/A/Content/"}));
	}

	TEST_F(PluginManager, TheFirstOfTwoPluginsWithOneNameWins)
	{
		Folder.Write("Plugins/A/A.uplugin", R"({"VersionName": "project"})");
		Folder.Write("More/A/a.uplugin", R"({"VersionName": "more"})");
		Discover();
		EXPECT_EQ(ToUtf8(IPluginManager::Get().FindPlugin(TEXT("A"))->GetDescriptor().VersionName), "project");
		EXPECT_EQ(IPluginManager::Get().GetEnabledPlugins().Num(), 1);
	}

	TEST_F(PluginManager, ReportsMalformedDescriptorsWithTheirPlaceAndGoesOn)
	{
		struct FCase
		{
			const char* Behaviour;
			const char* Text;
			int32 Line;
			const char* Message;
		};
		const FCase Cases[] = {
			{"a comma too many", "{\n\"Version\": 1,\n}", 3, "column 1: '}' is not expected here"},
			{"cut off", "{\n\"Version\": ", 2, "the text ends before it is complete"},
			{"a text that is not closed", "{\n\"Version\": \"secret\n\"}", 2, "column 19: what stands here is not expected"},
			{"at the beginning", "}", 1, "column 1: '}' is not expected here"},
			{"behind values of every kind", "{\"A\": [-1, 1, 1.5, true, null, \"\", {}, []], \"B\": {\"C\": 1}, ]", 1, "column 60: ']' is not expected here"},
			{"a number beyond all bounds", "{\n\"Version\": 1e999}", 2, "column 12: the number 1e999 is out of range"},
			{"a number beyond 32 bits", "{\"Version\": 3000000000}", 0, "must be a whole number"},
			{"not an object", "[1]", 1, "one JSON object"},
			{"a number for a text", "{\"VersionName\": 1}", 0, "\"VersionName\" must be a text"},
			{"a text for a number", "{\"Version\": \"1\"}", 0, "\"Version\" must be a whole number"},
			{"a module without a name", "{\"Modules\": [{\"Name\": \"A\"}, {}]}", 0, "\"Modules[1].Name\""},
			{"a module that is no object", "{\"Modules\": [3]}", 0, "\"Modules[0].Name\""},
			{"an unknown loading phase", "{\"Modules\": [{\"Name\": \"A\", \"LoadingPhase\": \"Soon\"}]}", 0, "\"Modules[0].LoadingPhase\""},
			{"modules that are no list", "{\"Modules\": {}}", 0, "\"Modules\" must be a list"},
			{"bytes that are no text", "{\"VersionName\": \"\xFC\"}", 1, "neither UTF-8"},
		};
		for (const FCase& Case : Cases)
		{
			SCOPED_TRACE(Case.Behaviour);
			HostProblems::Clear();
			Folder.Write("Plugins/Broken/Broken.uplugin", Case.Text);
			Folder.Write("Plugins/Fine/Fine.uplugin", "{}");
			Discover();
			EXPECT_FALSE(IPluginManager::Get().FindPlugin(TEXT("Broken")).IsValid());
			EXPECT_TRUE(IPluginManager::Get().FindPlugin(TEXT("Fine")).IsValid());
			ASSERT_EQ(HostProblems::GetAll().Num(), 1) << GetProblems();
			const FHostProblem& Problem = HostProblems::GetAll()[0];
			EXPECT_EQ(ToUtf8(Problem.File), ToUtf8(Folder.Get("Plugins/Broken/Broken.uplugin")));
			EXPECT_EQ(Problem.Line, Case.Line);
			EXPECT_NE(ToUtf8(Problem.Message).find(Case.Message), std::string::npos) << ToUtf8(Problem.Message);
		}
	}

	class ProjectFile : public FEditorFilesTest
	{
	};

	TEST_F(ProjectFile, ReadsUtf16AsTheEditorWritesIt)
	{
		const std::string Text = R"({"EngineAssociation": "5.6", "Modules": [{"Name": "Tower"}]})";
		std::string Bytes = "\xFF\xFE";
		for (const char Character : Text)
		{
			Bytes += Character;
			Bytes += '\0';
		}
		Folder.Write("Tower.uproject", Bytes);
		FHostProject Project;
		ASSERT_TRUE(HostProject::Read(Folder.Get("Tower.uproject"), Project)) << GetProblems();
		EXPECT_EQ(ToUtf8(Project.EngineAssociation), "5.6");
		ASSERT_EQ(Project.Modules.Num(), 1);
		EXPECT_EQ(Project.Modules[0].Name, FName("Tower"));
	}

	TEST_F(ProjectFile, IsFoundByItselfOrByItsFolder)
	{
		Folder.Write("One/Tower.uproject", "{}");
		Folder.Write("Two/A.uproject", "{}");
		Folder.Write("Two/B.uproject", "{}");
		Folder.Write("None/readme.txt", "");
		const FString Tower = Folder.Get("One/Tower.uproject");
		EXPECT_EQ(ToUtf8(HostProject::Find(Tower)), ToUtf8(Tower));
		EXPECT_EQ(ToUtf8(HostProject::Find(Folder.Get("One/"))), ToUtf8(Tower));
		EXPECT_EQ(GetProblems(), "");
		for (const char* Path : {"Two", "None", "None/readme.txt", "Missing", "Missing.uproject"})
		{
			HostProblems::Clear();
			EXPECT_TRUE(HostProject::Find(Folder.Get(Path)).IsEmpty()) << Path;
			EXPECT_EQ(HostProblems::GetAll().Num(), 1) << Path;
		}
		FHostProject Project;
		EXPECT_FALSE(HostProject::Read(Folder.Get("Missing.uproject"), Project));
	}
}
