// Copyright Velmorant. All Rights Reserved.

#include "Install/ModuleInstall.h"

#include "Containers/StringConv.h"
#include "Install/DescriptorEdit.h"
#include "Install/DescriptorFile.h"
#include "HostFiles.h"
#include "HostProblems.h"
#include "HostStaging.h"
#include "Install/InstallFolders.h"
#include "Misc/Paths.h"
#include "Install/StyleImages.h"
#include "Install/ToolkitData.h"

#include <set>

namespace InstallPlan
{
	const TCHAR* const Plugin = TEXT("VelmorantPro");
	const TCHAR* const Module = TEXT("VelmorantProEditor");
	const TCHAR* const TestsModule = TEXT("VelmorantProEditorTests");

	/** Phases that come after the one in which the module is loaded. */
	const std::set<std::string> LatePhases = {"PostDefault", "PostEngineInit", "None"};

	FString ToText(const std::string& Utf8)
	{
		return FString(UTF8_TO_TCHAR(Utf8.c_str()));
	}

	/** What the host needs beside the sources, to build them itself. */
	bool IsHosts(const FString& File)
	{
		return FPaths::GetCleanFilename(File).Equals(TEXT("CMakeLists.txt"));
	}

	std::vector<FDescriptorEntry> GetEntries(bool bWithTests)
	{
		const auto MakeModule = [](const TCHAR* Name) { return FDescriptorEntry{"Modules", std::string(TCHAR_TO_UTF8(Name)), {{"Type", "\"Editor\""}, {"LoadingPhase", "\"Default\""}}, {"LoadingPhase"}}; };
		std::vector<FDescriptorEntry> Entries = {MakeModule(Module)};
		if (bWithTests)
		{
			Entries.push_back(MakeModule(TestsModule));
		}
		for (const char* Needed : {"EditorScriptingUtilities", "VariantManagerContent"})
		{
			Entries.push_back({"Plugins", Needed, {{"Enabled", "true"}}, {}});
		}
		return Entries;
	}

	/** One plan in the making. Each step returns false, with the reason reported, when a file cannot be read. */
	class FPlanner
	{
	public:
		FPlanner(const FString& InDescriptor, const FInstallOptions& InOptions)
			: Descriptor(InDescriptor)
			, Options(InOptions)
		{
			Plan.PluginFolder = FPaths::GetPath(InDescriptor);
			Plan.bLeftovers = HostFiles::DirectoryExists(InstallFolders::GetStage(Plan.PluginFolder));
		}

		bool Run()
		{
			return AddModule(Module) && (!Options.bWithTests || AddModule(TestsModule)) && EditDescriptor() && LookForImages() && CompareContract();
		}

		FInstallPlan Plan;

	private:
		bool AddModule(const FString& Name)
		{
			const FString Source = HostFiles::Resolve(ToolkitData::GetModuleFolder(Name));
			const TArray<FString> Files = HostFiles::FindFiles(Source, FString());
			if (Files.IsEmpty())
			{
				HostProblems::Report(Source, 0, FString::Printf(TEXT("%s does not come with this program"), *Name), Name.Equals(TestsModule) ? TEXT("Install without --with-tests.") : TEXT("Restore the folder."));
				return false;
			}
			std::set<std::string> Names;
			for (const FString& File : Files)
			{
				const FString Path = TEXT("Source/") + Name + File.RightChop(Source.Len());
				if (!IsHosts(File))
				{
					Names.insert(std::string(TCHAR_TO_UTF8(*Path)));
					if (!AddFile(File, Path))
					{
						return false;
					}
				}
			}
			TellStrangers(Name, Names);
			return true;
		}

		bool AddFile(const FString& Source, const FString& Path)
		{
			FInstallFile File;
			File.Path = Path;
			const FString Target = Plan.PluginFolder / Path;
			const HostFiles::ERead Old = HostFiles::Read(Target, File.OldBytes);
			if (HostFiles::Read(Source, File.Bytes) != HostFiles::ERead::Done || Old == HostFiles::ERead::Failed)
			{
				return false;
			}
			File.bExists = Old == HostFiles::ERead::Done;
			if (File.bExists && File.OldBytes == File.Bytes)
			{
				++Plan.NumUpToDate;
				return true;
			}
			if (File.bExists && !Options.bForce)
			{
				const bool bNewer = HostStaging::GetTimeOfChange(Target) > HostStaging::GetTimeOfChange(Source);
				Plan.Obstacles.Add(Target + (bNewer ? TEXT(": differs from the module's file, and is newer. --force overwrites it.") : TEXT(": differs from the module's file. --force overwrites it.")));
			}
			Plan.Files.Add(MoveTemp(File));
			return true;
		}

