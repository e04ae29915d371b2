// Copyright Velmorant. All Rights Reserved.

#include "Factories/Factory.h"

#include "UObject/Class.h"

UObject* UFactory::FactoryCreateNew(UClass*, UObject*, FName, EObjectFlags, UObject*, FFeedbackContext*)
{
	return nullptr;
}

UObject* UFactory::FactoryCreateNew(UClass* InClass, UObject* InParent, FName InName, EObjectFlags Flags, UObject* Context, FFeedbackContext* Warn, FName)
{
	return FactoryCreateNew(InClass, InParent, InName, Flags, Context, Warn);
}

FText UFactory::GetDisplayName() const
{
	const UClass* Class = SupportedClass;
	return Class != nullptr ? Class->GetDisplayNameText() : FText::GetEmpty();
}

FString UFactory::GetDefaultNewAssetName() const
{
	const UClass* Class = SupportedClass;
	return TEXT("New") + (Class != nullptr ? Class->GetName() : FString());
}
