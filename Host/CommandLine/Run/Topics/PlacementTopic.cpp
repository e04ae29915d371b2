// Copyright Velmorant. All Rights Reserved.
// What the placement panel offers, and putting it into the open level.

#include "GameFramework/Actor.h"
#include "HostPlacement.h"
#include "Run/ScriptContext.h"
#include "Run/ScriptTopics.h"

namespace PlacementTopic
{
	/** By its label, in any category. Null with a reason. */
	TSharedPtr<FPlaceableItem> FindItem(const FString& Label, FString& OutReason)
	{
		TArray<FString> Labels;
		for (const FName Category : HostPlacement::GetCategories())
		{
			for (const TSharedRef<FPlaceableItem>& Item : HostPlacement::GetItems(Category))
			{
				if (Item->DisplayName.ToString().Equals(Label))
				{
					return Item;
				}
				Labels.Add(Item->DisplayName.ToString());
			}
		}
		OutReason = FString::Printf(TEXT("nothing that can be placed is called \"%s\"; there are: %s"), *Label, *FString::Join(Labels, TEXT(", ")));
		return nullptr;
	}

	FStepResult Place(FScriptContext& Context, const FScriptArguments& Arguments)
	{
		FString Reason;
		const TSharedPtr<FPlaceableItem> Item = FindItem(Arguments[0], Reason);
		if (!Item.IsValid())
		{
			return FStepResult::Error(Reason);
		}
		FVector Location = FVector::ZeroVector;
		const FString* At = Arguments.FindOption(1, TEXT("at"));
		if (At != nullptr && !Location.InitFromString(*At))
		{
			return FStepResult::Error(FString::Printf(TEXT("\"%s\" is no place; write \"X=100 Y=0 Z=250\""), **At));
		}
		FText Obstacle;
		const AActor* Actor = HostPlacement::Place(*Item, FTransform(Location), Obstacle);
		if (Actor == nullptr)
		{
			return FStepResult::Error(FString::Printf(TEXT("\"%s\" cannot be placed: %s"), *Arguments[0], *Obstacle.ToString()));
		}
		Context.Print(FString::Printf(TEXT("%s (%s) at %s"), *Actor->GetActorLabel(), *Actor->GetClass()->GetName(), *Actor->GetActorLocation().ToString()));
		return FStepResult::Done();
	}

	FStepResult PrintPlacement(FScriptContext& Context, const FScriptArguments&)
	{
		for (const FName Category : HostPlacement::GetCategories())
		{
			for (const TSharedRef<FPlaceableItem>& Item : HostPlacement::GetItems(Category))
			{
				Context.Print(FString::Printf(TEXT("%s: %s"), *Category.ToString(), *Item->DisplayName.ToString()));
			}
		}
		return FStepResult::Done();
	}

	const FScriptCommand Commands[] = {
		{{TEXT("place"), TEXT("ITEM [at LOCATION]"), 1, 1, TEXT("at")}, &Place},
		{{TEXT("print placement"), TEXT(""), 0, 0, TEXT("")}, &PrintPlacement},
	};
}

FScriptTopic ScriptTopics::GetPlacement()
{
	return {PlacementTopic::Commands, {}};
}
