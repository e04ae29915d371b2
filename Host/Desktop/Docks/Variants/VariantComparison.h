// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "QtHeaders.h"

#include "CoreMinimal.h"

class ULevelVariantSets;
class UVelmorantConfiguratorDataAsset;
struct FVelmorantConfigUnit;

/** How something in level variant sets stands to the configurator that they were made from. */
enum class EVariantState : uint8
{
	Unknown, // there is no configurator to compare with
	Same,
	Missing, // the configurator has it, the sets have not
	New, // the service offers it, the configurator's asset does not know it yet
	Stale, // it is in the sets alone, or a namesake before it is found in its place
};

struct FVariantRow
{
	QString Name;
	QString Origin; // what it stands for in the configurator; empty without
	EVariantState State = EVariantState::Unknown;
	std::vector<FVariantRow> Variants; // of a set
};

/** Level variant sets beside their configurator. Names are made and found as those do it that write and use the sets. */
namespace VariantComparison
{
	struct FSides
	{
		ULevelVariantSets* Sets = nullptr;
		const UVelmorantConfiguratorDataAsset* Configurator = nullptr;
		const FVelmorantConfigUnit* Service = nullptr; // the record of the service as last received; null when it is not known
	};

	/** The sets with their variants in their order, then in each place what they miss. Any side may be null. */
	std::vector<FVariantRow> Compare(const FSides& Sides);

	/** Another number when something changed that Compare() looks at. */
	uint32 Fingerprint(const FSides& Sides);

	/** What of the service's data belongs to the configurator; null while nobody is signed in, or its project is not selected. */
	const FVelmorantConfigUnit* FindService(const UVelmorantConfiguratorDataAsset& Configurator);
}
