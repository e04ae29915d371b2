// Copyright Velmorant. All Rights Reserved.

#include "Blueprint/UserWidget.h"

#include "Blueprint/WidgetBlueprintGeneratedClass.h"
#include "Components/PanelWidget.h"
#include "Engine/World.h"
#include "HostUserWidgets.h"
#include "HostWidget.h"
#include "Slate/SObjectWidget.h"
#include "UObject/Package.h"
#include "Widgets/SNullWidget.h"

UUserWidget::UUserWidget(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
}

bool UUserWidget::Initialize()
{
	if (bInitialized || HasAnyFlags(RF_ClassDefaultObject))
	{
		return false;
	}
	bInitialized = true;
	WidgetTree = NewObject<UWidgetTree>(this, FName(TEXT("WidgetTree")), RF_Transient);
	if (UWidgetBlueprintGeneratedClass* LayoutClass = Cast<UWidgetBlueprintGeneratedClass>(GetClass()))
	{
		LayoutClass->InitializeWidget(this);
	}
	NativeOnInitialized();
	return true;
}

UWorld* UUserWidget::GetWorld() const
{
	return GetOuter() && !HasAnyFlags(RF_ClassDefaultObject) ? GetOuter()->GetWorld() : nullptr;
}

UWidget* UUserWidget::GetWidgetFromName(const FName& Name) const
{
	return WidgetTree ? WidgetTree->FindWidget(Name) : nullptr;
}

UWidget* UUserWidget::GetRootWidget() const
{
	return WidgetTree ? WidgetTree->RootWidget.Get() : nullptr;
}

void UUserWidget::SetVisibility(ESlateVisibility InVisibility)
{
	const ESlateVisibility Before = GetVisibility();
	Super::SetVisibility(InVisibility);
	if (InVisibility != Before)
	{
		OnVisibilityChanged.Broadcast(InVisibility);
	}
}

void UUserWidget::RemoveFromParent()
{
	Super::RemoveFromParent();
}

void UUserWidget::NativeOnInitialized()
{
	OnInitialized();
}

void UUserWidget::NativePreConstruct()
{
	PreConstruct(IsDesignTime());
}

void UUserWidget::NativeConstruct()
{
	Construct();
}

void UUserWidget::NativeDestruct()
{
	Destruct();
}

TSharedRef<SWidget> UUserWidget::RebuildWidget()
{
	Initialize();
	UWidget* Root = GetRootWidget();
	return Root ? Root->TakeWidget() : SNullWidget::NullWidget;
}

void UUserWidget::OnWidgetRebuilt()
{
	bConstructed = true;
	if (const UWidgetBlueprintGeneratedClass* LayoutClass = Cast<UWidgetBlueprintGeneratedClass>(GetClass()))
	{
		LayoutClass->ListenToObjects(this, true);
	}
	NativePreConstruct();
	NativeConstruct();
}

void UUserWidget::EndConstruction()
{
	if (bConstructed)
	{
		bConstructed = false;
		NativeDestruct();
		if (const UWidgetBlueprintGeneratedClass* LayoutClass = Cast<UWidgetBlueprintGeneratedClass>(GetClass()))
		{
			LayoutClass->ListenToObjects(this, false);
		}
	}
}

void UUserWidget::ReleaseSlateResources(bool bReleaseChildren)
{
	Super::ReleaseSlateResources(bReleaseChildren);
	if (UWidget* Root = GetRootWidget())
	{
		Root->ReleaseSlateResources(bReleaseChildren);
	}
}

UUserWidget* UUserWidget::CreateInstanceInternal(UObject* Outer, UClass* UserWidgetClass, FName WidgetName)
{
	if (!UserWidgetClass || !UserWidgetClass->IsChildOf<UUserWidget>() || UserWidgetClass->HasAnyClassFlags(CLASS_Abstract))
	{
		UE_LOG(LogTemp, Error, TEXT("CreateWidget: %s is not a class that a widget can be made of."),
			UserWidgetClass ? *UserWidgetClass->GetPathName() : TEXT("nothing"));
		return nullptr;
	}
	UUserWidget* Widget = NewObject<UUserWidget>(Outer, UserWidgetClass, WidgetName, RF_Transactional);
	Widget->Initialize();
	return Widget;
}

