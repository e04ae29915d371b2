// Copyright Velmorant. All Rights Reserved.
// Texts: patterns with arguments, encodings, lists, and values of structs in the engine's text form.

#include "Containers/StringConv.h"
#include "FuzzEditor.h"
#include "FuzzTarget.h"
#include "Internationalization/Text.h"
#include "UObject/Class.h"
#include "VelmorantConfiguratorTypes.h"
#include "VelmorantSDKTypes.h"

namespace TextFuzz
{
	void CheckFormat(const FString& Pattern)
	{
		const FText Result = FText::Format(FTextFormat(FText::FromString(Pattern)), FText::FromString(TEXT("first")), 2, 3.5);
		const bool bPlain = !Pattern.Contains(TEXT("{")) && !Pattern.Contains(TEXT("}")) && !Pattern.Contains(TEXT("`"));
		FuzzTargets::Promise(!bPlain || Result.ToString().Equals(Pattern), "a pattern without braces is its own result");
		FFormatNamedArguments Named;
		Named.Add(TEXT("Name"), FText::FromString(Pattern));
		const FString Whole = FText::Format(FTextFormat(FText::FromString(TEXT("<{Name}>"))), Named).ToString();
		FuzzTargets::Promise(Whole.Equals(TEXT("<") + Pattern + TEXT(">")), "arguments are not read as patterns");
	}

	void CheckEncoding(const FString& Text)
	{
		const std::string Utf8(TCHAR_TO_UTF8(*Text));
		FuzzTargets::Promise(FuzzEditor::ToText(Utf8).Equals(Text) || Text.Contains(TEXT("\uFFFD")) || Utf8.find('?') != std::string::npos, "UTF-8 keeps a text");
	}

	void CheckList(const FString& Text)
	{
		TArray<FString> Parts;
		Text.ParseIntoArray(Parts, TEXT(","), false);
		FuzzTargets::Promise(FString::Join(Parts, TEXT(",")).Equals(Text), "a list that is taken apart can be joined again");
	}

	/** A value that was read is written such that it reads as the same value. */
	template<typename StructType>
	void CheckStruct(const FString& Text)
	{
		UScriptStruct* Struct = StructType::StaticStruct();
		StructType First;
		if (Struct->ImportText(*Text, &First, nullptr, 0, nullptr, Struct->GetName()) == nullptr)
		{
			return;
		}
		FString Written;
		Struct->ExportText(Written, &First, nullptr, nullptr, 0, nullptr);
		StructType Second;
		FuzzTargets::Promise(Struct->ImportText(*Written, &Second, nullptr, 0, nullptr, Struct->GetName()) != nullptr, "what was written can be read");
		FString Again;
		Struct->ExportText(Again, &Second, nullptr, nullptr, 0, nullptr);
		FuzzTargets::Promise(Again.Equals(Written), "a value is the same after it was written and read");
	}
}

void FuzzTargets::CheckText(std::string_view Input)
{
	FuzzEditor::Prepare();
	const FString Text = FuzzEditor::ToText(Input);
	TextFuzz::CheckFormat(Text);
	TextFuzz::CheckEncoding(Text);
	TextFuzz::CheckList(Text);
	TextFuzz::CheckStruct<FVelmorantConfigUnit>(Text);
	TextFuzz::CheckStruct<FVelmorantUserInformation>(Text);
}
