// Copyright Velmorant. All Rights Reserved.

#include "DescriptorReader.h"

#include "Containers/StringConv.h"
#include "HostJsonFault.h"
#include "HostProblems.h"
#include "HostTextFiles.h"

#include <nlohmann/json.hpp>

#include <string>

namespace DescriptorReader
{
	FString ToFString(const std::string& Utf8)
	{
		return FString(UTF8_TO_TCHAR(Utf8.c_str()));
	}

	/** Null for a member that is not there. */
	const nlohmann::json* FindMember(const nlohmann::json& Object, const char* Member)
	{
		const auto Found = Object.find(Member);
		return Found != Object.end() ? &*Found : nullptr;
	}

	bool IsName(const FString& Text)
	{
		return !Text.IsEmpty() && Text.Len() < NAME_SIZE;
	}

	bool Parse(const FString& File, const std::string& Text, nlohmann::json& OutRoot)
	{
		OutRoot = nlohmann::json::parse(Text, nullptr, false);
		if (OutRoot.is_discarded())
		{
			const FHostJsonFault Fault = HostJsonFault::Find(Text);
			HostProblems::Report(File, Fault.Line, FString(TEXT("not valid JSON: ")) + Fault.Message, TEXT("Correct the JSON of this file."));
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
		// Beyond 64 bits, a number is no integer any more.
		const bool bFits = Value->is_number_integer() && (Value->is_number_unsigned() ? Value->get<uint64>() <= static_cast<uint64>(MAX_int32) : Value->get<int64>() >= MIN_int32);
		if (bFits)
		{
			OutNumber = Value->get<int32>();
		}
		else
		{
			ReportWrongType(FString(), Member, TEXT("a whole number from -2147483648 to 2147483647"));
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
		Module.LoadingPhase = ELoadingPhase::FromString(*Phase);
		const bool bNamed = DescriptorReader::IsName(Name);
		if (!bNamed || Module.LoadingPhase == ELoadingPhase::Max)
		{
			ReportWrongType(Where, bNamed ? "LoadingPhase" : "Name", bNamed ? TEXT("a loading phase") : TEXT("the name of a module, of at most 1023 characters"));
			continue;
		}
		Module.Name = FName(*Name);
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
		if (!DescriptorReader::IsName(Plugin.Name))
		{
			ReportWrongType(Where, "Name", TEXT("the name of a plugin, of at most 1023 characters"));
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
