// Copyright Velmorant. All Rights Reserved.
// Putting actors into the open level, what the placement panel offers and others; moving and deleting them.

#include "GameFramework/Actor.h"
#include "HostActors.h"
#include "HostPlacement.h"
#include "Run/ScriptContext.h"
#include "Run/ScriptObjects.h"
#include "Run/ScriptTopics.h"
#include "ScopedTransaction.h"
#include "Suggestions.h"

#define LOCTEXT_NAMESPACE "PlacementTopic"

namespace PlacementTopic
{
	void Tell(FScriptContext& Context, const AActor& Actor)
	{
		Context.Print(FString::Printf(TEXT("%s (%s) at %s"), *Actor.GetActorLabel(), *Actor.GetClass()->GetName(), *Actor.GetActorLocation().ToString()));
	}

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
		OutReason = Suggestions::Append(FString::Printf(TEXT("nothing that can be placed is called \"%s\""), *Label), Label, Labels);
		return nullptr;
	}

	/** False, with the reason, for what is no place. */
	bool ReadLocation(const FString& Text, FVector& OutLocation, FString& OutReason)
	{
		const bool bRead = OutLocation.InitFromString(Text);
		OutReason = bRead ? FString() : FString::Printf(TEXT("\"%s\" is no place; write \"X=100 Y=0 Z=250\""), *Text);
		return bRead;
	}

	FStepResult PlaceItem(FScriptContext& Context, const FScriptArguments& Arguments, const FPlaceableItem& Item)
	{
		FVector Location = FVector::ZeroVector;
		const FString* At = Arguments.FindOption(1, TEXT("at"));
		const FString* Label = Arguments.FindOption(1, TEXT("as"));
		FString Reason;
		if (At != nullptr && !ReadLocation(*At, Location, Reason))
		{
			return FStepResult::Error(Reason);
		}
		const FScopedTransaction Step(FText::Format(LOCTEXT("Place", "Place {0}"), Item.DisplayName));
		FText Obstacle;
		AActor* Actor = HostPlacement::Place(Item, FTransform(Location), Obstacle);
		if (Actor == nullptr)
		{
			return FStepResult::Error(FString::Printf(TEXT("\"%s\" cannot be placed: %s"), *Arguments[0], *Obstacle.ToString()));
		}
		if (Label != nullptr)
		{
			HostActors::Rename(*Actor, *Label);
		}
		Tell(Context, *Actor);
		return FStepResult::Done();
	}

	FStepResult Place(FScriptContext& Context, const FScriptArguments& Arguments)
	{
		FString Reason;
		const TSharedPtr<FPlaceableItem> Item = FindItem(Arguments[0], Reason);
		return Item.IsValid() ? PlaceItem(Context, Arguments, *Item) : FStepResult::Error(Reason);
	}

	/** Of a class by its name, or of a Blueprint by its path. */
	FStepResult PlaceActor(FScriptContext& Context, const FScriptArguments& Arguments)
	{
		FString Reason;
		UObject* Kind = Arguments[0].StartsWith(TEXT("/")) ? ScriptObjects::FindAsset(Arguments[0], Reason) : ScriptObjects::FindClass(Arguments[0], Reason);
		return Kind != nullptr ? PlaceItem(Context, Arguments, FPlaceableItem(nullptr, FAssetData(Kind))) : FStepResult::Error(Reason);
	}

	FStepResult MoveActor(FScriptContext& Context, const FScriptArguments& Arguments)
	{
		FString Reason;
		FVector Location = FVector::ZeroVector;
		AActor* Actor = ScriptObjects::FindActor(Arguments[0], Reason);
		if (Actor == nullptr || !ReadLocation(Arguments[1], Location, Reason))
		{
			return FStepResult::Error(Reason);
		}
		HostActors::Move(*Actor, Location);
		Tell(Context, *Actor);
		return FStepResult::Done();
	}

	FStepResult RenameActor(FScriptContext& Context, const FScriptArguments& Arguments)
	{
		FString Reason;
		AActor* Actor = ScriptObjects::FindActor(Arguments[0], Reason);
		if (Actor == nullptr)
		{
			return FStepResult::Error(Reason);
		}
		HostActors::Rename(*Actor, Arguments[1]);
		Tell(Context, *Actor);
		return FStepResult::Done();
	}

	/** All or none. */
	FStepResult DeleteActors(FScriptContext&, const FScriptArguments& Arguments)
	{
		TArray<AActor*> Actors;
		for (int32 Index = 0; Index < Arguments.Num(); ++Index)
		{
			FString Reason;
			AActor* Actor = ScriptObjects::FindActor(Arguments[Index], Reason);
			if (Actor == nullptr)
			{
				return FStepResult::Error(Reason);
			}
			Actors.AddUnique(Actor);
		}
		HostActors::Delete(Actors);
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
		{{TEXT("place"), TEXT("ITEM [at LOCATION] [as LABEL]"), 1, 1, TEXT("at as")}, &Place},
		{{TEXT("place actor"), TEXT("CLASS|BLUEPRINT [at LOCATION] [as LABEL]"), 1, 1, TEXT("at as")}, &PlaceActor},
		{{TEXT("move actor"), TEXT("ACTOR LOCATION"), 2, 2, TEXT("")}, &MoveActor},
		{{TEXT("rename actor"), TEXT("ACTOR LABEL"), 2, 2, TEXT("")}, &RenameActor},
		{{TEXT("delete actors"), TEXT("ACTOR [ACTOR ...]"), 1, FScriptSyntax::Any, TEXT("")}, &DeleteActors},
		{{TEXT("print placement"), TEXT(""), 0, 0, TEXT("")}, &PrintPlacement},
	};
}

FScriptTopic ScriptTopics::GetPlacement()
{
	return {PlacementTopic::Commands, {}};
}

#undef LOCTEXT_NAMESPACE
