// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Model.h"

#include <string>
#include <unordered_map>
#include <vector>

namespace HeaderTool
{
	class FTypeTable;

	/** What the functions of a class, and their parameters, may clash with. Case does not count. */
	class FClassNames
	{
	public:
		struct FInheritedFunction
		{
			const FClass* Owner = nullptr;
			std::string Interface; // as the class names it among its bases; empty for a super class
		};

		struct FOwnedProperty
		{
			const FClass* Owner = nullptr;
			const FProperty* Property = nullptr;
		};

		FClassNames(const FClass& Class, const FTypeTable& Types);

		/** Of the functions of the class with this name, the one that stands first; null for none. */
		const FFunction* FindFunction(const std::string& Name) const;

		/** The nearest one that a super class or an interface declares; null for none. */
		const FInheritedFunction* FindInherited(const std::string& Name) const;

		/** Of the class and its super classes, the nearest first. */
		std::vector<FOwnedProperty> FindProperties(const std::string& Name) const;

	private:
		void AddInherited(const std::vector<FFunction>& OfOwner, const FInheritedFunction& From);

		/** All by name in lower case. */
		std::unordered_map<std::string, const FFunction*> Functions;
		std::unordered_map<std::string, FInheritedFunction> Inherited;
		std::unordered_map<std::string, std::vector<FOwnedProperty>> Properties;
	};
}
