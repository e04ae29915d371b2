// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Modules/ModuleInterface.h"
#include "PropertyEditorDelegates.h"
#include "Templates/SharedPointer.h"

class IPropertyHandle;
class IPropertyRowGenerator;
struct FPropertyRowGeneratorArgs;

namespace FPropertyAccess
{
	/** How reading or writing a value went. */
	enum Result
	{
		/** Several objects are shown, and they differ. Not a failure: nothing was read. */
		MultipleValues,
		/** No objects, or a value of another type. */
		Fail,
		Success,
	};
}

/** Narrows a customization to some properties of its type. */
class IPropertyTypeIdentifier
{
public:
	virtual ~IPropertyTypeIdentifier() = default;

	virtual bool IsPropertyTypeCustomized(const IPropertyHandle& PropertyHandle) const = 0;
};

/** Categories of a class's properties that the details panel can show by themselves. */
class PROPERTYEDITOR_API FPropertySection
{
public:
	FPropertySection(FName InName, FText InDisplayName)
		: Name(InName)
		, DisplayName(InDisplayName)
	{
	}

	virtual ~FPropertySection() = default;

	FName GetName() const { return Name; }
	FText GetDisplayName() const { return DisplayName; }

	/** Adding twice changes nothing. */
	virtual void AddCategory(FName CategoryName) { AddedCategories.Add(CategoryName); }

	bool HasAddedCategory(FName CategoryName) const { return AddedCategories.Contains(CategoryName); }

private:
	FName Name;
	FText DisplayName;
	TSet<FName> AddedCategories;
};

/** How property types are shown, and the sections of the details panel. */
class PROPERTYEDITOR_API FPropertyEditorModule : public IModuleInterface
{
public:
	/**
	 * Lets customizations made by the delegate show all properties of the type, or those that Identifier accepts.
	 * The newest registration for the same type and identifier replaces the one before.
	 * @param PropertyTypeName a struct's name without its F
	 */
	virtual void RegisterCustomPropertyTypeLayout(FName PropertyTypeName, FOnGetPropertyTypeCustomizationInstance PropertyTypeLayoutDelegate, TSharedPtr<IPropertyTypeIdentifier> Identifier = nullptr);

	/** Only a registration with the same identifier goes; without one, the one made without. */
	virtual void UnregisterCustomPropertyTypeLayout(FName PropertyTypeName, TSharedPtr<IPropertyTypeIdentifier> InIdentifier = nullptr);

	/** To be called after a module has changed its registrations: panels that are open show them before it returns. */
	void NotifyCustomizationModuleChanged();

	/** The rows that a details panel would have, for whoever wants to lay them out or look at them. */
	virtual TSharedRef<IPropertyRowGenerator> CreatePropertyRowGenerator(const FPropertyRowGeneratorArgs& InArgs);

	/**
	 * @param ClassName   without its prefix
	 * @param DisplayName ignored when the section is there already
	 */
	virtual TSharedRef<FPropertySection> FindOrCreateSection(FName ClassName, FName SectionName, FText DisplayName);

private:
	friend class FPropertyEditorRegistrations;

	struct FTypeLayout
	{
		FName PropertyTypeName;
		FOnGetPropertyTypeCustomizationInstance MakeInstance;
		TSharedPtr<IPropertyTypeIdentifier> Identifier;
	};

	struct FClassSection
	{
		FName ClassName;
		TSharedRef<FPropertySection> Section;
	};

	TArray<FTypeLayout> TypeLayouts;
	TArray<FClassSection> Sections;
	int32 NumChangeNotes = 0;
};
