// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Templates/SubclassOf.h"
#include "UObject/Object.h"
#include "Factory.generated.h"

class FFeedbackContext;

/** Makes new assets of one class. Subclasses that are not abstract are found by reflection. Constructors set the fields. */
UCLASS(Abstract)
class UNREALED_API UFactory : public UObject
{
	GENERATED_BODY()

public:
	/** What it makes, or, for a factory of Blueprints, what their parent class is. */
	UPROPERTY()
	TSubclassOf<UObject> SupportedClass;

	/** Whether it can make an asset from nothing; only such are offered in the menu of new assets. */
	uint8 bCreateNew : 1 = false;

	/** Whether the asset's editor opens after its creation. Host: there are no asset editors. */
	uint8 bEditAfterNew : 1 = false;

	/** Whether it can make an asset from a file. */
	uint8 bEditorImport : 1 = false;

	/** Whether such a file is text. */
	uint8 bText : 1 = false;

	/**
	 * Makes the asset.
	 * @param InClass  the class asked for: SupportedClass or one below it
	 * @param InParent the package to make it in
	 * @return null when nothing could be made; the factory has told the user why
	 */
	virtual UObject* FactoryCreateNew(UClass* InClass, UObject* InParent, FName InName, EObjectFlags Flags, UObject* Context, FFeedbackContext* Warn);

	/** The form that the asset tools call; forwards to the other one unless overridden. */
	virtual UObject* FactoryCreateNew(UClass* InClass, UObject* InParent, FName InName, EObjectFlags Flags, UObject* Context, FFeedbackContext* Warn, FName CallingContext);

	/** Asks the user for what the factory needs to know. @return false when the user does not want the asset after all */
	virtual bool ConfigureProperties() { return true; }

	virtual bool CanCreateNew() const { return bCreateNew; }
	virtual bool ShouldShowInNewMenu() const { return CanCreateNew(); }

	/** What is made, for people: the supported class's display name. */
	virtual FText GetDisplayName() const;

	/** The name proposed for a new asset: "New" and the supported class's name. */
	virtual FString GetDefaultNewAssetName() const;

	UClass* GetSupportedClass() const { return SupportedClass; }
};
