// Copyright Velmorant. All Rights Reserved.

#include "Validator.h"

#include "Diagnostics.h"
#include "FunctionValidator.h"
#include "TextTools.h"
#include "TypeChecker.h"
#include "TypeTable.h"

#include <string>
#include <unordered_map>

namespace HeaderTool
{
	namespace Validator
	{
		class FHeaderValidator
		{
		public:
			FHeaderValidator(FHeader& InHeader, const FTypeTable& InTypes, FDiagnostics& InDiagnostics)
				: Header(InHeader)
				, Types(InTypes)
				, Diagnostics(InDiagnostics)
			{
			}

			void Run()
			{
				Includes();
				for (const std::unique_ptr<FEnum>& Enum : Header.Enums)
				{
					CheckEnum(*Enum);
				}
				for (const std::unique_ptr<FDelegateType>& Delegate : Header.Delegates)
				{
					CheckDelegate(*Delegate, nullptr);
				}
				for (const std::unique_ptr<FClass>& Class : Header.Classes)
				{
					CheckClass(*Class);
				}
			}

		private:
			void Includes()
			{
				const std::string Expected = Header.BaseName() + ".generated.h";
				if (!Header.GeneratedIncludePlace.IsSet())
				{
					if (Header.FirstReflectedPlace.IsSet())
					{
						Error(Header.FirstReflectedPlace, "this header declares reflected types, but does not include \"" + Expected + "\"; add it as the last include.");
					}
					return;
				}
				const size_t Slash = Header.GeneratedInclude.find_last_of('/');
				const std::string Name = Slash == std::string::npos ? Header.GeneratedInclude : Header.GeneratedInclude.substr(Slash + 1);
				if (Name != Expected)
				{
					Error(Header.GeneratedIncludePlace, "\"" + Header.GeneratedInclude + "\" belongs to another header; include \"" + Expected + "\".");
				}
				if (Header.LastIncludePlace != Header.GeneratedIncludePlace)
				{
					Error(Header.LastIncludePlace, "\"" + Header.LastInclude + "\" is included after \"" + Header.GeneratedInclude + "\", which must be the last include; move it up.");
				}
			}

			/** Fixed widths, and for enums that TEnumAsByte wraps plain int; nothing written is int as well. */
			void CheckUnderlying(const FEnum& Enum)
			{
				static const std::set<std::string> FixedWidths = {"uint8", "uint16", "uint32", "uint64", "int8", "int16", "int32", "int64"};
				const bool bScoped = Enum.Form == EEnumForm::Scoped;
				const bool bInt = Enum.Underlying.empty() || Enum.Underlying == "int";
				const FPlace& Place = Enum.Underlying.empty() ? Enum.Place : Enum.UnderlyingPlace;
				if (Enum.Meta.IsTrue("BlueprintType") && Enum.Underlying != "uint8" && (bScoped || !bInt))
				{
					const std::string Remedy = bScoped ? "declare it as 'enum class " + Enum.Name + " : uint8'." : "write uint8, int or no underlying type.";
					Error(Place, "enum '" + Enum.Name + "' is a BlueprintType, and Blueprints know only bytes; " + Remedy);
				}
				else if (bScoped && Enum.Underlying == "int")
				{
					Error(Place, "enum class '" + Enum.Name + "' has the underlying type 'int', which only unscoped enums can have; use uint8, or int32 for more values.");
				}
				else if (!bInt && !FixedWidths.count(Enum.Underlying))
				{
					Error(Place, "enum '" + Enum.Name + "' has the underlying type '" + Enum.Underlying + "', which is not supported; use uint8, or another of int8 to int64 and uint16 to uint64.");
				}
			}

			void CheckEnum(const FEnum& Enum)
			{
				CheckUnderlying(Enum);
				std::set<std::string> Names;
				for (const FEnumerator& Enumerator : Enum.Enumerators)
				{
					if (!Names.insert(ToLower(Enumerator.Name)).second)
					{
						Error(Enumerator.Place, "'" + Enum.Name + "' has two enumerators named '" + Enumerator.Name + "' (case does not count); rename one.");
					}
				}
			}

