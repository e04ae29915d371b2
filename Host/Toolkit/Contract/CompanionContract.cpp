// Copyright Velmorant. All Rights Reserved.

#include "Contract/CompanionContract.h"

#include "Contract/CompanionTables.h"
#include "Containers/StringConv.h"
#include "Contract/ExpectedHeader.h"
#include "HostFiles.h"
#include "HostProblems.h"
#include "HostTextFiles.h"
#include "Contract/ModuleHeaders.h"
#include "Contract/NameCheck.h"

#include <algorithm>
#include <regex>
#include <sstream>

bool FContractReport::IsSound() const
{
	const bool bAllModules = std::none_of(Modules.begin(), Modules.end(), [](const FContractPlace& Module) { return Module.Presence == EPresence::Missing; });
	return bAllModules && Given.empty();
}

namespace CompanionContract
{
	using FAllHeaders = std::vector<FModuleHeaders>;
	using FTypes = std::vector<std::vector<FExpectedName>>; // each with its members

	FTypes SplitByType(const std::vector<FExpectedName>& Names)
	{
		FTypes Types;
		for (const FExpectedName& Name : Names)
		{
			if (Name.Member.empty())
			{
				Types.emplace_back();
			}
			Types.back().push_back(Name);
		}
		return Types;
	}

	std::vector<std::string> GetModules(const std::vector<FExpectedName>& Names)
	{
		std::vector<std::string> Modules;
		for (const FExpectedName& Name : Names)
		{
			if (std::find(Modules.begin(), Modules.end(), Name.Module) == Modules.end())
			{
				Modules.push_back(Name.Module);
			}
		}
		return Modules;
	}

	FTypeIndex MakeIndex(const FAllHeaders& Modules)
	{
		FTypeIndex Index;
		for (const FModuleHeaders& Module : Modules)
		{
			Index.Add(Module);
		}
		return Index;
	}

	FAllHeaders ReadReference(const FString& Folder, const std::vector<std::string>& Modules)
	{
		FAllHeaders Result;
		for (const std::string& Module : Modules)
		{
			Result.push_back(ModuleHeaders::Read(Module, Folder / FString(Module.c_str())));
		}
		return Result;
	}

	FAllHeaders ReadCompanions(const TArray<FString>& PluginFolders, const std::vector<std::string>& Modules, FContractReport& Report)
	{
		FAllHeaders Result;
		for (const std::string& Module : Modules)
		{
			const FString Folder = ModuleHeaders::FindModule(PluginFolders, Module);
			const bool bFound = !Folder.IsEmpty();
			Report.Modules.push_back({Module, bFound ? EPresence::Found : EPresence::Missing, std::string(TCHAR_TO_UTF8(*Folder))});
			if (bFound)
			{
				Result.push_back(ModuleHeaders::Read(Module, Folder));
			}
		}
		return Result;
	}

	/** What else the plugins' sources hold: a header or type that has moved to another module is to be found. */
	void ReadOthers(const TArray<FString>& PluginFolders, FAllHeaders& Modules)
	{
		std::set<std::string> Known;
		for (const FModuleHeaders& Module : Modules)
		{
			for (const std::unique_ptr<FModuleHeader>& Header : Module.Headers)
			{
				Known.insert(Header->Path);
			}
		}
		for (const FString& Plugin : PluginFolders)
		{
			FModuleHeaders Others = ModuleHeaders::Read("", Plugin / TEXT("Source"));
			std::erase_if(Others.Headers, [&Known](const std::unique_ptr<FModuleHeader>& Header) { return Known.count(Header->Path) > 0; });
			Modules.push_back(std::move(Others));
		}
	}

	/** By the paths that they are included with. */
	std::set<std::string> FindIncludes(const FString& ModuleFolder)
	{
		static const std::regex Include("^\\s*#\\s*include\\s+\"([^\"]+)\"");
		std::set<std::string> Paths;
		for (const FString& File : HostFiles::FindFiles(ModuleFolder, FString()))
		{
			std::string Text;
			std::smatch Match;
			if ((File.EndsWith(TEXT(".h")) || File.EndsWith(TEXT(".cpp"))) && HostTextFiles::ReadUtf8(File, Text) == HostFiles::ERead::Done)
			{
				std::stringstream Lines(Text);
				for (std::string Line; std::getline(Lines, Line);)
				{
					if (std::regex_search(Line, Match, Include))
					{
						Paths.insert(Match[1]);
					}
				}
			}
		}
		return Paths;
	}

