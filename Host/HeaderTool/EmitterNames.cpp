// Copyright Velmorant. All Rights Reserved.

#include "EmitterNames.h"

#include "TextTools.h"

namespace HeaderTool
{
	std::string FileId(const FHeader& Header)
	{
		return "FID_" + Header.Module + "_" + ToIdentifier(Header.IncludePath);
	}

	std::string PackageName(const FHeader& Header)
	{
		return "/Script/" + Header.Module;
	}

	std::string StaticsName(const std::string& CppName)
	{
		return "Z_Statics_" + CppName;
	}

	std::string OwnerName(const FClass& Class)
	{
		return Class.Kind == EClassKind::Interface ? Class.NativeInterfaceName() : Class.CppName;
	}

	std::string SignatureType(const FTypeUse& Type)
	{
		const bool bConstValue = Type.bConst && Type.Pointers == 0;
		return (bConstValue ? "const " : "") + Type.SpellValue(true) + (Type.bReference ? "&" : "");
	}

	std::string ParameterList(const FFunction& Function, const std::string& Leading)
	{
		std::vector<std::string> Parts;
		if (!Leading.empty())
		{
			Parts.push_back(Leading);
		}
		for (const FProperty& Parameter : Function.Parameters)
		{
			Parts.push_back(SignatureType(Parameter.Type) + " " + Parameter.Name);
		}
		return Join(Parts, ", ");
	}

	std::string ReturnType(const FFunction& Function)
	{
		return SignatureType(Function.Return);
	}

	std::string Quote(const std::string& LiteralInside)
	{
		return "\"" + LiteralInside + "\"";
	}

	bool DeclaresImplementation(const FClass& Class, const FFunction& Function)
	{
		const FBodyFacts& Body = Class.Kind == EClassKind::Interface ? Class.NativeInterfaceBody : Class.Body;
		return Function.Event == EFunctionEvent::Native && !Body.DeclaredFunctions.count(Function.Name + "_Implementation");
	}
}
