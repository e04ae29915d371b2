// Copyright Velmorant. All Rights Reserved.

#include "PropertyEditorModule.h"

#include "HostPropertyEditor.h"
#include "IPropertyTypeCustomization.h"
#include "Modules/ModuleManager.h"
#include "PropertyEditorRegistrations.h"
#include "Rows/OpenDetailsViews.h"

IMPLEMENT_MODULE(FPropertyEditorModule, PropertyEditor)

void FPropertyEditorModule::RegisterCustomPropertyTypeLayout(FName PropertyTypeName, FOnGetPropertyTypeCustomizationInstance PropertyTypeLayoutDelegate, TSharedPtr<IPropertyTypeIdentifier> Identifier)
{
	UnregisterCustomPropertyTypeLayout(PropertyTypeName, Identifier);
	TypeLayouts.Add(FTypeLayout{PropertyTypeName, PropertyTypeLayoutDelegate, Identifier});
}

void FPropertyEditorModule::UnregisterCustomPropertyTypeLayout(FName PropertyTypeName, TSharedPtr<IPropertyTypeIdentifier> InIdentifier)
{
	TypeLayouts.RemoveAll([&](const FTypeLayout& Layout) { return Layout.PropertyTypeName == PropertyTypeName && Layout.Identifier == InIdentifier; });
}

void FPropertyEditorModule::NotifyCustomizationModuleChanged()
{
	++NumChangeNotes;
	OpenDetailsViews::RebuildAll();
}

TSharedRef<FPropertySection> FPropertyEditorModule::FindOrCreateSection(FName ClassName, FName SectionName, FText DisplayName)
{
	for (const FClassSection& Known : Sections)
	{
		if (Known.ClassName == ClassName && Known.Section->GetName() == SectionName)
		{
			return Known.Section;
		}
	}
	const TSharedRef<FPropertySection> Section = MakeShared<FPropertySection>(SectionName, DisplayName);
	Sections.Add(FClassSection{ClassName, Section});
	return Section;
}

TArray<FName> HostPropertyEditor::GetCustomizedTypes()
{
	TArray<FName> Names;
	for (const FPropertyEditorRegistrations::FTypeLayout& Layout : FPropertyEditorRegistrations().GetTypeLayouts())
	{
		Names.AddUnique(Layout.PropertyTypeName);
	}
	return Names;
}

TSharedPtr<IPropertyTypeCustomization> HostPropertyEditor::MakeCustomization(FName PropertyTypeName)
{
	for (const FPropertyEditorRegistrations::FTypeLayout& Layout : FPropertyEditorRegistrations().GetTypeLayouts())
	{
		if (Layout.PropertyTypeName == PropertyTypeName && !Layout.Identifier.IsValid() && Layout.MakeInstance.IsBound())
		{
			return Layout.MakeInstance.Execute();
		}
	}
	return nullptr;
}

TSharedPtr<FPropertySection> HostPropertyEditor::FindSection(FName ClassName, FName SectionName)
{
	for (const FPropertyEditorRegistrations::FClassSection& Known : FPropertyEditorRegistrations().GetSections())
	{
		if (Known.ClassName == ClassName && Known.Section->GetName() == SectionName)
		{
			return Known.Section;
		}
	}
	return nullptr;
}

int32 HostPropertyEditor::GetNumChangeNotes()
{
	return FPropertyEditorRegistrations().GetNumChangeNotes();
}
