// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Framework/Commands/UICommandList.h"
#include "Templates/Casts.h"
#include "UObject/Object.h"
#include "UObject/ObjectPtr.h"

#include "ToolMenuContext.generated.h"

class FExtender;

/** What a menu is opened for: objects, looked up by class, and command lists. */
USTRUCT(BlueprintType)
struct TOOLMENUS_API FToolMenuContext
{
	GENERATED_BODY()

	FToolMenuContext() = default;
	FToolMenuContext(UObject* InContext) { AddObject(InContext); }

	/** The first context object of that class; null when there is none. */
	template<typename ContextType>
	ContextType* FindContext() const
	{
		for (const TObjectPtr<UObject>& Object : ContextObjects)
		{
			if (ContextType* Context = Cast<ContextType>(Object.Get()))
			{
				return Context;
			}
		}
		return nullptr;
	}

	void AddObject(UObject* InObject)
	{
		if (InObject)
		{
			ContextObjects.AddUnique(InObject);
		}
	}

	/** What a command does here; null when no list of this context maps it. */
	const FUIAction* GetActionForCommand(const TSharedPtr<const FUICommandInfo>& Command) const;

private:
	UPROPERTY()
	TArray<TObjectPtr<UObject>> ContextObjects;

	TArray<TSharedPtr<FUICommandList>> CommandLists;
};
