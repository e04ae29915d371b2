// Copyright Velmorant. All Rights Reserved.

#include "Layout/LayoutFunctions.h"

#include "Blueprint/UserWidget.h"
#include "Components/ComboBoxString.h"
#include "Layout/LayoutAccess.h"

namespace LayoutFunctions
{
	/** From one text to a widget, as the generator of a combo box. */
	bool MakesWidgetOfText(const UFunction& Function)
	{
		const FObjectProperty* Result = CastField<FObjectProperty>(Function.GetReturnProperty());
		const TArray<const FProperty*> Parameters = LayoutTypes::ParametersOf(Function);
		return Result && Result->PropertyClass->IsChildOf<UWidget>() && Parameters.Num() == 1 && Parameters[0]->IsA<FStrProperty>();
	}

	bool Check(const FLayoutValue& Value, const UClass& PanelClass, const FDelegateProperty& Property, FString& OutReason)
	{
		if (&Property != FindFProperty<FDelegateProperty>(UComboBoxString::StaticClass(), FName(TEXT("OnGenerateWidgetEvent"))))
		{
			OutReason = FString::Printf(TEXT("'%s' cannot be bound by a layout"), *Property.GetName());
			return false;
		}
		if (!Value.IsConstantText())
		{
			OutReason = TEXT("a function is named as it is, without braces or conditions");
			return false;
		}
		const FString Name = LayoutValues::EvaluateText(Value, FLayoutScope());
		const UFunction* Function = Name.Len() > MaxNameLength ? nullptr : PanelClass.FindFunctionByName(FName(*Name));
		if (!Function)
		{
			OutReason = FString::Printf(TEXT("panel %s has no function '%s'"), *PanelClass.GetName(), *Name);
			return false;
		}
		if (!LayoutAccess::CanCall(*Function))
		{
			OutReason = FString::Printf(TEXT("Blueprints cannot call '%s' of panel %s"), *Name, *PanelClass.GetName());
			return false;
		}
		OutReason = FString::Printf(TEXT("'%s' of panel %s does not make a widget of one text (FString)"), *Name, *PanelClass.GetName());
		return MakesWidgetOfText(*Function);
	}

	void Bind(const FLayoutValue& Value, const FLayoutScope& Scope, void* Dest)
	{
		static_cast<FScriptDelegate*>(Dest)->BindUFunction(Scope.Panel, FName(*LayoutValues::EvaluateText(Value, Scope)));
	}
}
