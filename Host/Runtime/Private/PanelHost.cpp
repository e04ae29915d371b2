// Copyright Velmorant. All Rights Reserved.

#include "PanelHost.h"

#include "Blueprint/UserWidget.h"
#include "Editor.h"
#include "EditorUtilitySubsystem.h"
#include "EditorUtilityWidget.h"
#include "EditorUtilityWidgetBlueprint.h"
#include "HostObjects.h"
#include "HostPackages.h"
#include "HostTabs.h"
#include "HostUserWidgets.h"
#include "UObject/Package.h"
#include "WidgetBlueprint.h"

namespace PanelHost
{
	FString PackageOf(const FString& AssetPath)
	{
		FString Package = AssetPath;
		AssetPath.Split(TEXT("."), &Package, nullptr);
		return Package;
	}

	FString ShortNameOf(const FString& Package)
	{
		int32 Slash = INDEX_NONE;
		Package.FindLastChar(TEXT('/'), Slash);
		return Package.RightChop(Slash + 1);
	}

	UWidgetBlueprint* LoadBlueprint(const FString& Package, FString& OutReason)
	{
		UObject* Asset = HostPackages::LoadAsset(Package);
		UWidgetBlueprint* Blueprint = Cast<UWidgetBlueprint>(Asset);
		if (Blueprint == nullptr)
		{
			OutReason = Asset == nullptr ? FString::Printf(TEXT("there is no panel %s, or it cannot be read"), *Package)
										 : FString::Printf(TEXT("%s is no panel"), *Package);
		}
		return Blueprint;
	}

	/** A widget without contents that knows the open level, as an editor tab's does. */
	UUserWidget* MakeFrame()
	{
		UPackage* Package = GetTransientPackage();
		const FName ClassName = MakeUniqueObjectName(Package, UClass::StaticClass(), TEXT("PanelFrame_C"));
		return FHostUserWidgets::Create(Package, HostObjects::DeriveClass(UEditorUtilityWidget::StaticClass(), ClassName, Package));
	}

	/**
	 * An editor utility widget opens in a tab of its own, as its menu entry would open it. Any other panel stands free, with what it
	 * would know as a part of a tab.
	 */
	UUserWidget* MakeWidget(UWidgetBlueprint& Blueprint, FName& OutTab)
	{
		if (UEditorUtilityWidgetBlueprint* Utility = Cast<UEditorUtilityWidgetBlueprint>(&Blueprint))
		{
			return GEditor->GetEditorSubsystem<UEditorUtilitySubsystem>()->SpawnAndRegisterTabAndGetID(Utility, OutTab);
		}
		return FHostUserWidgets::Create(MakeFrame(), Blueprint.GeneratedClass);
	}
}

FPanelHost::~FPanelHost()
{
	CloseAll();
}

UUserWidget* FPanelHost::Open(const FString& AssetPath, const FString& Name, FString& OutReason)
{
	const FString Package = PanelHost::PackageOf(AssetPath);
	const FString PanelName = Name.IsEmpty() ? PanelHost::ShortNameOf(Package) : Name;
	if (Find(PanelName) != nullptr)
	{
		OutReason = FString::Printf(TEXT("a panel named %s is open already"), *PanelName);
		return nullptr;
	}
	UWidgetBlueprint* Blueprint = PanelHost::LoadBlueprint(Package, OutReason);
	if (Blueprint == nullptr)
	{
		return nullptr;
	}
	FPanel Panel;
	Panel.Name = PanelName;
	Panel.Widget.Reset(PanelHost::MakeWidget(*Blueprint, Panel.Tab));
	if (!Panel.Widget.IsValid())
	{
		OutReason = FString::Printf(TEXT("no panel can be made of %s"), *Package);
		return nullptr;
	}
	Panel.Content = Panel.Widget->TakeWidget();
	Panels.Add(Panel);
	return Panels.Last().Widget.Get();
}

bool FPanelHost::Close(const FString& Name)
{
	const int32 Index = Panels.IndexOfByPredicate([&Name](const FPanel& Panel) { return Panel.Name == Name; });
	if (Index == INDEX_NONE)
	{
		return false;
	}
	FPanel Panel = Panels[Index];
	Panels.RemoveAt(Index);
	if (!Panel.Tab.IsNone() && GEditor != nullptr)
	{
		GEditor->GetEditorSubsystem<UEditorUtilitySubsystem>()->CloseTabByID(Panel.Tab);
	}
	Panel.Content.Reset(); // before the widget: its Slate widgets refer to it
	return true;
}

void FPanelHost::CloseAll()
{
	while (!Panels.IsEmpty())
	{
		Close(Panels.Last().Name);
	}
}

const FPanelHost::FPanel* FPanelHost::Find(const FString& Name)
{
	DropClosedTabs();
	const auto IsMeant = [&Name](const FPanel& Panel) { return Panel.Name == Name; };
	if (!Panels.ContainsByPredicate(IsMeant))
	{
		TakeOverTab(Name);
	}
	return Panels.FindByPredicate(IsMeant);
}

void FPanelHost::TakeOverTab(const FString& Name)
{
	const FHostTab Tab = Name.IsEmpty() ? FHostTab() : HostTabs::Find(Name);
	if (Tab.Content.IsValid())
	{
		FPanel& Panel = Panels.AddDefaulted_GetRef();
		Panel.Name = Name;
		Panel.Widget.Reset(Tab.Panel);
		Panel.Content = Tab.Content;
		Panel.Tab = Tab.Id;
	}
}

void FPanelHost::DropClosedTabs()
{
	UEditorUtilitySubsystem* Subsystem = GEditor != nullptr ? GEditor->GetEditorSubsystem<UEditorUtilitySubsystem>() : nullptr;
	for (int32 Index = Panels.Num() - 1; Subsystem != nullptr && Index >= 0; --Index)
	{
		if (!Panels[Index].Tab.IsNone() && !Subsystem->DoesTabExist(Panels[Index].Tab))
		{
			FPanel Panel = Panels[Index];
			Panels.RemoveAt(Index);
			Panel.Content.Reset(); // before the widget: its Slate widgets refer to it
		}
	}
}
