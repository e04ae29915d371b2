// Copyright Velmorant. All Rights Reserved.

#include "HostWidgetLayout.h"

#include "Blueprint/UserWidget.h"
#include "Blueprint/WidgetBlueprintGeneratedClass.h"
#include "Components/PanelWidget.h"
#include "Engine/Blueprint.h"
#include "HostObjects.h"
#include "Layout/LayoutReader.h"
#include "Layout/LayoutRunner.h"
#include "UObject/Package.h"
#include "UObject/Stack.h"

namespace WidgetLayoutClass
{
	UClass* FindByPath(const FString& Path, FString& OutReason)
	{
		if (Path.StartsWith(TEXT("/Script/")))
		{
			UClass* Class = FindObject<UClass>(nullptr, *Path);
			OutReason = FString::Printf(TEXT("there is no class '%s'"), *Path);
			return Class;
		}
		UObject* Asset = StaticLoadObject(UObject::StaticClass(), nullptr, *Path);
		if (UClass* Class = Cast<UClass>(Asset))
		{
			return Class;
		}
		const UBlueprint* Blueprint = Cast<UBlueprint>(Asset);
		if (!Blueprint)
		{
			OutReason = FString::Printf(TEXT("there is no widget blueprint '%s', or it could not be read"), *Path);
			return nullptr;
		}
		OutReason = FString::Printf(TEXT("'%s' is just being read: a layout cannot contain itself"), *Path);
		return Blueprint->GeneratedClass;
	}

	void SetUp(UWidget& Widget, const FLayoutWidget& Recipe, const FLayoutScope& Scope)
	{
		for (const FLayoutAssignment& Assignment : Recipe.Properties)
		{
			LayoutRunner::Assign(Widget, Assignment.Property, *Assignment.Value, Scope);
		}
		for (const FLayoutAssignment& Assignment : Recipe.Slot)
		{
			LayoutRunner::Assign(*Widget.Slot, Assignment.Property, *Assignment.Value, Scope);
		}
	}

	/** A widget with all below it; properties wait until every name can be found. */
	UWidget* Make(const FLayoutWidget& Recipe, UWidgetTree& Tree)
	{
		UWidget* Widget = Tree.ConstructWidget<UWidget>(Recipe.Class, Recipe.Name);
		Widget->bIsVariable = !Recipe.Name.IsNone();
		if (UPanelWidget* Panel = Cast<UPanelWidget>(Widget))
		{
			for (const FLayoutWidget& Child : Recipe.Children)
			{
				Panel->AddChild(Make(Child, Tree));
			}
		}
		return Widget;
	}

	void SetUpAll(UWidget& Widget, const FLayoutWidget& Recipe, const FLayoutScope& Scope)
	{
		SetUp(Widget, Recipe, Scope);
		for (int32 Index = 0; Index < Recipe.Children.Num(); ++Index)
		{
			SetUpAll(*CastChecked<UPanelWidget>(&Widget)->GetChildAt(Index), Recipe.Children[Index], Scope);
		}
	}

	void BindMembers(UUserWidget& Panel)
	{
		for (TFieldIterator<FObjectProperty> It(Panel.GetClass()); It; ++It)
		{
			const FObjectProperty& Property = **It;
			if (!Property.HasMetaData(TEXT("BindWidget")) && !Property.HasMetaData(TEXT("BindWidgetOptional")))
			{
				continue;
			}
			UWidget* Widget = Panel.GetWidgetFromName(Property.GetFName());
			Property.SetObjectPropertyValue_InContainer(&Panel, Widget && Widget->IsA(Property.PropertyClass) ? Widget : nullptr);
		}
	}

	/** Has the panel listen, or no longer listen, to one of its widgets or objects. */
	void Listen(UUserWidget& Panel, const FLayoutCall& Call, bool bListen)
	{
		UObject* Source = FLayoutScope{&Panel}.FindTarget(Call.Source);
		const FMulticastDelegateProperty* Event = Source ? FindFProperty<FMulticastDelegateProperty>(Source->GetClass(), Call.Event) : nullptr;
		if (!Event)
		{
			return;
		}
		FScriptDelegate Listener;
		Listener.BindUFunction(&Panel, Call.GetListenerName());
		if (bListen)
		{
			Event->AddDelegate(Listener, Source);
		}
		else
		{
			Event->RemoveDelegate(Listener, Source);
		}
	}

	/** Widgets live with their panel; objects go on without it, and are listened to only while it shows. */
	void ListenToAll(UUserWidget& Panel, const FWidgetLayout& Layout, bool bToObjects, bool bListen)
	{
		for (const FLayoutCall& Call : Layout.Calls)
		{
			if ((Layout.FindObject(Call.Source) != nullptr) == bToObjects)
			{
				Listen(Panel, Call, bListen);
			}
		}
	}

