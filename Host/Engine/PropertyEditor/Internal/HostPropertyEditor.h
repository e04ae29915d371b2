// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "PropertyEditorModule.h"

/** What is registered with the property editor. Nothing while its module is not loaded. */
namespace HostPropertyEditor
{
	/** Type names that have a customization, in order of registration. */
	TArray<FName> GetCustomizedTypes();

	/** A new customization for the type, as a details panel would make one for a property without identifier. Null when there is none. */
	TSharedPtr<IPropertyTypeCustomization> MakeCustomization(FName PropertyTypeName);

	/** Null when there is no such section. */
	TSharedPtr<FPropertySection> FindSection(FName ClassName, FName SectionName);

	/** How often NotifyCustomizationModuleChanged() was called. */
	int32 GetNumChangeNotes();
}
