// Copyright Velmorant. All Rights Reserved.

#include "DescriptorReader.h"

#include "Containers/StringConv.h"
#include "HostProblems.h"
#include "HostTextFiles.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <string>

namespace DescriptorReader
{
	namespace
	{
		FString ToFString(const std::string& Utf8)
		{
			return FString(UTF8_TO_TCHAR(Utf8.c_str()));
		}

		/** One-based line of a byte. */
		int32 LineOf(const std::string& Text, size_t Byte)
		{
			const std::ptrdiff_t End = static_cast<std::ptrdiff_t>(std::min(Byte, Text.size()));
			return 1 + static_cast<int32>(std::count(Text.begin(), Text.begin() + End, '\n'));
		}

		/** What the library says, without its own number and position in front. */
		FString Explain(const std::string& What)
		{
			const size_t Colon = What.find(": ");
			return ToFString(Colon == std::string::npos ? What : What.substr(Colon + 2));
		}

		/** Null for a member that is not there. */
		const nlohmann::json* FindMember(const nlohmann::json& Object, const char* Member)
		{
			const auto Found = Object.find(Member);
			return Found != Object.end() ? &*Found : nullptr;
		}

		bool Parse(const FString& File, const std::string& Text, nlohmann::json& OutRoot)
		{
			try
			{
				OutRoot = nlohmann::json::parse(Text);
			}
			catch (const nlohmann::json::parse_error& Error)
			{
				HostProblems::Report(File, LineOf(Text, Error.byte > 0 ? Error.byte - 1 : 0), Explain(Error.what()), TEXT("Correct the JSON of this file."));
				return false;
			}
			if (!OutRoot.is_object())
			{
				HostProblems::Report(File, 1, TEXT("the file must hold one JSON object in braces"), TEXT("Compare it with another descriptor."));
				return false;
			}
			return true;
		}
	}
}

std::unique_ptr<FDescriptorReader> FDescriptorReader::Open(const FString& File)
{
	std::string Text;
	const HostFiles::ERead Read = HostTextFiles::ReadUtf8(File, Text);
	if (Read == HostFiles::ERead::Missing)
	{
		HostProblems::Report(File, 0, TEXT("there is no such file"), TEXT("Check its path."));
	}
	nlohmann::json Parsed;
	if (Read != HostFiles::ERead::Done || !DescriptorReader::Parse(File, Text, Parsed))
	{
		return nullptr;
	}
	return std::unique_ptr<FDescriptorReader>(new FDescriptorReader(File, std::move(Parsed)));
}

FDescriptorReader::FDescriptorReader(const FString& InFile, nlohmann::json&& InRoot)
	: File(InFile)
	, Root(std::make_unique<nlohmann::json>(std::move(InRoot)))
{
}

FDescriptorReader::~FDescriptorReader() = default;

void FDescriptorReader::Read(const char* Member, FString& OutText)
{
	ReadText(*Root, Member, FString(), OutText);
}

void FDescriptorReader::Read(const char* Member, bool& bOutFlag)
{
	ReadFlag(*Root, Member, FString(), bOutFlag);
}

void FDescriptorReader::Read(const char* Member, int32& OutNumber)
{
	if (const nlohmann::json* Value = DescriptorReader::FindMember(*Root, Member))
	{
		if (Value->is_number_integer())
		{
			OutNumber = Value->get<int32>();
		}
		else
		{
			ReportWrongType(FString(), Member, TEXT("a whole number"));
		}
	}
}

void FDescriptorReader::ReadModules(TArray<FModuleDescriptor>& OutModules)
{
	const nlohmann::json* Modules = DescriptorReader::FindMember(*Root, "Modules");
	if (Modules == nullptr)
	{
		return;
	}
	if (!Modules->is_array())
	{
		ReportWrongType(FString(), "Modules", TEXT("a list"));
		return;
	}
	for (size_t Index = 0; Index < Modules->size(); ++Index)
	{
		const FString Where = FString::Printf(TEXT("Modules[%d]."), static_cast<int32>(Index));
		FString Name;
		FString Phase = TEXT("Default");
		FModuleDescriptor Module;
		ReadText((*Modules)[Index], "Name", Where, Name);
		ReadText((*Modules)[Index], "Type", Where, Module.Type);
		ReadText((*Modules)[Index], "LoadingPhase", Where, Phase);
		Module.Name = FName(*Name);
		Module.LoadingPhase = ELoadingPhase::FromString(*Phase);
		if (Name.IsEmpty() || Module.LoadingPhase == ELoadingPhase::Max)
		{
			ReportWrongType(Where, Name.IsEmpty() ? "Name" : "LoadingPhase", Name.IsEmpty() ? TEXT("the name of a module") : TEXT("a loading phase"));
			continue;
		}
		OutModules.Add(MoveTemp(Module));
	}
}

void FDescriptorReader::ReadPlugins(TArray<FPluginReferenceDescriptor>& OutPlugins)
{
	const nlohmann::json* Plugins = DescriptorReader::FindMember(*Root, "Plugins");
	if (Plugins == nullptr)
	{
		return;
	}
	if (!Plugins->is_array())
	{
		ReportWrongType(FString(), "Plugins", TEXT("a list"));
		return;
	}
	for (size_t Index = 0; Index < Plugins->size(); ++Index)
	{
		const FString Where = FString::Printf(TEXT("Plugins[%d]."), static_cast<int32>(Index));
		FPluginReferenceDescriptor Plugin;
		ReadText((*Plugins)[Index], "Name", Where, Plugin.Name);
		ReadFlag((*Plugins)[Index], "Enabled", Where, Plugin.bEnabled);
		ReadFlag((*Plugins)[Index], "Optional", Where, Plugin.bOptional);
		if (Plugin.Name.IsEmpty())
		{
			ReportWrongType(Where, "Name", TEXT("the name of a plugin"));
			continue;
		}
		OutPlugins.Add(MoveTemp(Plugin));
	}
}

void FDescriptorReader::ReadText(const nlohmann::json& Object, const char* Member, const FString& Where, FString& OutText)
{
	if (const nlohmann::json* Value = DescriptorReader::FindMember(Object, Member))
	{
		if (Value->is_string())
		{
			OutText = DescriptorReader::ToFString(Value->get_ref<const std::string&>());
		}
		else
		{
			ReportWrongType(Where, Member, TEXT("a text in quotes"));
		}
	}
}

void FDescriptorReader::ReadFlag(const nlohmann::json& Object, const char* Member, const FString& Where, bool& bOutFlag)
{
	if (const nlohmann::json* Value = DescriptorReader::FindMember(Object, Member))
	{
		if (Value->is_boolean())
		{
			bOutFlag = Value->get<bool>();
		}
		else
		{
			ReportWrongType(Where, Member, TEXT("true or false"));
		}
	}
}

void FDescriptorReader::ReportWrongType(const FString& Where, const char* Member, const TCHAR* Wanted)
{
	bSound = false;
	HostProblems::Report(File, 0, FString(TEXT("\"")) + Where + FString(Member) + TEXT("\" must be ") + Wanted, TEXT("Correct this member of the file."));
}