			void CheckDelegate(FDelegateType& Delegate, const FClass* Scope)
			{
				if (Delegate.Name[0] != 'F')
				{
					Error(Delegate.Place, "the name of delegate '" + Delegate.Name + "' must begin with 'F'; call it 'F" + Delegate.Name + "'.");
				}
				FTypeContext Context{Header.Path, "return value of '" + Delegate.Name + "': type", ETypePlace::Return, Scope, false};
				CheckType(Delegate.Return, Context, Types, Diagnostics);
				for (FProperty& Parameter : Delegate.Parameters)
				{
					Context.What = "parameter '" + Parameter.Name + "' of '" + Delegate.Name + "': type";
					Context.Place = ETypePlace::Parameter;
					CheckType(Parameter.Type, Context, Types, Diagnostics);
				}
			}

			void CheckClass(FClass& Class)
			{
				CheckBody(Class, Class.Body, Class.CppName, Class.Place);
				CheckPrefix(Class);
				CheckExport(Class);
				CheckBases(Class);
				if (Class.Kind == EClassKind::Interface && Class.bHasNativeInterface)
				{
					CheckBody(Class, Class.NativeInterfaceBody, Class.NativeInterfaceName(), Class.NativeInterfacePlace);
				}
				if (Class.Kind != EClassKind::Struct && FindConstructor(Class, Types) == EConstructor::None)
				{
					Error(Class.Place, "the constructors of '" + Class.CppName + "' all take arguments; objects are made by '" + Class.CppName + "()' or '" + Class.CppName + "(const FObjectInitializer&)', so declare one of these.");
				}
				for (const std::unique_ptr<FDelegateType>& Delegate : Class.Delegates)
				{
					CheckDelegate(*Delegate, &Class);
				}
				CheckProperties(Class);
				ValidateFunctions(Class, Types, Diagnostics);
			}

			void CheckBody(const FClass& Class, const FBodyFacts& Body, const std::string& Name, const FPlace& Place)
			{
				if (!Body.MacroPlace.IsSet())
				{
					Error(Place, "'" + Name + "' has no GENERATED_BODY(); add it as the first line of its body.");
				}
				for (const char* Generated : {"_getUObject", "StaticClass", "StaticStruct"})
				{
					if (Body.DeclaredFunctions.count(Generated))
					{
						Error(Place, "'" + Name + "' declares " + Generated + "(), which is generated; remove it.");
					}
				}
				for (const FFunction& Function : Class.Functions)
				{
					for (const char* Prefix : {"exec", "Execute_"})
					{
						if (Body.DeclaredFunctions.count(Prefix + Function.Name))
						{
							Error(Place, "'" + Name + "' declares " + Prefix + Function.Name + "(), which is generated for the UFUNCTION '" + Function.Name + "'; remove it.");
						}
					}
				}
			}

			void CheckPrefix(const FClass& Class)
			{
				std::string Expected = "U";
				std::string What = Class.Kind == EClassKind::Interface ? "an interface" : "a class of objects";
				if (Class.Kind == EClassKind::Struct)
				{
					Expected = "F";
					What = "a struct";
				}
				else if (Types.DerivesFrom(Class, "AActor"))
				{
					Expected = "A";
					What = "an actor class";
				}
				if (Class.CppName.size() < 2 || Class.CppName.substr(0, 1) != Expected)
				{
					Error(Class.Place, "the name of " + What + " must begin with '" + Expected + "', but this one is called '" + Class.CppName + "'; rename it.");
				}
			}

			void CheckExport(const FClass& Class)
			{
				if (Class.bExported && Class.Flags.Has("CLASS_MinimalAPI"))
				{
					Error(Class.Flags.PlaceOf("CLASS_MinimalAPI"), "MinimalAPI exports the least of '" + Class.CppName + "', but its _API macro exports all of it; keep one of the two.");
				}
			}

