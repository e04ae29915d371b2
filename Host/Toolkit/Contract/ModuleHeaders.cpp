// Copyright Velmorant. All Rights Reserved.

#include "Contract/ModuleHeaders.h"

#include "Containers/StringConv.h"
#include "HeaderParser.h"
#include "HostFiles.h"
#include "HostTextFiles.h"
#include "Lexer.h"
#include "Misc/Paths.h"
#include "TextTools.h"

#include <algorithm>
#include <sstream>

namespace ModuleHeaders
{
	constexpr const char* FoldersForOthers[] = {"Public/", "Classes/"};
}

std::string FModuleHeader::GetIncludePath() const
{
	for (const std::string Folder : ModuleHeaders::FoldersForOthers)
	{
		if (WithinModule.starts_with(Folder))
		{
			return WithinModule.substr(Folder.size());
		}
	}
	return std::string();
}

std::string FModuleHeader::GetFileName() const
{
	return WithinModule.substr(WithinModule.find_last_of('/') + 1);
}

const FDeclaredType* FModuleHeader::FindType(const std::string& Name) const
{
	const auto Found = std::find_if(Types.begin(), Types.end(), [&Name](const FDeclaredType& Type) { return Type.Name == Name; });
	return Found != Types.end() ? &*Found : nullptr;
}

std::string FModuleHeader::GetDeclaration(int Line) const
{
	const std::string Text = Line > 0 && static_cast<size_t>(Line) <= Lines.size() ? Lines[static_cast<size_t>(Line) - 1] : std::string();
	return HeaderTool::Trim(Text.substr(0, std::min({Text.find(';'), Text.find('{'), Text.find(" = "), Text.find("//")})));
}

namespace ModuleHeaders
{
	std::string ToUtf8(const FString& Text)
	{
		return TCHAR_TO_UTF8(*Text);
	}

	std::vector<std::string> SplitLines(const std::string& Text)
	{
		std::vector<std::string> Lines;
		std::stringstream Stream(Text);
		for (std::string Line; std::getline(Stream, Line);)
		{
			Lines.push_back(Line.substr(0, Line.find('\r')));
		}
		return Lines;
	}

	/** Comments in some eight-bit encoding, as old headers have them, do no harm: what counts is ASCII. False, with the reason reported. */
	bool ReadText(const FString& Path, std::string& OutText)
	{
		const bool bRead = HostFiles::Read(Path, OutText) == HostFiles::ERead::Done;
		const bool bUtf16 = OutText.starts_with("\xFF\xFE") || OutText.starts_with("\xFE\xFF");
		return bRead && (!bUtf16 || HostTextFiles::ReadUtf8(Path, OutText) == HostFiles::ERead::Done);
	}

	void Parse(const std::string& Text, FModuleHeader& Header)
	{
		Header.Lines = SplitLines(Text);
		std::vector<HeaderTool::FToken> Tokens;
		HeaderTool::FDiagnostics Ignored; // the parser below reports the same
		Header.bRead = HeaderTool::Tokenize(Header.Path, Text, Tokens, Ignored);
		if (Header.bRead)
		{
			Header.Types = DeclaredTypes::Find(Tokens);
		}
		HeaderTool::ParseHeader(Text, Header.Model, Header.Diagnostics);
	}

	FString FindModule(const FString& PluginFolder, const std::string& Module)
	{
		const FString Source = PluginFolder / TEXT("Source");
		const FString Direct = Source / FString(Module.c_str());
		if (HostFiles::DirectoryExists(Direct))
		{
			return Direct;
		}
		for (const FString& Rules : HostFiles::FindFiles(Source, TEXT(".Build.cs")))
		{
			if (FPaths::GetCleanFilename(Rules).Equals(FString(Module.c_str()) + TEXT(".Build.cs")))
			{
				return FPaths::GetPath(Rules);
			}
		}
		return FString();
	}

	FString FindModule(const TArray<FString>& PluginFolders, const std::string& Module)
	{
		TArray<FString> Beside;
		for (const FString& Plugin : PluginFolders)
		{
			const FString Found = FindModule(Plugin, Module);
			if (!Found.IsEmpty())
			{
				return Found;
			}
			Beside.Append(HostFiles::FindDirectories(FPaths::GetPath(HostFiles::Resolve(Plugin))));
		}
		for (const FString& Folder : Beside)
		{
			const bool bPlugin = !HostFiles::FindFilesIn(Folder, TEXT(".uplugin")).IsEmpty();
			const FString Found = bPlugin ? FindModule(Folder, Module) : FString();
			if (!Found.IsEmpty())
			{
				return Found;
			}
		}
		return FString();
	}

	FModuleHeaders Read(const std::string& Module, const FString& Folder)
	{
		FModuleHeaders Result{Module, HostFiles::Resolve(Folder), {}};
		for (const FString& Path : HostFiles::FindFiles(Result.Folder, TEXT(".h")))
		{
			std::unique_ptr<FModuleHeader> Header = std::make_unique<FModuleHeader>();
			Header->Path = ToUtf8(Path);
			Header->WithinModule = Header->Path.substr(ToUtf8(Result.Folder).size() + 1);
			Header->Model.Path = Header->Path;
			Header->Model.IncludePath = Header->GetIncludePath();
			Header->Model.Module = Module;
			std::string Text;
			if (ReadText(Path, Text))
			{
				Parse(Text, *Header);
			}
			Result.Headers.push_back(std::move(Header));
		}
		return Result;
	}
}
