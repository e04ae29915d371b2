// Copyright Velmorant. All Rights Reserved.
// Configuration files in any encoding: what is not changed stays byte for byte.

#include "FuzzEditor.h"
#include "FuzzTarget.h"
#include "HostConfig.h"
#include "Misc/ConfigCacheIni.h"
#include "Misc/FileHelper.h"

namespace IniFuzz
{
	const TCHAR* const Section = TEXT("Fuzz.Added");

	/** Loading a text and saving it again changes no byte. */
	void CheckRoundTrip(const FString& Path, std::string_view Input, const FString& Text)
	{
		FuzzTargets::Promise(FFileHelper::SaveStringToFile(Text, *Path), "what was read as text can be written");
		FuzzTargets::Promise(FuzzEditor::Read(Path) == Input, "a text that is saved as it was loaded has the same bytes");
	}

	/** A section that is added leaves what was there as it was, and can be read. */
	void CheckAddition(const FString& Path, std::string_view Input)
	{
		if (!HostConfig::UpdateSection(Path, Section, {{TEXT("Key"), TEXT("Value")}}, {}))
		{
			FuzzEditor::PromiseMessages(true);
			FuzzTargets::Promise(FuzzEditor::Read(Path) == Input, "a file that cannot be changed stays as it was");
			return;
		}
		const std::string Changed = FuzzEditor::Read(Path);
		FuzzTargets::Promise(std::string_view(Changed).starts_with(Input), "the lines before an added section stay as they were");
		FString Value;
		const bool bThere = GConfig->GetString(Section, TEXT("Key"), Value, Path);
		GConfig->UnloadFile(Path);
		FuzzEditor::PromiseMessages(!bThere); // a file can hold what only its other lines' readers refuse
		FuzzTargets::Promise(!bThere || Value.Equals(TEXT("Value")), "what was added is read");
		FuzzTargets::Promise(HostConfig::UpdateSection(Path, Section, {{TEXT("Key"), TEXT("Value")}}, {}) && FuzzEditor::Read(Path) == Changed, "what is there is not added twice");
	}
}

void FuzzTargets::CheckIni(std::string_view Input)
{
	FuzzEditor::Prepare();
	const FString Path = FuzzEditor::Write(TEXT("Config/DefaultFuzz.ini"), Input);
	FString Text;
	const bool bText = FFileHelper::LoadFileToString(Text, *Path);
	FuzzEditor::PromiseMessages(!bText);
	if (bText)
	{
		IniFuzz::CheckRoundTrip(Path, Input, Text);
	}
	if (!Text.Contains(IniFuzz::Section))
	{
		IniFuzz::CheckAddition(Path, Input);
	}
}
