// Copyright Velmorant. All Rights Reserved.

#include "PropertyEditorRegistrations.h"

#include "IPropertyTypeCustomization.h"
#include "Kinds/PropertyKind.h"
#include "Kinds/TypeNames.h"
#include "Modules/ModuleManager.h"
#include "UObject/UnrealType.h"

FPropertyEditorRegistrations::FPropertyEditorRegistrations()
	: Module(FModuleManager::GetModulePtr<FPropertyEditorModule>("PropertyEditor"))
{
}

const FPropertyEditorRegistrations::FTypeLayout* FPropertyEditorRegistrations::FindLayout(FName TypeName, const IPropertyHandle& Handle) const
{
	const FTypeLayout* General = nullptr;
	for (const FTypeLayout& Layout : Module->TypeLayouts)
	{
		if (Layout.PropertyTypeName != TypeName || !Layout.MakeInstance.IsBound())
		{
			continue;
		}
		if (!Layout.Identifier.IsValid())
		{
			General = &Layout;
		}
		else if (Layout.Identifier->IsPropertyTypeCustomized(Handle))
		{
			return &Layout;
		}
	}
	return General;
}

TSharedPtr<IPropertyTypeCustomization> FPropertyEditorRegistrations::MakeCustomization(const IPropertyHandle& Handle) const
{
	const FProperty* Property = Handle.GetProperty();
	if (Module == nullptr || Property == nullptr)
	{
		return nullptr;
	}
	for (const FName TypeName : FPropertyKind::Of(Property).GetTypeNames(*Property))
	{
		if (const FTypeLayout* Layout = FindLayout(TypeName, Handle))
		{
			const FOnGetPropertyTypeCustomizationInstance MakeInstance = Layout->MakeInstance; // making one may register another
			return MakeInstance.Execute();
		}
	}
	return nullptr;
}

TArray<TSharedRef<FPropertySection>> FPropertyEditorRegistrations::FindSections(const UClass* Class) const
{
	const TArray<FName> ClassNames = TypeNames::GetChain(Class);
	TArray<TSharedRef<FPropertySection>> Found;
	for (const FClassSection& Known : GetSections())
	{
		if (ClassNames.Contains(Known.ClassName))
		{
			Found.Add(Known.Section);
		}
	}
	return Found;
}