	const UClass* FindIn(const FLayoutWidget& Widget, FName Name)
	{
		if (Widget.Name == Name)
		{
			return Widget.Class;
		}
		for (const FLayoutWidget& Child : Widget.Children)
		{
			if (const UClass* Class = FindIn(Child, Name))
			{
				return Class;
			}
		}
		return nullptr;
	}

	/** The class of the panel (None), of a widget, or of an object. */
	const UClass* FindSourceClass(const FWidgetLayout& Layout, FName Source)
	{
		if (Source.IsNone())
		{
			return Layout.ParentClass;
		}
		const FLayoutObject* Object = Layout.FindObject(Source);
		return Object ? Object->Class : FindIn(Layout.Tree, Source);
	}

	/** A script that does the actions on whichever panel the event was raised. */
	UFunction::FScriptBody ScriptOf(const TSharedRef<const FWidgetLayout>& Layout, const TArray<FLayoutAction>& Actions)
	{
		return [Layout, &Actions](UObject* Context, FFrame& Stack, void*) // Actions is part of Layout
		{
			LayoutRunner::Run(Actions, FLayoutScope{CastChecked<UUserWidget>(Context), Stack.Node, Stack.Locals});
		};
	}
}

void UWidgetBlueprintGeneratedClass::InitializeWidget(UUserWidget* UserWidget) const
{
	const FLayoutScope Scope{UserWidget};
	UWidget* Root = WidgetLayoutClass::Make(Layout->Tree, *UserWidget->WidgetTree);
	UserWidget->WidgetTree->RootWidget = Root;
	WidgetLayoutClass::BindMembers(*UserWidget);
	for (const FLayoutAssignment& Assignment : Layout->Properties)
	{
		LayoutRunner::Assign(*UserWidget, Assignment.Property, *Assignment.Value, Scope);
	}
	WidgetLayoutClass::SetUpAll(*Root, Layout->Tree, Scope);
	WidgetLayoutClass::ListenToAll(*UserWidget, *Layout, false, true);
}

void UWidgetBlueprintGeneratedClass::ListenToObjects(UUserWidget* UserWidget, bool bListen) const
{
	WidgetLayoutClass::ListenToAll(*UserWidget, *Layout, true, bListen);
}

TSharedPtr<const FWidgetLayout> HostWidgetLayout::Read(const FString& Json, TArray<FProblem>& OutProblems)
{
	return FLayoutReader(OutProblems).Read(Json);
}

TSharedPtr<const FWidgetLayout> HostWidgetLayout::Read(const FHostJson& Json, TArray<FProblem>& OutProblems)
{
	return FLayoutReader(OutProblems).Read(Json);
}

UClass* HostWidgetLayout::GetParentClass(const FWidgetLayout& Layout)
{
	return Layout.ParentClass;
}

UWidgetBlueprintGeneratedClass* HostWidgetLayout::MakeClass(const TSharedRef<const FWidgetLayout>& Layout, FName Name, UObject* Outer)
{
	UClass* Class = HostObjects::DeriveClass(Layout->ParentClass, Name, Outer, UWidgetBlueprintGeneratedClass::StaticClass());
	UWidgetBlueprintGeneratedClass* LayoutClass = CastChecked<UWidgetBlueprintGeneratedClass>(Class);
	LayoutClass->ClassFlags = static_cast<EClassFlags>(LayoutClass->ClassFlags & ~CLASS_Abstract);
	LayoutClass->SetLayout(Layout);
	for (const TArray<FLayoutEvent>* Scripts : {&Layout->Functions, &Layout->Events})
	{
		for (const FLayoutEvent& Script : *Scripts)
		{
			HostObjects::AddScriptFunction(Class, Script.Name, WidgetLayoutClass::ScriptOf(Layout, Script.Actions));
		}
	}
	for (const FLayoutCall& Call : Layout->Calls)
	{
		const UClass* Source = WidgetLayoutClass::FindSourceClass(*Layout, Call.Source);
		const FMulticastDelegateProperty* Event = FindFProperty<FMulticastDelegateProperty>(Source, Call.Event);
		HostObjects::AddScriptListener(Class, Call.GetListenerName(), *Event, WidgetLayoutClass::ScriptOf(Layout, Call.Actions));
	}
	return LayoutClass;
}

UClass* HostWidgetLayout::FindClass(const FString& Text, FString& OutReason)
{
	if (Text.StartsWith(TEXT("/")))
	{
		return WidgetLayoutClass::FindByPath(Text, OutReason);
	}
	if (UClass* Class = FindObject<UClass>(nullptr, *(TEXT("/Script/UMG.") + Text)))
	{
		return Class;
	}
	UClass* Class = FindFirstObject<UClass>(*Text, EFindFirstObjectOptions::NativeFirst);
	OutReason = FString::Printf(TEXT("there is no class '%s'"), *Text);
	return Class;
}
