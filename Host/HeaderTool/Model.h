// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Place.h"

#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

namespace HeaderTool
{
	struct FHeader;
	struct FClass;

	/** Key and value; the value is the inside of a C++ string literal, escapes as they were written. */
	struct FMetaEntry
	{
		std::string Key;
		std::string Value;
		FPlace Place; // of the word that set it; unset if a comment did
	};

	/** Metadata in the order it was written; keys compare without regard to case. */
	class FMetaData
	{
	public:
		void Set(const std::string& Key, const std::string& Value, const FPlace& Place = {});
		const FMetaEntry* Find(const std::string& Key) const;
		bool IsTrue(const std::string& Key) const;
		const std::vector<FMetaEntry>& GetEntries() const { return Entries; }

	private:
		std::vector<FMetaEntry> Entries;
	};

	/** Names of engine flags (CPF_…, FUNC_…, CLASS_…), in the order they were set. */
	class FFlagNames
	{
	public:
		void Add(const std::string& Flag, const FPlace& Place = {});
		bool Has(const std::string& Flag) const { return Find(Flag) != nullptr; }

		/** Of the specifier that set Flag first; unset if none did. */
		FPlace PlaceOf(const std::string& Flag) const;

		/** `A | B`, or `0`. */
		std::string ToExpression() const;

	private:
		struct FFlag
		{
			std::string Name;
			FPlace Place;
		};

		const FFlag* Find(const std::string& Name) const;

		std::vector<FFlag> Flags;
	};

	enum class ETypeKind
	{
		Unresolved,
		Void,
		Number, // bool, integers, floating point
		Text, // FString, FName, FText
		Enum,
		EnumAsByte,
		Struct,
		Object, // UFoo*, TObjectPtr, TWeakObjectPtr, TSoftObjectPtr, …
		Class, // TSubclassOf, TSoftClassPtr, UClass*
		Delegate,
		MulticastDelegate,
		Array,
		Set,
		Map,
	};

	/** A type as a declaration names it, and what it turned out to be. */
	struct FTypeUse
	{
		std::string Name; // without arguments: "TArray", "FString", "ESelectInfo::Type"
		std::vector<FTypeUse> Arguments;
		bool bConst = false;
		bool bReference = false;
		bool bRvalue = false;
		int Pointers = 0;
		bool bUnparsed = false; // Name holds raw text that is no plain type, a function signature for example
		FPlace Place;

		// Filled in by the type checker.
		ETypeKind Kind = ETypeKind::Unresolved;
		std::string Qualifier; // "UFoo::" when the type is declared inside a class
		const FHeader* ValueHeader = nullptr; // whoever holds the type by value must include this; null for what comes with the core headers
		const FClass* ReferencedClass = nullptr; // the class named, when it is one that was parsed
		std::string ReferencedClassName; // the class named, parsed or built in; forward-declared where used
		std::string EnumName; // the C++ name of the enum, for the declaration of its StaticEnum

		/** As a person would write it, const and reference included. */
		std::string Spell() const;

		/** The type of a value of it: no const, no reference; what the pointer points to loses its const only for the property. */
		std::string SpellValue(bool bKeepPointeeConst) const;
	};

	enum class EAccess
	{
		Public,
		Protected,
		Private
	};

	struct FProperty
	{
		std::string Name;
		FTypeUse Type;
		FPlace Place;
		EAccess Access = EAccess::Public;
		FFlagNames Flags;
		FMetaData Meta;
		std::string DefaultText; // parameters only: the default argument, "" if none
	};

	enum class EFunctionEvent
	{
		None,
		Implementable, // BlueprintImplementableEvent
		Native // BlueprintNativeEvent
	};

	struct FFunction
	{
		std::string Name;
		FPlace Place;
		FTypeUse Return;
		std::vector<FProperty> Parameters;
		EAccess Access = EAccess::Public;
		EFunctionEvent Event = EFunctionEvent::None;
		bool bStatic = false;
		bool bConst = false;
		bool bVirtual = false;
		bool bHasBody = false;
		FFlagNames Flags;
		FMetaData Meta;

