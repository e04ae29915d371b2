// Copyright Velmorant. All Rights Reserved.

#include "EditorWidgets/ListDisplayerItemBase.h"

#include "UObject/Package.h"

UListDisplayerItemBase* UListDisplayerItemBase::CreateListDisplayerItemBase(int32 InUnitID, const FString& InKeycode, const FString& InDisplayName, TEnumAsByte<EListDisplayItemType> InItemBaseType)
{
	UListDisplayerItemBase* Item = NewObject<UListDisplayerItemBase>(GetTransientPackage());
	Item->UnitID = InUnitID;
	Item->Keycode = InKeycode;
	Item->DisplayName = InDisplayName;
	Item->ItemBaseType = InItemBaseType;
	return Item;
}
