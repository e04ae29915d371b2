// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Model.h"

namespace HeaderTool
{
	// Names and signatures that the generated header and the generated source must agree on.

	/** "FID_Engine_Widgets_Foo_h" */
	std::string FileId(const FHeader& Header);

	/** "/Script/Module" */
	std::string PackageName(const FHeader& Header);

	/** The struct that holds the tables of a type, and has access to its private members. */
	std::string StaticsName(const std::string& CppName);

	/** The class that functions of Class are members of: the I class of an interface, else the class. */
	std::string OwnerName(const FClass& Class);

	/** `const FString& Name, UFoo* Foo`; Leading comes first, if any. */
	std::string ParameterList(const FFunction& Function, const std::string& Leading = "");

	/** `bool` */
	std::string ReturnType(const FFunction& Function);

	/** A type with const and reference, as a signature names it. */
	std::string SignatureType(const FTypeUse& Type);

	/** `"text"` */
	std::string Quote(const std::string& LiteralInside);

	/** Whether the generated body declares `X_Implementation` because the user did not. */
	bool DeclaresImplementation(const FClass& Class, const FFunction& Function);

	/** Calls Visit for Type and all types inside of it. */
	template<typename VisitorType>
	void VisitType(const FTypeUse& Type, const VisitorType& Visit)
	{
		Visit(Type);
		for (const FTypeUse& Argument : Type.Arguments)
		{
			VisitType(Argument, Visit);
		}
	}

	/** Calls Visit for each type that the reflected members of Class name. */
	template<typename VisitorType>
	void VisitTypes(const FClass& Class, const VisitorType& Visit)
	{
		for (const FProperty& Property : Class.Properties)
		{
			VisitType(Property.Type, Visit);
		}
		for (const FFunction& Function : Class.Functions)
		{
			VisitType(Function.Return, Visit);
			for (const FProperty& Parameter : Function.Parameters)
			{
				VisitType(Parameter.Type, Visit);
			}
		}
	}
}