		bool Returns() const { return Return.Kind != ETypeKind::Void; }
		bool HasNativeBody() const { return Event != EFunctionEvent::Implementable; }
	};

	struct FDelegateType
	{
		std::string Name;
		const FClass* Outer = nullptr; // null at file scope
		bool bMulticast = false;
		FPlace Place;
		FTypeUse Return;
		std::vector<FProperty> Parameters;
	};

	struct FBaseSpecifier
	{
		std::string Name;
		FPlace Place;
	};

	/** What the class body shows apart from its reflected members. */
	struct FBodyFacts
	{
		FPlace MacroPlace; // of GENERATED_BODY; unset if missing
		std::string Macro;
		bool bDefaultConstructor = false;
		bool bInitializerConstructor = false; // takes const FObjectInitializer&
		bool bOtherConstructor = false;
		bool bDestructor = false;
		std::set<std::string> DeclaredFunctions; // every name that looks like a function that is not reflected

		bool DeclaresConstructor() const { return bDefaultConstructor || bInitializerConstructor || bOtherConstructor; }
	};

	enum class EClassKind
	{
		Class,
		Interface,
		Struct
	};

	/** A UCLASS, the U side of a UINTERFACE, or a USTRUCT. */
	struct FClass
	{
		EClassKind Kind = EClassKind::Class;
		std::string CppName;
		const FHeader* Header = nullptr;
		FPlace Place;
		bool bExported = false; // MODULE_API
		std::string ConfigName;
		FFlagNames Flags;
		FMetaData Meta;
		std::vector<FBaseSpecifier> Bases;
		FBodyFacts Body;
		std::vector<FProperty> Properties;
		std::vector<FFunction> Functions; // of an interface: those of its I class
		std::vector<std::unique_ptr<FDelegateType>> Delegates;

		// Interfaces only: the I class.
		bool bHasNativeInterface = false;
		FPlace NativeInterfacePlace;
		std::vector<FBaseSpecifier> NativeInterfaceBases;
		FBodyFacts NativeInterfaceBody;

		/** Without the prefix letter, as the reflection system names it. */
		std::string EngineName() const { return CppName.substr(1); }
		std::string NativeInterfaceName() const { return "I" + CppName.substr(1); }
		std::string SuperName() const { return Bases.empty() ? std::string() : Bases.front().Name; }
	};

	enum class EEnumForm
	{
		Scoped, // enum class E : uint8
		Plain, // enum E
		Namespaced, // namespace E { enum Type }
	};

	struct FEnumerator
	{
		std::string Name;
		std::string ValueText; // as written; empty if it follows from the one before
		FPlace Place;
		FMetaData Meta;
	};

	struct FEnum
	{
		EEnumForm Form = EEnumForm::Scoped;
		std::string Name; // "EFoo", "ESelectInfo"
		std::string InnerName; // namespaced form: "Type"
		std::string Underlying; // "uint8"; empty if not written
		FPlace UnderlyingPlace;
		const FHeader* Header = nullptr;
		FPlace Place;
		FMetaData Meta;
		std::vector<FEnumerator> Enumerators;

		std::string CppType() const { return Form == EEnumForm::Namespaced ? Name + "::" + InnerName : Name; }
	};

	struct FHeader
	{
		std::string Path; // as the manifest gives it
		std::string IncludePath; // as sources include it
		std::string Module;
		bool bOwn = false; // of the module that is generated, not only referenced
		std::string LastInclude;
		FPlace LastIncludePlace;
		FPlace GeneratedIncludePlace; // unset if there is none
		std::string GeneratedInclude;
		std::vector<std::unique_ptr<FClass>> Classes; // classes, interfaces, structs in order of declaration
		std::vector<std::unique_ptr<FEnum>> Enums;
		std::vector<std::unique_ptr<FDelegateType>> Delegates;
		FPlace FirstReflectedPlace; // unset if nothing is reflected

		/** The file name without folder and extension: "Foo" of "Widgets/Foo.h". */
		std::string BaseName() const;
	};
}
