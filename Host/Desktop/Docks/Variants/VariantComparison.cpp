// Copyright Velmorant. All Rights Reserved.

#include "Docks/Variants/VariantComparison.h"

#include "ConfiguratorWrapper.h"
#include "LevelVariantSets.h"
#include "ProjectWrapper.h"
#include "QtText.h"
#include "Variant.h"
#include "VariantSet.h"
#include "VelmorantConfiguratorDataAsset.h"
#include "VelmorantDeveloperUser.h"
#include "VelmorantProjectRequestManager.h"
#include "VelmorantSDKEngineSubsystem.h"
#include "VelmorantVariantHandler.h"

namespace VariantComparison
{
	/** What ought to be there, by the name that the sets have for it. */
	struct FExpected
	{
		FString Name;
		QString Origin;
		bool bInAsset = false; // else the service alone has it
		TArray<FExpected> Variants;
		TMap<FString, int32> VariantsByName;
	};

	struct FExpectations
	{
		TArray<FExpected> Sets;
		TMap<FString, int32> SetsByName;
	};

	FExpected& FindOrAdd(TArray<FExpected>& All, TMap<FString, int32>& ByName, const FString& Name, const QString& Origin)
	{
		if (const int32* const Known = ByName.Find(Name))
		{
			return All[*Known];
		}
		FExpected Fresh;
		Fresh.Name = Name;
		Fresh.Origin = Origin;
		ByName.Add(Name, All.Num());
		return All[All.Add(Fresh)];
	}

	void Expect(FExpectations& Expectations, const FVelmorantConfigUnit& Unit, bool bInAsset)
	{
		for (const FVelmorantConfigRoom& Room : Unit.Rooms)
		{
			for (const FVelmorantConfigGroup& Group : Room.Groups)
			{
				const QString Origin = QtText::From(Room.Name) + QStringLiteral(" › ") + QtText::From(Group.Name);
				FExpected& Set = FindOrAdd(Expectations.Sets, Expectations.SetsByName, UVelmorantVariantHandler::CombineVariantSet(Room.Name, Group.Name), Origin);
				Set.bInAsset |= bInAsset;
				for (const FVelmorantConfigProduct& Product : Group.Products)
				{
					FindOrAdd(Set.Variants, Set.VariantsByName, Product.Name, Origin).bInAsset |= bInAsset;
				}
			}
		}
	}

	FVariantRow DescribeAbsent(const FExpected& Expected)
	{
		FVariantRow Row;
		Row.Name = QtText::From(Expected.Name);
		Row.Origin = Expected.Origin;
		Row.State = Expected.bInAsset ? EVariantState::Missing : EVariantState::New;
		for (const FExpected& Variant : Expected.Variants)
		{
			Row.Variants.push_back(DescribeAbsent(Variant));
		}
		return Row;
	}

	FVariantRow DescribePresent(const FString& Name, const FExpected* Expected, bool bFound, bool bKnown)
	{
		FVariantRow Row;
		Row.Name = QtText::From(Name);
		Row.Origin = Expected != nullptr ? Expected->Origin : QString();
		if (bKnown)
		{
			Row.State = Expected != nullptr && bFound ? EVariantState::Same : EVariantState::Stale;
		}
		return Row;
	}

	FVariantRow DescribeSet(UVariantSet& Set, const FExpected* Expected, bool bFound, bool bKnown)
	{
		FVariantRow Row = DescribePresent(Set.GetDisplayText().ToString(), Expected, bFound, bKnown);
		for (UVariant* const Variant : Set.GetVariants())
		{
			const FString Name = Variant->GetDisplayText().ToString();
			const int32* const Index = Expected != nullptr ? Expected->VariantsByName.Find(Name) : nullptr;
			Row.Variants.push_back(DescribePresent(Name, Index != nullptr ? &Expected->Variants[*Index] : nullptr, bFound && Set.GetVariantByName(Name) == Variant, bKnown));
		}
		if (Expected != nullptr && bFound)
		{
			for (const FExpected& Variant : Expected->Variants)
			{
				if (Set.GetVariantByName(Variant.Name) == nullptr)
				{
					Row.Variants.push_back(DescribeAbsent(Variant));
				}
			}
		}
		return Row;
	}

