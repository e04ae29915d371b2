// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Input/Reply.h"
#include "Styling/SlateTypes.h"
#include "Types/SlateEnums.h"

class ITableRow;
class STableViewBase;
class SWidget;

DECLARE_DELEGATE_RetVal(FReply, FOnClicked);
DECLARE_DELEGATE_RetVal(TSharedRef<SWidget>, FOnGetContent);
DECLARE_DELEGATE_OneParam(FOnTextChanged, const FText&);
DECLARE_DELEGATE_TwoParams(FOnTextCommitted, const FText&, ETextCommit::Type);
DECLARE_DELEGATE_OneParam(FOnCheckStateChanged, ECheckBoxState);
DECLARE_DELEGATE_OneParam(FOnBooleanValueChanged, bool);

/** Delegate types of widgets that show items. */
template<typename ItemType>
struct TSlateDelegates
{
	typedef TDelegate<TSharedRef<SWidget>(ItemType)> FOnGenerateWidget;
	typedef TDelegate<void(ItemType, ESelectInfo::Type)> FOnSelectionChanged;
	typedef TDelegate<TSharedRef<ITableRow>(ItemType, const TSharedRef<STableViewBase>&)> FOnGenerateRow;
	typedef TDelegate<void(ItemType)> FOnMouseButtonClick;
	typedef TDelegate<void(ItemType)> FOnMouseButtonDoubleClick;
};
