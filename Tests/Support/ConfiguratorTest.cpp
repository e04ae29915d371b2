// Copyright Velmorant. All Rights Reserved.

#include "ConfiguratorTest.h"

#include "IAssetTools.h"
#include "LevelVariantSets.h"
#include "UObject/UObjectHash.h"
#include "Variant.h"
#include "VariantSet.h"
#include "VelmorantConfiguratorDataAsset.h"
#include "VelmorantEditorUtilitiesLibrary.h"

const char* const OneRoomConfigurator = R"({"name": "Tower", "rooms": [{"name": "Kitchen", "groups": [{"name": "Fronts", "products": ["Oak", "Lacquer"]}]}]})";

void FConfiguratorTest::StartWithConfigurators(std::string_view Configurators)
{
	WriteConfigurators(Configurators);
	StartWithProject();
}

UVelmorantConfiguratorDataAsset* FConfiguratorTest::CreateAsset(const TCHAR* Configurator)
{
	UVelmorantEditorUtilitiesLibrary::CreateConfiguratorDataAssetFromConfigurator(Configurator);
	EXPECT_EQ(TakeOutcomes(), (std::vector<FOutcome>{{"Success Configuration Creation", "", SNotificationItem::CS_Success, 7.0f}}));

	TArray<UObject*> Assets;
	GetObjectsOfClass(UVelmorantConfiguratorDataAsset::StaticClass(), Assets);
	for (UObject* Asset : Assets)
	{
		if (CastChecked<UVelmorantConfiguratorDataAsset>(Asset)->ConfiguratorName == FName(Configurator))
		{
			return CastChecked<UVelmorantConfiguratorDataAsset>(Asset);
		}
	}
	ADD_FAILURE() << "no data asset was made";
	return nullptr;
}

UVelmorantConfiguratorDataAsset* FConfiguratorTest::FindAsset(const TCHAR* Path)
{
	return FindObject<UVelmorantConfiguratorDataAsset>(nullptr, Path);
}

UVelmorantConfiguratorDataAsset* FConfiguratorTest::MakeDataAssetAt(const TCHAR* AssetFolder, const TCHAR* Name)
{
	return CastChecked<UVelmorantConfiguratorDataAsset>(IAssetTools::Get().CreateAsset(Name, AssetFolder, UVelmorantConfiguratorDataAsset::StaticClass(), nullptr));
}

ULevelVariantSets* FConfiguratorTest::MakeLevelVariantSets(const TCHAR* AssetFolder, const TCHAR* Name)
{
	return CastChecked<ULevelVariantSets>(IAssetTools::Get().CreateAsset(Name, AssetFolder, ULevelVariantSets::StaticClass(), nullptr));
}

std::vector<std::string> FConfiguratorTest::Describe(ULevelVariantSets* LevelVariantSets)
{
	std::vector<std::string> Lines;
	for (UVariantSet* VariantSet : LevelVariantSets->GetVariantSets())
	{
		EXPECT_EQ(VariantSet->GetOuter(), LevelVariantSets);
		std::string Line = ToUtf8(VariantSet->GetDisplayText()) + ":";
		for (const UVariant* Variant : VariantSet->GetVariants())
		{
			EXPECT_EQ(Variant->GetOuter(), VariantSet);
			Line += (Line.back() == ':' ? " " : ", ") + ToUtf8(Variant->GetDisplayText());
		}
		Lines.push_back(Line);
	}
	return Lines;
}

std::vector<std::string> FConfiguratorTest::DescribeVariants(const UVelmorantConfiguratorDataAsset* Asset)
{
	ULevelVariantSets* LevelVariantSets = Cast<ULevelVariantSets>(Asset->LevelVariantSets.ResolveObject());
	EXPECT_NE(LevelVariantSets, nullptr) << ToUtf8(Asset->LevelVariantSets.ToString());
	return LevelVariantSets ? Describe(LevelVariantSets) : std::vector<std::string>();
}

std::vector<std::string> FConfiguratorTest::DescribeRooms(const UVelmorantConfiguratorDataAsset* Asset)
{
	std::vector<std::string> Lines;
	for (const FVelmorantConfigRoom& Room : Asset->ConfiguratorUnit.Rooms)
	{
		for (const FVelmorantConfigGroup& Group : Room.Groups)
		{
			std::string Line = ToUtf8(Room.Name) + "/" + ToUtf8(Group.Name) + ":";
			for (const FVelmorantConfigProduct& Product : Group.Products)
			{
				Line += (Line.back() == ':' ? " " : ", ") + ToUtf8(Product.Name);
			}
			Lines.push_back(Line);
		}
	}
	return Lines;
}