	uint32 HashUnit(const FVelmorantConfigUnit* Unit)
	{
		if (Unit == nullptr)
		{
			return 0;
		}
		uint32 Result = 1;
		for (const FVelmorantConfigRoom& Room : Unit->Rooms)
		{
			for (const FVelmorantConfigGroup& Group : Room.Groups)
			{
				Result = HashCombine(Result, GetTypeHash(UVelmorantVariantHandler::CombineVariantSet(Room.Name, Group.Name)));
				for (const FVelmorantConfigProduct& Product : Group.Products)
				{
					Result = HashCombine(Result, GetTypeHash(Product.Name));
				}
			}
		}
		return Result;
	}
}

std::vector<FVariantRow> VariantComparison::Compare(const FSides& Sides)
{
	FExpectations Expectations;
	const bool bKnown = Sides.Configurator != nullptr;
	if (bKnown)
	{
		Expect(Expectations, Sides.Configurator->ConfiguratorUnit, true);
	}
	if (Sides.Service != nullptr)
	{
		Expect(Expectations, *Sides.Service, false);
	}
	std::vector<FVariantRow> Rows;
	if (Sides.Sets != nullptr)
	{
		for (UVariantSet* const Set : Sides.Sets->GetVariantSets())
		{
			const FString Name = Set->GetDisplayText().ToString();
			const int32* const Index = Expectations.SetsByName.Find(Name);
			Rows.push_back(DescribeSet(*Set, Index != nullptr ? &Expectations.Sets[*Index] : nullptr, Sides.Sets->GetVariantSetByName(Name) == Set, bKnown));
		}
	}
	for (const FExpected& Expected : Expectations.Sets)
	{
		if (Sides.Sets == nullptr || Sides.Sets->GetVariantSetByName(Expected.Name) == nullptr)
		{
			Rows.push_back(DescribeAbsent(Expected));
		}
	}
	return Rows;
}

uint32 VariantComparison::Fingerprint(const FSides& Sides)
{
	uint32 Result = HashCombine(HashUnit(Sides.Configurator != nullptr ? &Sides.Configurator->ConfiguratorUnit : nullptr), HashUnit(Sides.Service));
	if (Sides.Sets == nullptr)
	{
		return Result;
	}
	Result = HashCombine(Result, Sides.Sets->GetUniqueID());
	for (const UVariantSet* const Set : Sides.Sets->GetVariantSets())
	{
		Result = HashCombine(Result, GetTypeHash(Set->GetDisplayText().ToString()));
		for (const UVariant* const Variant : Set->GetVariants())
		{
			Result = HashCombine(Result, GetTypeHash(Variant->GetDisplayText().ToString()));
		}
	}
	return Result;
}

const FVelmorantConfigUnit* VariantComparison::FindService(const UVelmorantConfiguratorDataAsset& Configurator)
{
	const UVelmorantDeveloperUser* const User = UVelmorantSDKEngineSubsystem::GetVelmorantEditorUser(false);
	const UVelmorantProjectRequestManager* const Requests = User != nullptr ? User->GetProjectRequestManager() : nullptr;
	const UProjectWrapper* const Project = Requests != nullptr ? Requests->GetProjectWrapper() : nullptr;
	const UConfiguratorWrapper* const Wrapper = Project != nullptr ? Project->GetConfiguratorByName(Configurator.ConfiguratorName) : nullptr;
	return Wrapper != nullptr ? Wrapper->GetConfigtorUnitCollection().Find(Configurator.ConfiguratorName) : nullptr;
}
