// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "PropertyEditorModule.h"

class IPropertyTypeCustomization;
class UClass;

/** Sees what the property editor module keeps to itself. Empty while it is not loaded. */
class FPropertyEditorRegistrations
{
public:
	using FTypeLayout = FPropertyEditorModule::FTypeLayout;
	using FClassSection = FPropertyEditorModule::FClassSection;

	FPropertyEditorRegistrations();

	TArray<FTypeLayout> GetTypeLayouts() const { return Module != nullptr ? Module->TypeLayouts : TArray<FTypeLayout>(); }
	TArray<FClassSection> GetSections() const { return Module != nullptr ? Module->Sections : TArray<FClassSection>(); }
	int32 GetNumChangeNotes() const { return Module != nullptr ? Module->NumChangeNotes : 0; }

	/**
	 * A new customization for a property: by its own type's name, then by those of its super types. Among registrations of one name,
	 * those whose identifier takes the property come first. Null when there is none.
	 */
	TSharedPtr<IPropertyTypeCustomization> MakeCustomization(const IPropertyHandle& Handle) const;

	/** Of the class and of its super classes, in order of registration. */
	TArray<TSharedRef<FPropertySection>> FindSections(const UClass* Class) const;

private:
	const FTypeLayout* FindLayout(FName TypeName, const IPropertyHandle& Handle) const;

	const FPropertyEditorModule* Module;
};
