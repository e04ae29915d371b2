// Copyright Velmorant. All Rights Reserved.

#include "ActorFactories/ActorFactoryBlueprint.h"
#include "ActorFactories/ActorFactoryClass.h"
#include "Engine/Blueprint.h"
#include "GameFramework/Actor.h"

#define LOCTEXT_NAMESPACE "ActorFactory"

namespace ActorFactories
{
	/** Why no actor of the class can be placed; empty when one can. */
	FText DescribeObstacle(const UClass* Class, const FAssetData& AssetData)
	{
		if (Class == nullptr || !Class->IsChildOf<AActor>())
		{
			return FText::Format(LOCTEXT("NoActorClass", "{0} is no class of actors."), FText::FromName(AssetData.AssetName));
		}
		const bool bPlaceable = !Class->HasAnyClassFlags(CLASS_Abstract | CLASS_NotPlaceable | CLASS_Deprecated);
		return bPlaceable ? FText() : FText::Format(LOCTEXT("NotPlaceable", "Actors of the class {0} cannot be placed."), FText::FromString(Class->GetName()));
	}
}

bool UActorFactory::CanCreateActorFrom(const FAssetData& AssetData, FText& OutErrorMsg)
{
	OutErrorMsg = ActorFactories::DescribeObstacle(GetDefaultActorClass(AssetData), AssetData);
	return OutErrorMsg.IsEmpty();
}

UClass* UActorFactory::GetDefaultActorClass(const FAssetData&)
{
	return nullptr;
}

bool UActorFactory::CanPlaceElementsFromAssetData(const FAssetData& InAssetData)
{
	FText Ignored;
	return CanCreateActorFrom(InAssetData, Ignored);
}

AActor* UActorFactory::CreateActor(UObject* InAsset, ULevel* InLevel, FTransform InTransform, const FActorSpawnParameters& InSpawnParams)
{
	check(InLevel != nullptr);
	FActorSpawnParameters Parameters = InSpawnParams;
	Parameters.OverrideLevel = InLevel;
	return InLevel->GetWorld()->SpawnActor(GetDefaultActorClass(FAssetData(InAsset)), &InTransform, Parameters);
}

bool UActorFactoryBlueprint::CanCreateActorFrom(const FAssetData& AssetData, FText& OutErrorMsg)
{
	const UBlueprint* Blueprint = Cast<UBlueprint>(AssetData.GetAsset());
	if (Blueprint == nullptr || Blueprint->GeneratedClass == nullptr)
	{
		OutErrorMsg = FText::Format(LOCTEXT("NoBlueprint", "{0} is no Blueprint with a class."), FText::FromString(AssetData.GetObjectPathString()));
		return false;
	}
	return Super::CanCreateActorFrom(AssetData, OutErrorMsg);
}

UClass* UActorFactoryBlueprint::GetDefaultActorClass(const FAssetData& AssetData)
{
	const UBlueprint* Blueprint = Cast<UBlueprint>(AssetData.GetAsset());
	return Blueprint != nullptr ? Blueprint->GeneratedClass.Get() : nullptr;
}

UClass* UActorFactoryClass::GetDefaultActorClass(const FAssetData& AssetData)
{
	return Cast<UClass>(AssetData.GetAsset());
}

#undef LOCTEXT_NAMESPACE