			void CheckBases(const FClass& Class)
			{
				if (Class.Bases.empty())
				{
					if (Class.Kind != EClassKind::Struct)
					{
						const std::string Root = Class.Kind == EClassKind::Interface ? "UInterface" : "UObject";
						Error(Class.Place, "'" + Class.CppName + "' has no super class; derive it from " + Root + " ('class " + Class.CppName + " : public " + Root + "').");
					}
					return;
				}
				const FBaseSpecifier& Super = Class.Bases.front();
				if (Class.Kind == EClassKind::Struct)
				{
					if (!Types.FindStruct(Super.Name))
					{
						Error(Super.Place, "'" + Class.CppName + "' derives from '" + Super.Name + "', which is no USTRUCT of this module or of those it depends on; reflect it, or hold it as a member.");
					}
				}
				else if (!Types.FindSuper(Class) && !FTypeTable::IsRootClass(Super.Name))
				{
					Error(Super.Place, "the super class '" + Super.Name + "' of '" + Class.CppName + "' is no UCLASS of this module or of those it depends on; check the name, put it first among the bases, or reflect it.");
				}
				else if (Class.Kind == EClassKind::Interface && Super.Name != "UInterface" && !Types.DerivesFrom(Class, "UInterface"))
				{
					Error(Super.Place, "interface '" + Class.CppName + "' must derive from UInterface or from another interface, not from '" + Super.Name + "'.");
				}
				if (Types.GetChain(Class).back()->SuperName() == Class.CppName)
				{
					Error(Super.Place, "'" + Class.CppName + "' is its own super class; break the circle.");
				}
				for (size_t Index = 1; Index < Class.Bases.size(); ++Index)
				{
					const FBaseSpecifier& Base = Class.Bases[Index];
					if (Class.Kind != EClassKind::Struct && (Types.FindClass(Base.Name) || FTypeTable::IsRootClass(Base.Name)))
					{
						Error(Base.Place, "'" + Class.CppName + "' derives from a second class of objects, '" + Base.Name + "'; only one is possible, next to interfaces.");
					}
				}
			}

			void CheckProperties(FClass& Class)
			{
				std::unordered_map<std::string, const FClass*> Owners; // by name in lower case: the class nearest to this one that has it
				for (const FClass* Owner : Types.GetChain(Class))
				{
					for (const FProperty& Property : Owner->Properties)
					{
						if (Owner != &Class)
						{
							Owners.emplace(ToLower(Property.Name), Owner);
						}
					}
				}
				for (FProperty& Property : Class.Properties)
				{
					FTypeContext Context{Header.Path, "UPROPERTY type", ETypePlace::Member, &Class, Property.Flags.Has("CPF_BlueprintVisible")};
					CheckType(Property.Type, Context, Types, Diagnostics);
					const FClass*& Owner = Owners[ToLower(Property.Name)];
					if (Owner != nullptr)
					{
						Error(Property.Place, "UPROPERTY '" + Property.Name + "' has the name of a UPROPERTY of '" + Owner->CppName + "' (case does not count); rename one of the two.");
					}
					Owner = &Class;
					CheckPropertyFlags(Property);
				}
			}

			void CheckPropertyFlags(const FProperty& Property)
			{
				if (Property.Access == EAccess::Private && Property.Flags.Has("CPF_BlueprintVisible") && !Property.Meta.IsTrue("AllowPrivateAccess"))
				{
					const std::string Specifier = Property.Flags.Has("CPF_BlueprintReadOnly") ? "BlueprintReadOnly" : "BlueprintReadWrite";
					Error(Property.Flags.PlaceOf("CPF_BlueprintVisible"), Specifier + " on the private UPROPERTY '" + Property.Name + "' needs meta=(AllowPrivateAccess=\"true\"); add it, or make the variable protected or public.");
				}
				if (Property.Flags.Has("CPF_BlueprintAssignable") && Property.Type.Kind != ETypeKind::MulticastDelegate)
				{
					Error(Property.Flags.PlaceOf("CPF_BlueprintAssignable"), "BlueprintAssignable on UPROPERTY '" + Property.Name + "' is only for multicast delegates; remove it, or declare the type by DECLARE_DYNAMIC_MULTICAST_DELEGATE.");
				}
			}

			void Error(const FPlace& Place, const std::string& Message)
			{
				Diagnostics.Error(Header.Path, Place, Message);
			}

			FHeader& Header;
			const FTypeTable& Types;
			FDiagnostics& Diagnostics;
		};
	}

	void ValidateHeader(FHeader& Header, const FTypeTable& Types, FDiagnostics& Diagnostics)
	{
		Validator::FHeaderValidator(Header, Types, Diagnostics).Run();
	}

	EConstructor FindConstructor(const FClass& Class, const FTypeTable& Types)
	{
		for (const FClass* Current : Types.GetChain(Class))
		{
			const FBodyFacts& Body = Current->Body;
			if (Body.bInitializerConstructor || Body.Macro == "GENERATED_UCLASS_BODY" || Body.Macro == "GENERATED_UINTERFACE_BODY")
			{
				return EConstructor::Initializer;
			}
			if (Body.bDefaultConstructor)
			{
				return EConstructor::Default;
			}
			if (Body.bOtherConstructor)
			{
				return EConstructor::None;
			}
		}
		return EConstructor::Initializer; // that of the root classes
	}
}