		/** Of an earlier version of the module, or somebody's own: the engine's build compiles them, too. */
		void TellStrangers(const FString& Name, const std::set<std::string>& Names)
		{
			const FString Folder = HostFiles::Resolve(Plan.PluginFolder);
			for (const FString& File : HostFiles::FindFiles(Folder / TEXT("Source") / Name, FString()))
			{
				const bool bOwn = Names.count(std::string(TCHAR_TO_UTF8(*File.RightChop(Folder.Len() + 1)))) > 0;
				if (!bOwn && !IsHosts(File))
				{
					Plan.Remarks.Add(File + TEXT(": is none of the module's files and stays. Delete it if it is of an earlier version."));
				}
			}
		}

		bool EditDescriptor()
		{
			FDescriptorFile File;
			if (!File.Read(Descriptor))
			{
				return false;
			}
			FDescriptorEdit Edit(File.GetText());
			if (Edit.IsReadable())
			{
				CheckFamily(Edit);
			}
			for (const FDescriptorEntry& Entry : GetEntries(Options.bWithTests))
			{
				if (Edit.IsReadable())
				{
					Edit.Require(Entry);
				}
			}
			if (!Edit.IsReadable())
			{
				HostProblems::Report(Descriptor, Edit.GetReasonLine(), ToText(Edit.GetReason()), TEXT("Correct the descriptor."));
				return false;
			}
			for (const std::string& Change : Edit.GetChanges())
			{
				Plan.DescriptorChanges.Add(ToText(Change));
			}
			if (!Edit.GetChanges().empty())
			{
				Plan.Files.Add(FInstallFile{FPaths::GetCleanFilename(Descriptor), File.Encode(Edit.GetText()), true, File.GetBytes(), Edit.GetText(), File.GetText()});
			}
			return true;
		}

		void CheckFamily(const FDescriptorEdit& Edit)
		{
			bool bToolkit = false;
			for (const auto& [Name, Phase] : Edit.GetEntries("Modules", "LoadingPhase"))
			{
				bToolkit |= ToText(Name).Equals(Plugin, ESearchCase::IgnoreCase);
				if (Name.starts_with("Velmorant") && !ToText(Name).StartsWith(Module) && LatePhases.count(Phase) > 0)
				{
					Plan.Remarks.Add(Descriptor + ToText(": loads " + Name + " in the phase " + Phase + ", after the module that needs it. Choose PreDefault."));
				}
			}
			if (!bToolkit)
			{
				Plan.Obstacles.Add(Descriptor + TEXT(": does not list the module VelmorantPro: it is no plugin that this module belongs to."));
			}
		}

		bool LookForImages()
		{
			for (const FString& Image : StyleImages::List())
			{
				const FString File = Plan.PluginFolder / TEXT("Resources") / Image;
				if (!HostFiles::FileExists(File))
				{
					Plan.Obstacles.Add(File + TEXT(": is missing, an image of the editor's style. Restore it from the toolkit."));
				}
			}
			return true;
		}

		bool CompareContract()
		{
			TOptional<FContractReport> Report = CompanionContract::Check({{Plan.PluginFolder}, ToolkitData::GetModuleFolder(Module), ToolkitData::GetCompanionTables(), ToolkitData::GetCompanionsFolder()});
			if (Report.IsSet())
			{
				Plan.Contract = MoveTemp(Report.GetValue());
			}
			return Report.IsSet();
		}

		const FString Descriptor;
		const FInstallOptions Options;
	};
}

FString ModuleInstall::FindDescriptor(const FString& PluginFolder)
{
	const bool bFile = PluginFolder.EndsWith(TEXT(".uplugin")) && HostFiles::FileExists(PluginFolder);
	const FString Folder = HostFiles::Resolve(bFile ? FPaths::GetPath(HostFiles::Resolve(PluginFolder)) : PluginFolder);
	const FString Descriptor = Folder / InstallPlan::Plugin + TEXT(".uplugin");
	if (!HostFiles::DirectoryExists(Folder))
	{
		HostProblems::Report(Folder, 0, TEXT("there is no such folder"), TEXT("Name the folder of the toolkit's plugin."));
		return FString();
	}
	if (!HostFiles::FileExists(Descriptor))
	{
		const TArray<FString> Others = HostFiles::FindFilesIn(Folder, TEXT(".uplugin"));
		const FString Message = Others.IsEmpty() ? FString(TEXT("the folder is no plugin: it has no descriptor")) : FString(TEXT("the folder is that of another plugin, ")) + FPaths::GetBaseFilename(Others[0]);
		HostProblems::Report(Folder, 0, Message, TEXT("Name the folder that holds VelmorantPro.uplugin: the module finds its plugin by that name."));
		return FString();
	}
	return Descriptor;
}

TOptional<FInstallPlan> ModuleInstall::Plan(const FString& Descriptor, const FInstallOptions& Options)
{
	InstallPlan::FPlanner Planner(Descriptor, Options);
	return Planner.Run() ? TOptional<FInstallPlan>(MoveTemp(Planner.Plan)) : TOptional<FInstallPlan>();
}

bool ModuleInstall::CheckWritable(const FInstallPlan& Plan)
{
	bool bAll = true;
	for (const FInstallFile& File : Plan.Files)
	{
		bAll &= HostFiles::CheckWritable(Plan.PluginFolder / File.Path);
	}
	return bAll;
}
