// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Blueprint/WidgetTree.h"
#include "Components/Widget.h"
#include "CoreMinimal.h"
#include "Templates/Casts.h"
#include "Templates/SubclassOf.h"

#include "UserWidget.generated.h"

class SObjectWidget;

DECLARE_DYNAMIC_MULTICAST_DELEGATE_OneParam(FOnVisibilityChangedEvent, ESlateVisibility, InVisibility);

/**
 * A widget made of others: its widget tree comes from the layout that its class was derived for, or from code.
 *
 * Life: Initialize, then NativeOnInitialized once; each time its Slate widget is made NativePreConstruct and NativeConstruct;
 * NativeDestruct when that goes. Widgets that are bound by name are there from NativeOnInitialized on.
 */
UCLASS(Abstract, BlueprintType, Blueprintable)
class UMG_API UUserWidget : public UWidget
{
	GENERATED_BODY()

public:
	UUserWidget(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	/** @return whether this call did it: a widget is initialized once. */
	virtual bool Initialize();

	//~ Begin UObject
	virtual UWorld* GetWorld() const override;
	//~ End UObject

	UWidget* GetWidgetFromName(const FName& Name) const;
	UWidget* GetRootWidget() const;

	virtual void SetVisibility(ESlateVisibility InVisibility) override;
	virtual void RemoveFromParent() override;
	virtual void ReleaseSlateResources(bool bReleaseChildren) override;

	static UUserWidget* CreateWidgetInstance(UWidget& OwningWidget, TSubclassOf<UUserWidget> UserWidgetClass, FName WidgetName);
	static UUserWidget* CreateWidgetInstance(UWidgetTree& OwningWidgetTree, TSubclassOf<UUserWidget> UserWidgetClass, FName WidgetName);
	static UUserWidget* CreateWidgetInstance(UWorld& World, TSubclassOf<UUserWidget> UserWidgetClass, FName WidgetName);

	/** Raised when SetVisibility() changed it. */
	UPROPERTY(BlueprintAssignable, Category = "Appearance|Event")
	FOnVisibilityChangedEvent OnVisibilityChanged;

	UPROPERTY(Transient)
	TObjectPtr<UWidgetTree> WidgetTree;

protected:
	UFUNCTION(BlueprintImplementableEvent, Category = "User Interface")
	void OnInitialized();

	UFUNCTION(BlueprintImplementableEvent, Category = "User Interface")
	void PreConstruct(bool IsDesignTime);

	UFUNCTION(BlueprintImplementableEvent, Category = "User Interface")
	void Construct();

	UFUNCTION(BlueprintImplementableEvent, Category = "User Interface")
	void Destruct();

	virtual void NativeOnInitialized();
	virtual void NativePreConstruct();
	virtual void NativeConstruct();
	virtual void NativeDestruct();

	virtual TSharedRef<SWidget> RebuildWidget() override;
	virtual void OnWidgetRebuilt() override;

private:
	friend class SObjectWidget;
	friend class UWidgetTree;
	friend class FHostUserWidgets;

	static UUserWidget* CreateInstanceInternal(UObject* Outer, UClass* UserWidgetClass, FName WidgetName);
	void EndConstruction();

	bool bInitialized = false;
	bool bConstructed = false;
};

/**
 * Makes a user widget for an owner: another widget, its tree, or a world. It shows once it is put somewhere.
 * @return null without an owner, or for a class that is abstract or no widget.
 */
template<typename WidgetT = UUserWidget, typename OwnerT = UObject>
WidgetT* CreateWidget(OwnerT* OwningObject, TSubclassOf<UUserWidget> UserWidgetClass = WidgetT::StaticClass(), FName WidgetName = NAME_None)
{
	return OwningObject ? Cast<WidgetT>(UUserWidget::CreateWidgetInstance(*OwningObject, UserWidgetClass, WidgetName)) : nullptr;
}
