// Copyright Velmorant. All Rights Reserved.

#include "ToolMenus.h"

#include "Framework/Application/SlateApplication.h"
#include "HostState.h"
#include "HostToolMenus.h"
#include "ToolMenuBuilder.h"
#include "UObject/Package.h"

namespace ToolMenus
{
	struct FState
	{
		UToolMenus* Singleton = nullptr; // rooted
		FSimpleMulticastDelegate StartupCallbacks;
		bool bReady = false;
	};

	FState& GetState()
	{
		static THostState<FState> State;
		return State.Get();
	}
}

UToolMenus* UToolMenus::TryGet()
{
	return ToolMenus::GetState().Singleton;
}

UToolMenus* UToolMenus::Get()
{
	ToolMenus::FState& State = ToolMenus::GetState();
	if (!State.Singleton)
	{
		State.Singleton = NewObject<UToolMenus>();
		State.Singleton->AddToRoot();
	}
	return State.Singleton;
}

bool UToolMenus::IsToolMenuUIEnabled()
{
	return FSlateApplication::IsInitialized();
}

FDelegateHandle UToolMenus::RegisterStartupCallback(const FSimpleMulticastDelegate::FDelegate& InDelegate)
{
	ToolMenus::FState& State = ToolMenus::GetState();
	if (!State.bReady)
	{
		return State.StartupCallbacks.Add(InDelegate);
	}
	if (IsToolMenuUIEnabled())
	{
		InDelegate.ExecuteIfBound();
	}
	return FDelegateHandle();
}

void UToolMenus::UnregisterOwner(FToolMenuOwner Owner)
{
	UToolMenus* Self = TryGet();
	if (!Self || !Owner.IsSet())
	{
		return;
	}
	for (auto& [Name, Menu] : Self->Menus)
	{
		for (FToolMenuSection& Section : Menu->Sections)
		{
			Section.Blocks.RemoveAll([&Owner](const FToolMenuEntry& Entry) { return Entry.Owner == Owner; });
		}
		Menu->Sections.RemoveAll([&Owner](const FToolMenuSection& Section) { return Section.Owner == Owner && Section.Blocks.IsEmpty(); });
	}
}

void UToolMenus::PopOwner(const FToolMenuOwner InOwner)
{
	check(OwnerStack.Num() > 0 && OwnerStack.Last() == InOwner);
	OwnerStack.Pop();
}

UToolMenu* UToolMenus::FindOrMake(FName Name)
{
	UToolMenu* Menu = FindMenu(Name);
	if (!Menu)
	{
		Menu = NewObject<UToolMenu>(this);
		Menu->MenuName = Name;
		Menu->MenuOwner = CurrentOwner();
		Menus.Add(Name, Menu);
	}
	return Menu;
}

UToolMenu* UToolMenus::ExtendMenu(const FName Name)
{
	return FindOrMake(Name);
}

UToolMenu* UToolMenus::RegisterMenu(FName Name, const FName Parent, EMultiBoxType Type, bool bWarnIfAlreadyRegistered)
{
	UToolMenu* Menu = FindOrMake(Name);
	if (Menu->bRegistered)
	{
		UE_CLOG(bWarnIfAlreadyRegistered, LogTemp, Warning, TEXT("Menu already registered : %s"), *Name.ToString());
		return Menu;
	}
	Menu->bRegistered = true;
	Menu->MenuParent = Parent;
	Menu->MenuType = Type;
	return Menu;
}

UToolMenu* UToolMenus::FindMenu(const FName Name)
{
	const TObjectPtr<UToolMenu>* Menu = Menus.Find(Name);
	return Menu ? Menu->Get() : nullptr;
}

bool UToolMenus::IsMenuRegistered(const FName Name) const
{
	const TObjectPtr<UToolMenu>* Menu = Menus.Find(Name);
	return Menu && (*Menu)->bRegistered;
}

void UToolMenus::AppendRecipe(UToolMenu& Menu, UToolMenu& OutGenerated, TArray<FName>& InOutVisited)
{
	if (InOutVisited.Contains(Menu.MenuName))
	{
		return; // menus that are each other's parents: what was already shown is enough
	}
	InOutVisited.Add(Menu.MenuName);
	if (UToolMenu* Parent = Menu.MenuParent.IsNone() ? nullptr : FindMenu(Menu.MenuParent))
	{
		AppendRecipe(*Parent, OutGenerated, InOutVisited);
	}
	FToolMenuBuilder::Append(Menu, OutGenerated);
}

UToolMenu* UToolMenus::GenerateMenu(const FName Name, const FToolMenuContext& InMenuContext)
{
	UToolMenu* Generated = NewObject<UToolMenu>(this);
	Generated->MenuName = Name;
	Generated->Context = InMenuContext;
	if (UToolMenu* Menu = FindMenu(Name))
	{
		Generated->MenuType = Menu->MenuType;
		TArray<FName> Visited;
		AppendRecipe(*Menu, *Generated, Visited);
	}
	return Generated;
}

TSharedRef<SWidget> UToolMenus::GenerateWidget(const FName Name, const FToolMenuContext& InMenuContext)
{
	return GenerateWidget(GenerateMenu(Name, InMenuContext));
}

TSharedRef<SWidget> UToolMenus::GenerateWidget(UToolMenu* GeneratedMenu)
{
	return FToolMenuBuilder::MakeWidget(*GeneratedMenu);
}

void HostToolMenus::Start()
{
	ToolMenus::FState& State = ToolMenus::GetState();
	if (State.bReady)
	{
		return;
	}
	State.bReady = true;
	UToolMenus::Get();
	if (UToolMenus::IsToolMenuUIEnabled())
	{
		State.StartupCallbacks.Broadcast();
	}
	State.StartupCallbacks.Clear();
}

void HostToolMenus::Stop()
{
	ToolMenus::FState& State = ToolMenus::GetState();
	if (State.Singleton)
	{
		State.Singleton->RemoveFromRoot();
		State.Singleton = nullptr;
	}
	State.StartupCallbacks.Clear();
	State.bReady = false;
}
