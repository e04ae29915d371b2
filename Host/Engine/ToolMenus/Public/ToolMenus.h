// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "ToolMenu.h"
#include "ToolMenuEntry.h"
#include "ToolMenuOwner.h"
#include "ToolMenuSection.h"
#include "UObject/Object.h"

#include "ToolMenus.generated.h"

class SWidget;

/** All menus of the running editor, by name. */
UCLASS()
class TOOLMENUS_API UToolMenus : public UObject
{
	GENERATED_BODY()

public:
	/** Made on first use; one per editor. */
	static UToolMenus* Get();
	static UToolMenus* TryGet();

	/** Whether menus are shown at all: not without a user interface. */
	static bool IsToolMenuUIEnabled();

	/** Runs the delegate once the menus are ready, at once if they are. Never runs it when there is no user interface. */
	static FDelegateHandle RegisterStartupCallback(const FSimpleMulticastDelegate::FDelegate& InDelegate);
	/** Removes all sections and entries that the owner added. */
	static void UnregisterOwner(FToolMenuOwner Owner);

	/** The menu of that name, for adding to it; fine before anybody registers it. Never null. */
	UToolMenu* ExtendMenu(const FName Name);

	/** Makes the menu itself. What its parents hold is shown before what it holds. */
	UToolMenu* RegisterMenu(FName Name, const FName Parent = NAME_None, EMultiBoxType Type = EMultiBoxType::Menu, bool bWarnIfAlreadyRegistered = true);

	/** Null when nobody registered or extended a menu of that name. */
	UToolMenu* FindMenu(const FName Name);
	bool IsMenuRegistered(const FName Name) const;

	/** The menu as it would be shown for a context: parents first, dynamic entries made, positions observed. A new object each time. */
	UToolMenu* GenerateMenu(const FName Name, const FToolMenuContext& InMenuContext);
	TSharedRef<SWidget> GenerateWidget(const FName Name, const FToolMenuContext& InMenuContext);
	TSharedRef<SWidget> GenerateWidget(UToolMenu* GeneratedMenu);

	void PushOwner(const FToolMenuOwner InOwner) { OwnerStack.Add(InOwner); }
	void PopOwner(const FToolMenuOwner InOwner);
	FToolMenuOwner CurrentOwner() const { return OwnerStack.Num() > 0 ? OwnerStack.Last() : FToolMenuOwner(); }

private:
	UToolMenu* FindOrMake(FName Name);
	void AppendRecipe(UToolMenu& Menu, UToolMenu& OutGenerated, TArray<FName>& InOutVisited);

	UPROPERTY()
	TMap<FName, TObjectPtr<UToolMenu>> Menus;

	TArray<FToolMenuOwner> OwnerStack;
};

/** Whatever is added to menus while it lives belongs to the owner. */
class TOOLMENUS_API FToolMenuOwnerScoped
{
public:
	FToolMenuOwnerScoped(const FToolMenuOwner InOwner)
		: Owner(InOwner)
	{
		UToolMenus::Get()->PushOwner(InOwner);
	}
	~FToolMenuOwnerScoped() { UToolMenus::Get()->PopOwner(Owner); }

	FToolMenuOwnerScoped(const FToolMenuOwnerScoped&) = delete;
	FToolMenuOwnerScoped& operator=(const FToolMenuOwnerScoped&) = delete;

private:
	FToolMenuOwner Owner;
};
