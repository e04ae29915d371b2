// Copyright Velmorant. All Rights Reserved.

#include "ClassNames.h"

#include "TextTools.h"
#include "TypeTable.h"

namespace HeaderTool
{
	FClassNames::FClassNames(const FClass& Class, const FTypeTable& Types)
	{
		for (const FFunction& Function : Class.Functions)
		{
			Functions.emplace(ToLower(Function.Name), &Function);
		}
		for (const FClass* Owner : Types.GetChain(Class))
		{
			if (Owner != &Class)
			{
				AddInherited(Owner->Functions, {Owner, ""});
			}
			for (const FBaseSpecifier& Base : Owner->Bases)
			{
				if (const FClass* Interface = Types.FindInterface(Base.Name))
				{
					AddInherited(Interface->Functions, {Interface, Base.Name});
				}
			}
			for (const FProperty& Property : Owner->Properties)
			{
				Properties[ToLower(Property.Name)].push_back({Owner, &Property});
			}
		}
	}

	void FClassNames::AddInherited(const std::vector<FFunction>& OfOwner, const FInheritedFunction& From)
	{
		for (const FFunction& Function : OfOwner)
		{
			Inherited.emplace(ToLower(Function.Name), From);
		}
	}

	const FFunction* FClassNames::FindFunction(const std::string& Name) const
	{
		const auto Found = Functions.find(ToLower(Name));
		return Found != Functions.end() ? Found->second : nullptr;
	}

	const FClassNames::FInheritedFunction* FClassNames::FindInherited(const std::string& Name) const
	{
		const auto Found = Inherited.find(ToLower(Name));
		return Found != Inherited.end() ? &Found->second : nullptr;
	}

	std::vector<FClassNames::FOwnedProperty> FClassNames::FindProperties(const std::string& Name) const
	{
		const auto Found = Properties.find(ToLower(Name));
		return Found != Properties.end() ? Found->second : std::vector<FOwnedProperty>();
	}
}
