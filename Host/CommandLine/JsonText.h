// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/Array.h"
#include "Containers/StringConv.h"
#include "Containers/UnrealString.h"
#include "HostProblems.h"

#include <nlohmann/json.hpp>
#include <string>

extern template class nlohmann::basic_json<nlohmann::ordered_map>; // compiled once, in JsonText.cpp

/** The engine's strings as JSON. Members keep their order. */
using FJson = nlohmann::ordered_json;

namespace JsonText
{
	inline std::string Make(const FString& Text)
	{
		return std::string(TCHAR_TO_UTF8(*Text));
	}

	inline FJson Make(const TArray<FString>& Texts)
	{
		FJson Array = FJson::array();
		for (const FString& Text : Texts)
		{
			Array.push_back(Make(Text));
		}
		return Array;
	}

	inline FJson Make(const TArray<FHostProblem>& Problems)
	{
		FJson Array = FJson::array();
		for (const FHostProblem& Problem : Problems)
		{
			FJson& Each = Array.emplace_back(FJson{{"file", Make(Problem.File)}, {"line", Problem.Line}, {"message", Make(Problem.Message)}});
			if (!Problem.Remedy.IsEmpty())
			{
				Each["remedy"] = Make(Problem.Remedy);
			}
		}
		return Array;
	}

	/** In one line for an indent of -1. What is not valid Unicode is replaced: output must not fail. */
	std::string Print(const FJson& Json, int Indent);

	/** A discarded value for what is no JSON. @param Text UTF-8 */
	FJson Parse(const std::string& Text);
}
