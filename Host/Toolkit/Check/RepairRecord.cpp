// Copyright Velmorant. All Rights Reserved.

#include "Check/RepairRecord.h"

#include "HostLeftovers.h"
#include "HostPaths.h"
#include "HostProblems.h"
#include "JsonText.h"
#include "LineDifference.h"
#include "Misc/Paths.h"

#include <algorithm>
#include <cinttypes>
#include <cstdint>
#include <cstdio>
#include <string>

namespace RepairRecord
{
	/** FNV-1a: the same in every build, unlike std::hash. */
	uint64_t Hash(std::string_view Text)
	{
		uint64_t Value = 0xcbf29ce484222325u;
		for (const char Byte : Text)
		{
			Value = (Value ^ static_cast<unsigned char>(Byte)) * 0x100000001b3u;
		}
		return Value;
	}

	std::string GetKey(const FString& ProjectDir)
	{
		return JsonText::Make(HostFiles::Resolve(ProjectDir));
	}

	FString GetFile(const std::string& Key)
	{
		char Name[40];
		std::snprintf(Name, sizeof(Name), "repair-%016" PRIx64 ".json", Hash(Key));
		return HostPaths::GetUserStateDir() + Name;
	}

	FJson ToJson(const std::string& Key, const FRepairRecord& Record)
	{
		FJson Added = FJson::array();
		for (const TArray<FString>& Run : Record.Added)
		{
			Added.push_back(JsonText::Make(Run));
		}
		return FJson{{"project", Key}, {"created", Record.bCreated}, {"added", Added}};
	}

	/** @return false when the document is something else. */
	bool FromJson(const FJson& Json, FRepairRecord& OutRecord)
	{
		const auto IsText = [](const FJson& Line) { return Line.is_string(); };
		if (!Json.is_object() || !Json.contains("project") || !Json["project"].is_string() || !Json.contains("created") || !Json["created"].is_boolean() || !Json.contains("added") || !Json["added"].is_array())
		{
			return false;
		}
		OutRecord.bCreated = Json["created"].get<bool>();
		for (const FJson& Run : Json["added"])
		{
			if (!Run.is_array() || !std::all_of(Run.begin(), Run.end(), IsText))
			{
				return false;
			}
			TArray<FString>& Lines = OutRecord.Added.AddDefaulted_GetRef();
			for (const FJson& Line : Run)
			{
				Lines.Add(LineDifference::ToString(Line.get_ref<const std::string&>()));
			}
		}
		return true;
	}

	bool Make(std::string_view Before, std::string_view After, FRepairRecord& OutRecord)
	{
		LineDifference::DropCommonEnds(Before, After);
		const LineDifference::FLines New = LineDifference::Split(After);
		for (const LineDifference::FEdit& Edit : LineDifference::FindEdits(LineDifference::Split(Before), New))
		{
			if (Edit.OldBegin != Edit.OldEnd)
			{
				return false;
			}
			TArray<FString>& Run = OutRecord.Added.AddDefaulted_GetRef();
			for (size_t Index = Edit.NewBegin; Index < Edit.NewEnd; ++Index)
			{
				Run.Add(LineDifference::ToString(New[Index]));
			}
		}
		return true;
	}

	void RemoveLeftovers(const FString& IniFile)
	{
		HostLeftovers::RemoveBelow(FPaths::GetPath(IniFile));
		HostLeftovers::RemoveBelow(HostPaths::GetUserStateDir());
	}

	bool Save(const FString& ProjectDir, const FRepairRecord& Record)
	{
		const std::string Key = GetKey(ProjectDir);
		return HostFiles::Write(GetFile(Key), JsonText::Print(ToJson(Key, Record), 2) + "\n");
	}

	HostFiles::ERead Load(const FString& ProjectDir, FRepairRecord& OutRecord)
	{
		const std::string Key = GetKey(ProjectDir);
		const FString File = GetFile(Key);
		std::string Text;
		const HostFiles::ERead Read = HostFiles::Read(File, Text);
		if (Read != HostFiles::ERead::Done)
		{
			return Read;
		}
		const FJson Json = JsonText::Parse(Text);
		if (!FromJson(Json, OutRecord))
		{
			HostProblems::Report(File, 0, TEXT("the file is no record of a repair"), TEXT("Delete it; that repair can only be taken back by hand."));
			return HostFiles::ERead::Failed;
		}
		return Json["project"] == Key ? HostFiles::ERead::Done : HostFiles::ERead::Missing; // another project's, by a rare chance
	}

	bool Forget(const FString& ProjectDir)
	{
		return HostFiles::Delete(GetFile(GetKey(ProjectDir)));
	}
}
