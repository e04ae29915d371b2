// Copyright Velmorant. All Rights Reserved.
// Assets and levels: refused with a message, or read, and then saved alike however often.

#include "FuzzEditor.h"
#include "FuzzTarget.h"
#include "HostObjects.h"
#include "HostPackages.h"
#include "UObject/Package.h"

namespace AssetFuzz
{
	constexpr int32 BetweenCollections = 32; // inputs

	/** What is saved of the asset of that file; empty when it was refused or cannot be saved. */
	std::string LoadAndSave(const FString& Path)
	{
		UPackage* Package = HostPackages::Load(TEXT("/Game/A"));
		FuzzEditor::PromiseMessages(Package == nullptr);
		if (Package == nullptr)
		{
			return std::string();
		}
		const bool bSaved = HostPackages::Save(Package).Succeeded();
		FuzzEditor::PromiseMessages(!bSaved);
		HostPackages::Displace(Package);
		return bSaved ? FuzzEditor::Read(Path) : std::string();
	}
}

void FuzzTargets::CheckAsset(std::string_view Input)
{
	FuzzEditor::Prepare();
	const FString Path = FuzzEditor::Write(TEXT("Content/A.uasset.json"), Input);
	const std::string Saved = AssetFuzz::LoadAndSave(Path);
	if (!Saved.empty())
	{
		Promise(AssetFuzz::LoadAndSave(Path) == Saved, "what was saved is read and saved alike");
	}
	static int32 NumInputs = 0;
	if (++NumInputs % AssetFuzz::BetweenCollections == 0)
	{
		HostObjects::CollectGarbage();
	}
}
