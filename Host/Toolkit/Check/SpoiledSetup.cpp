// Copyright Velmorant. All Rights Reserved.

#include "Check/SpoiledSetup.h"

#include "HostConfig.h"
#include "Misc/ConfigCacheIni.h"
#include "Misc/Parse.h"

namespace SpoiledSetup
{
	const TCHAR* const Section = TEXT("/Script/Engine.CollisionProfile");

	struct FNeeded
	{
		const TCHAR* What;
		const TCHAR* Key;
	};

	const FNeeded Needed[] = {
		{Profile, TEXT("Profiles")},
		{Channel, TEXT("DefaultChannelResponses")},
	};

	bool IsOfUnitVolumes(const FString& Value)
	{
		FString Name;
		return FParse::Value(*Value, TEXT("Name="), Name) && Name == TEXT("UnitVolume");
	}

	bool IsThere(const FNeeded& Each)
	{
		TArray<FString> Values;
		GConfig->GetArray(Section, Each.Key, Values, GEngineIni);
		return Values.ContainsByPredicate(&IsOfUnitVolumes);
	}

	bool HasProfile()
	{
		return IsThere(Needed[0]);
	}

	TArray<FSpoiler> Find()
	{
		const TArray<HostConfig::FRemovedValue> Removed = HostConfig::GetRemovedValues(TEXT("Engine"), Section);
		TArray<FSpoiler> Spoilers;
		for (const FNeeded& Each : Needed)
		{
			const auto IsMeant = [&Each](const HostConfig::FRemovedValue& Value) { return Value.Key == Each.Key && IsOfUnitVolumes(Value.Value); };
			const HostConfig::FRemovedValue* Last = nullptr;
			for (const HostConfig::FRemovedValue& Value : Removed)
			{
				Last = IsMeant(Value) ? &Value : Last;
			}
			if (Last != nullptr && !IsThere(Each))
			{
				Spoilers.Add(FSpoiler{Each.What, Last->File, Last->Line, Last->LineText});
			}
		}
		return Spoilers;
	}
}