	FContractPlace FindHeader(const std::string& Include, const FAllHeaders& Modules)
	{
		const std::string FileName = Include.substr(Include.find_last_of('/') + 1);
		FContractPlace Place{Include, EPresence::Missing, ""};
		for (const FModuleHeaders& Module : Modules)
		{
			for (const std::unique_ptr<FModuleHeader>& Header : Module.Headers)
			{
				if (Header->GetIncludePath() == Include)
				{
					return {Include, EPresence::Found, Header->Path};
				}
				if (Header->GetFileName() == FileName)
				{
					Place = {Include, EPresence::Elsewhere, Header->Path};
				}
			}
		}
		return Place;
	}

	/** Those of the included headers that are the companions'. */
	void FindHeaders(const FString& ModuleFolder, const FAllHeaders& Reference, const FAllHeaders& Companions, FContractReport& Report)
	{
		for (const std::string& Include : FindIncludes(ModuleFolder))
		{
			if (FindHeader(Include, Reference).Presence == EPresence::Found)
			{
				Report.Headers.push_back(FindHeader(Include, Companions));
			}
		}
	}

	/** A header of which not even the words could be read: what it has was not found, and is not missing for that. */
	const FModuleHeader* FindUnreadable(const std::string& IncludePath, const FAllHeaders& Modules)
	{
		for (const FModuleHeaders& Module : Modules)
		{
			for (const std::unique_ptr<FModuleHeader>& Header : Module.Headers)
			{
				if (!Header->bRead && Header->GetFileName() == IncludePath.substr(IncludePath.find_last_of('/') + 1))
				{
					return Header.get();
				}
			}
		}
		return nullptr;
	}

	void ListUnread(const std::set<const FModuleHeader*>& Headers, FContractReport& Report)
	{
		for (const FModuleHeader* Header : Headers)
		{
			std::stringstream Lines;
			Header->Diagnostics.Print(Lines);
			for (std::string Line; std::getline(Lines, Line);)
			{
				Report.Unread.push_back(Line);
			}
		}
		std::sort(Report.Unread.begin(), Report.Unread.end());
	}

	void CheckNames(const FTypes& Types, const HeaderTool::FHeader& Expected, const FAllHeaders& Reference, const FAllHeaders& Companions, FContractReport& Report)
	{
		const FTypeIndex ReferenceTypes = MakeIndex(Reference);
		const FTypeIndex CompanionTypes = MakeIndex(Companions);
		FNameCheck Check(Expected, CompanionTypes, ReferenceTypes, Report);
		std::set<const FModuleHeader*> Unreadable;
		for (const std::vector<FExpectedName>& Type : Types)
		{
			const bool bModule = std::any_of(Companions.begin(), Companions.end(), [&Type](const FModuleHeaders& Module) { return Module.Module == Type[0].Module; });
			const bool bDeclared = CompanionTypes.Find(Type[0].Type).Header != nullptr;
			const FModuleHeader* Header = bDeclared ? nullptr : FindUnreadable(Type[0].Header, Companions);
			if (Header != nullptr)
			{
				Unreadable.insert(Header);
			}
			else if (bModule || bDeclared)
			{
				Check.Check(Type);
			}
		}
		Unreadable.insert(Check.GetHeaders().begin(), Check.GetHeaders().end());
		ListUnread(Unreadable, Report);
	}

	TOptional<FContractReport> Check(const FContractRequest& Request)
	{
		std::vector<FExpectedName> Names;
		if (!CompanionTables::Read(Request.Tables, Names))
		{
			return TOptional<FContractReport>();
		}
		HeaderTool::FHeader Expected;
		HeaderTool::FDiagnostics Faults;
		ExpectedHeader::Parse(Names, Expected, Faults);
		for (const HeaderTool::FDiagnostic& Fault : Faults.GetErrors())
		{
			HostProblems::Report(Request.Tables, 0, FString(UTF8_TO_TCHAR(("a declaration of the tables cannot be read: " + Fault.Message).c_str())), TEXT("Restore the file: it belongs to this program."));
		}
		if (Faults.HasErrors())
		{
			return TOptional<FContractReport>();
		}
		FContractReport Report;
		const std::vector<std::string> Modules = GetModules(Names);
		const FAllHeaders Reference = ReadReference(Request.ReferenceFolder, Modules);
		FAllHeaders Companions = ReadCompanions(Request.PluginFolders, Modules, Report);
		ReadOthers(Request.PluginFolders, Companions);
		FindHeaders(Request.ModuleFolder, Reference, Companions, Report);
		CheckNames(SplitByType(Names), Expected, Reference, Companions, Report);
		return Report;
	}
}
