// Copyright Velmorant. All Rights Reserved.

#include "Contract/Declaration.h"

#include "SpecifierTable.h"
#include "TextTools.h"

#include <algorithm>
#include <cstdlib>

namespace Declaration
{
	// One by one: the engine has types of the same names.
	using HeaderTool::EAccess;
	using HeaderTool::EClassKind;
	using HeaderTool::EEnumForm;
	using HeaderTool::EMacro;
	using HeaderTool::ERole;
	using HeaderTool::FClass;
	using HeaderTool::FDelegateType;
	using HeaderTool::FEnum;
	using HeaderTool::FEnumerator;
	using HeaderTool::FFlagNames;
	using HeaderTool::FFunction;
	using HeaderTool::FHeader;
	using HeaderTool::FMetaData;
	using HeaderTool::FProperty;
	using HeaderTool::FSpecifierRow;
	using HeaderTool::Join;
	using HeaderTool::Trim;

	template<typename T>
	const T* FindNamed(const std::vector<T>& All, const std::string& Name)
	{
		const auto Found = std::find_if(All.begin(), All.end(), [&Name](const T& Each) { return Each.Name == Name; });
		return Found != All.end() ? &*Found : nullptr;
	}

	std::string SpellAccess(EAccess Access)
	{
		const char* const Names[] = {"public", "protected", "private"};
		return Names[static_cast<size_t>(Access)];
	}

	std::string SpellFlag(bool bFlag, const std::string& Name)
	{
		return bFlag ? Name : "not " + Name;
	}

	std::string SpellTypes(const std::vector<FProperty>& Parameters)
	{
		std::vector<std::string> Types;
		for (const FProperty& Parameter : Parameters)
		{
			Types.push_back(Parameter.Type.Spell());
		}
		return Join(Types, ", ");
	}

	std::string SpellParameters(const std::vector<FProperty>& Parameters)
	{
		std::vector<std::string> Spelled;
		for (const FProperty& Parameter : Parameters)
		{
			Spelled.push_back(Trim(Parameter.Type.Spell() + " " + Parameter.Name));
		}
		return "(" + Join(Spelled, ", ") + ")";
	}

	bool Holds(const FSpecifierRow& Row, const FFlagNames& Flags, const FMetaData& Meta)
	{
		const bool bFlags = std::all_of(Row.Flags.begin(), Row.Flags.end(), [&Flags](const char* Flag) { return Flags.Has(Flag); });
		const auto* Entry = Row.Key != nullptr ? Meta.Find(Row.Key) : nullptr;
		const bool bKey = Row.Key == nullptr || (Entry != nullptr && (Row.KeyValue == nullptr || Entry->Value == Row.KeyValue));
		return bFlags && bKey && !(Row.Flags.empty() && Row.Key == nullptr);
	}

	/** VisibleAnywhere sets a flag of EditAnywhere's and another one: then it is not the latter. */
	bool IsNarrower(const FSpecifierRow& Row, const FSpecifierRow& Than)
	{
		return Row.Flags.size() > Than.Flags.size() && !Than.Flags.empty() && std::all_of(Than.Flags.begin(), Than.Flags.end(), [&Row](const char* Flag) {
			return std::any_of(Row.Flags.begin(), Row.Flags.end(), [Flag](const char* Other) { return std::string(Other) == Flag; });
		});
	}

	std::set<std::string> FindSpecifiers(EMacro Macro, const FFlagNames& Flags, const FMetaData& Meta)
	{
		std::vector<const FSpecifierRow*> Rows;
		for (const FSpecifierRow& Row : HeaderTool::GetSpecifierTable())
		{
			if ((Row.Macros & Macro) && Row.Role != ERole::Key && Holds(Row, Flags, Meta))
			{
				Rows.push_back(&Row);
			}
		}
		std::set<std::string> Result;
		for (const FSpecifierRow* Row : Rows)
		{
			if (std::none_of(Rows.begin(), Rows.end(), [Row](const FSpecifierRow* Other) { return IsNarrower(*Other, *Row); }))
			{
				Result.insert(Row->Name);
			}
		}
		return Result;
	}

	FDeclaration OfProperty(const FProperty& Property)
	{
		FDeclaration Result{Property.Place, Property.Type.Spell() + " " + Property.Name, {{"type", Property.Type.Spell()}, {"access", SpellAccess(Property.Access)}}, {}};
		Result.Specifiers = FindSpecifiers(EMacro::InProperty, Property.Flags, Property.Meta);
		return Result;
	}

	FDeclaration OfFunction(const FFunction& Function)
	{
		FDeclaration Result;
		Result.Place = Function.Place;
		Result.Text = std::string(Function.bStatic ? "static " : "") + (Function.bVirtual ? "virtual " : "") + Function.Return.Spell() + " " + Function.Name + SpellParameters(Function.Parameters) + (Function.bConst ? " const" : "");
		Result.Parts = {{"result", Function.Return.Spell()}, {"parameters", SpellTypes(Function.Parameters)}, {"static", SpellFlag(Function.bStatic, "static")}, {"const", SpellFlag(Function.bConst, "const")}, {"virtual", SpellFlag(Function.bVirtual, "virtual")}, {"access", SpellAccess(Function.Access)}};
		Result.Specifiers = FindSpecifiers(EMacro::InFunction, Function.Flags, Function.Meta);
		return Result;
	}

