// Copyright Velmorant. All Rights Reserved.

#include "PropertyEditorRegistrations.h"

#include "IPropertyTypeCustomization.h"
#include "Modules/ModuleManager.h"
#include "UObject/UnrealType.h"

namespace PropertyEditorRegistrations
{
	static void AppendChain(const UStruct* Struct, TArray<FName>& OutNames)
	{
		for (; Struct != nullptr; Struct = Struct->GetSuperStruct())
		{
			OutNames.Add(Struct->GetFName());
		}
	}

	/** What the type of a property is called, the most special name first. */
	static TArray<FName> FindTypeNames(const FProperty& Property)
	{
		TArray<FName> Names;
		if (const FStructProperty* StructProperty = CastField<FStructProperty>(&Property))
		{
			AppendChain(StructProperty->Struct, Names);
		}
		else if (const FObjectPropertyBase* ObjectProperty = CastField<FObjectPropertyBase>(&Property))
		{
			AppendChain(ObjectProperty->PropertyClass, Names);
		}
		else if (const FEnumProperty* EnumProperty = CastField<FEnumProperty>(&Property))
		{
			Names.Add(EnumProperty->GetEnum()->GetFName());
		}
		else if (const FByteProperty* ByteProperty = CastField<FByteProperty>(&Property); ByteProperty != nullptr && ByteProperty->Enum != nullptr)
		{
			Names.Add(ByteProperty->Enum->GetFName());
		}
		else
		{
			Names.Add(Property.GetClass()->GetFName());
		}
		return Names;
	}
}

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
	for (const FName TypeName : PropertyEditorRegistrations::FindTypeNames(*Property))
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
	TArray<FName> ClassNames;
	PropertyEditorRegistrations::AppendChain(Class, ClassNames);
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