UUserWidget* UUserWidget::CreateWidgetInstance(UWidget& OwningWidget, TSubclassOf<UUserWidget> UserWidgetClass, FName WidgetName)
{
	UUserWidget* Owner = Cast<UUserWidget>(&OwningWidget);
	UObject* Outer = Owner ? static_cast<UObject*>(Owner->WidgetTree.Get()) : OwningWidget.GetOuter();
	return CreateInstanceInternal(Outer ? Outer : &OwningWidget, UserWidgetClass, WidgetName);
}

UUserWidget* UUserWidget::CreateWidgetInstance(UWidgetTree& OwningWidgetTree, TSubclassOf<UUserWidget> UserWidgetClass, FName WidgetName)
{
	return CreateInstanceInternal(&OwningWidgetTree, UserWidgetClass, WidgetName);
}

UUserWidget* UUserWidget::CreateWidgetInstance(UWorld& World, TSubclassOf<UUserWidget> UserWidgetClass, FName WidgetName)
{
	return CreateInstanceInternal(&World, UserWidgetClass, WidgetName);
}

UUserWidget* FHostUserWidgets::Create(UObject* Outer, UClass* UserWidgetClass, FName WidgetName)
{
	return UUserWidget::CreateInstanceInternal(Outer ? Outer : static_cast<UObject*>(GetTransientPackage()), UserWidgetClass, WidgetName);
}

UWidget* UWidgetTree::ConstructWidgetOfClass(UClass* WidgetClass, FName WidgetName)
{
	if (!WidgetClass || WidgetClass->HasAnyClassFlags(CLASS_Abstract))
	{
		return nullptr;
	}
	if (WidgetClass->IsChildOf<UUserWidget>())
	{
		return UUserWidget::CreateInstanceInternal(this, WidgetClass, WidgetName);
	}
	return NewObject<UWidget>(this, WidgetClass, WidgetName, RF_Transactional);
}

namespace UMGWidgetTree
{
	void Visit(UWidget* Widget, TFunctionRef<void(UWidget*)> Predicate)
	{
		if (!Widget)
		{
			return;
		}
		Predicate(Widget);
		if (UPanelWidget* Panel = Cast<UPanelWidget>(Widget))
		{
			for (UWidget* Child : Panel->GetAllChildren())
			{
				Visit(Child, Predicate);
			}
		}
	}
}

void UWidgetTree::ForEachWidget(TFunctionRef<void(UWidget*)> Predicate) const
{
	UMGWidgetTree::Visit(RootWidget, Predicate);
}

UWidget* UWidgetTree::FindWidget(const FName& Name) const
{
	UWidget* Found = nullptr;
	ForEachWidget([&Found, &Name](UWidget* Widget) {
		if (!Found && Widget->GetFName() == Name)
		{
			Found = Widget;
		}
	});
	return Found;
}

void SObjectWidget::Construct(const FArguments& InArgs, UUserWidget* InWidgetObject)
{
	WidgetObject = TStrongObjectPtr<UUserWidget>(InWidgetObject);
	ChildSlot[InArgs._Content.Widget];
}

SObjectWidget::~SObjectWidget()
{
	if (UUserWidget* Widget = WidgetObject.Get())
	{
		Widget->EndConstruction();
	}
}

void SObjectWidget::DescribeToHost(FHostWidgetDescription& OutDescription) const
{
	OutDescription.Role = TEXT("panel");
	if (UUserWidget* Widget = WidgetObject.Get())
	{
		FString ClassName = Widget->GetClass()->GetName();
		ClassName.RemoveFromEnd(TEXT("_C"));
		OutDescription.Notes.Add(ClassName);
	}
}