	FDeclaration OfDelegate(const FDelegateType& Delegate)
	{
		const std::string Kind = Delegate.bMulticast ? "dynamic multicast delegate" : "dynamic delegate";
		const std::string Result = Delegate.Return.Spell();
		return {Delegate.Place, Kind + " " + Result + " " + Delegate.Name + SpellParameters(Delegate.Parameters), {{"kind", Kind}, {"result", Result}, {"parameters", SpellTypes(Delegate.Parameters)}}, {}};
	}

	FDeclaration OfClass(const FClass& Class)
	{
		const std::string Kind = Class.Kind == EClassKind::Struct ? "struct" : "class";
		FDeclaration Result{Class.Place, Kind + " " + Class.CppName, {{"kind", Kind}, {"base class", Class.SuperName()}}, {}};
		Result.Text += Class.Bases.empty() ? "" : " : public " + Class.SuperName();
		Result.Specifiers = FindSpecifiers(Class.Kind == EClassKind::Struct ? EMacro::InStruct : EMacro::InClass, Class.Flags, Class.Meta);
		if (!Class.ConfigName.empty())
		{
			Result.Specifiers.insert("Config=" + Class.ConfigName);
		}
		return Result;
	}

	FDeclaration OfEnum(const FEnum& Enum)
	{
		const std::string Kind = Enum.Form == EEnumForm::Scoped ? "enum class" : "enum";
		return {Enum.Place, Kind + " " + Enum.CppType() + (Enum.Underlying.empty() ? "" : " : " + Enum.Underlying), {{"kind", Kind}, {"type", Enum.Underlying}}, FindSpecifiers(EMacro::InEnum, {}, Enum.Meta)};
	}

	/** What is written as anything but a number, and what follows from that, has no known value. */
	FDeclaration OfEnumerator(const FEnum& Enum, const FEnumerator& Enumerator)
	{
		FDeclaration Result{Enumerator.Place, Enumerator.Name, {}, {}};
		long Value = -1;
		bool bKnown = true;
		for (const FEnumerator* Each = Enum.Enumerators.data(); Each <= &Enumerator; ++Each)
		{
			char* End = nullptr;
			const long Written = std::strtol(Each->ValueText.c_str(), &End, 0);
			const bool bWritten = !Each->ValueText.empty();
			bKnown = bWritten ? *End == '\0' : bKnown;
			Value = bWritten ? Written : Value + 1;
		}
		if (bKnown)
		{
			Result.Text += " = " + std::to_string(Value);
			Result.Parts["value"] = std::to_string(Value);
		}
		return Result;
	}

	std::optional<FDeclaration> FindInClass(const FClass& Class, const std::string& Member)
	{
		if (Member.empty())
		{
			return OfClass(Class);
		}
		if (const FProperty* Property = FindNamed(Class.Properties, Member))
		{
			return OfProperty(*Property);
		}
		if (const FFunction* Function = FindNamed(Class.Functions, Member))
		{
			return OfFunction(*Function);
		}
		return std::nullopt;
	}

	std::optional<FDeclaration> FindInEnum(const FEnum& Enum, const std::string& Member)
	{
		if (Member.empty())
		{
			return OfEnum(Enum);
		}
		const FEnumerator* Enumerator = FindNamed(Enum.Enumerators, Member);
		return Enumerator != nullptr ? std::optional<FDeclaration>(OfEnumerator(Enum, *Enumerator)) : std::nullopt;
	}

	std::optional<FDeclaration> FindDelegate(const std::vector<std::unique_ptr<FDelegateType>>& Delegates, const std::string& Name)
	{
		const auto Found = std::find_if(Delegates.begin(), Delegates.end(), [&Name](const std::unique_ptr<FDelegateType>& Delegate) { return Delegate->Name == Name; });
		return Found != Delegates.end() ? std::optional<FDeclaration>(OfDelegate(**Found)) : std::nullopt;
	}

	std::optional<FDeclaration> Find(const FHeader& Header, const std::string& Type, const std::string& Member)
	{
		for (const std::unique_ptr<FClass>& Class : Header.Classes)
		{
			if (Class->CppName == Type)
			{
				return FindInClass(*Class, Member);
			}
			if (const std::optional<FDeclaration> Delegate = FindDelegate(Class->Delegates, Type); Delegate && Member.empty())
			{
				return Delegate;
			}
		}
		for (const std::unique_ptr<FEnum>& Enum : Header.Enums)
		{
			if (Enum->Name == Type)
			{
				return FindInEnum(*Enum, Member);
			}
		}
		return Member.empty() ? FindDelegate(Header.Delegates, Type) : std::nullopt;
	}
}
