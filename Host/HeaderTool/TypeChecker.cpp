// Copyright Velmorant. All Rights Reserved.

#include "TypeChecker.h"

#include "Diagnostics.h"
#include "TypeRemedies.h"
#include "TypeTable.h"

namespace HeaderTool
{
	namespace TypeChecker
	{
		const std::set<std::string>& NumberNames()
		{
			static const std::set<std::string> Names = {"bool", "int8", "int16", "int32", "int64", "uint8", "uint16", "uint32", "uint64", "int", "float", "double"};
			return Names;
		}

		bool IsBlueprintNumber(const std::string& Name)
		{
			static const std::set<std::string> Names = {"bool", "uint8", "int32", "int", "int64", "float", "double"};
			return Names.count(Name) > 0;
		}

		/** Templates over a class: what they are. */
		ETypeKind ObjectTemplateKind(const std::string& Name)
		{
			static const std::map<std::string, ETypeKind> Kinds = {
				{"TObjectPtr", ETypeKind::Object}, {"TWeakObjectPtr", ETypeKind::Object}, {"TSoftObjectPtr", ETypeKind::Object},
				{"TSubclassOf", ETypeKind::Class}, {"TSoftClassPtr", ETypeKind::Class}};
			const auto Found = Kinds.find(Name);
			return Found != Kinds.end() ? Found->second : ETypeKind::Unresolved;
		}

		ETypeKind ContainerKind(const std::string& Name)
		{
			static const std::map<std::string, ETypeKind> Kinds = {{"TArray", ETypeKind::Array}, {"TSet", ETypeKind::Set}, {"TMap", ETypeKind::Map}};
			const auto Found = Kinds.find(Name);
			return Found != Kinds.end() ? Found->second : ETypeKind::Unresolved;
		}

		bool IsContainerName(const std::string& Name)
		{
			return ContainerKind(Name) != ETypeKind::Unresolved;
		}

		class FTypeChecker
		{
		public:
			FTypeChecker(const FTypeContext& InContext, const FTypeTable& InTypes, FDiagnostics& InDiagnostics)
				: Context(InContext)
				, Types(InTypes)
				, Diagnostics(InDiagnostics)
			{
			}

			void Check(FTypeUse& Type)
			{
				if (Type.bUnparsed)
				{
					Unsupported(Type, "use a type that has a name.");
				}
				else if (Type.Name == "void" && Type.Pointers == 0 && !Type.bReference && Context.Place == ETypePlace::Return)
				{
					Type.Kind = ETypeKind::Void;
				}
				else if (Type.bRvalue)
				{
					Unsupported(Type, "use a value or a const reference.");
				}
				else if (Type.bReference && Context.Place == ETypePlace::Member)
				{
					Unsupported(Type, "use a value or an object pointer.");
				}
				else if (Type.Pointers > 1)
				{
					Unsupported(Type, "use TArray for many, a reference for results.");
				}
				else
				{
					ByName(Type);
				}
			}

		private:
			void ByName(FTypeUse& Type)
			{
				if (IsContainerName(Type.Name))
				{
					Container(Type);
				}
				else if (ObjectTemplateKind(Type.Name) != ETypeKind::Unresolved)
				{
					ObjectTemplate(Type);
				}
				else if (Type.Name == "TEnumAsByte")
				{
					EnumAsByte(Type);
				}
				else if (!Type.Arguments.empty())
				{
					Unknown(Type);
				}
				else if (NumberNames().count(Type.Name))
				{
					Number(Type);
				}
				else if (Type.Name == "FString" || Type.Name == "FName" || Type.Name == "FText")
				{
					Type.Kind = ETypeKind::Text;
					RequireNoPointer(Type);
				}
				else if (Types.FindClass(Type.Name) || FTypeTable::IsRootClass(Type.Name))
				{
					ObjectPointer(Type);
				}
				else if (Types.FindStruct(Type.Name) || FTypeTable::IsBuiltInStruct(Type.Name))
				{
					Struct(Type);
				}
				else if (const FEnum* Enum = Types.FindEnum(Type.Name))
				{
					EnumValue(Type, *Enum);
				}
				else if (const FDelegateType* Delegate = Types.FindDelegate(Type.Name, Context.Scope))
				{
					DelegateValue(Type, *Delegate);
				}
				else
				{
					Unknown(Type);
				}
			}

			void Container(FTypeUse& Type)
			{
				Type.Kind = ContainerKind(Type.Name);
				RequireNoPointer(Type);
				const size_t Expected = Type.Kind == ETypeKind::Map ? 2 : 1;
				if (Type.Arguments.size() != Expected)
				{
					Unsupported(Type, Type.Name + " takes " + std::to_string(Expected) + " type(s) here, without allocator or key functions.");
					return;
				}
				for (FTypeUse& Argument : Type.Arguments)
				{
					if (IsContainerName(Argument.Name))
					{
						Report(Type, "is a nested container, which is not supported; put the inner " + Argument.Name + " into a USTRUCT.");
						return;
					}
					FTypeContext Inner = Context;
					Inner.Place = ETypePlace::Member; // a raw plain enum has no fixed size in a container either
					FTypeChecker(Inner, Types, Diagnostics).Check(Argument);
				}
			}

			void ObjectTemplate(FTypeUse& Type)
			{
				Type.Kind = ObjectTemplateKind(Type.Name);
				RequireNoPointer(Type);
				if (Type.Arguments.size() != 1 || Type.Arguments.front().Pointers != 0 || !Type.Arguments.front().Arguments.empty())
				{
					Unsupported(Type, "write " + Type.Name + "<UClassName>.");
					return;
				}
				FTypeUse& Argument = Type.Arguments.front();
				Argument.Kind = ETypeKind::Object;
				if (!Types.FindClass(Argument.Name) && !FTypeTable::IsRootClass(Argument.Name))
				{
					UnknownClass(Type, Argument.Name);
					return;
				}
				ReferTo(Type, Types.FindClass(Argument.Name), Argument.Name);
			}

			void EnumAsByte(FTypeUse& Type)
			{
				Type.Kind = ETypeKind::EnumAsByte;
				RequireNoPointer(Type);
				const FEnum* Enum = Type.Arguments.size() == 1 ? Types.FindEnum(Type.Arguments.front().Name) : nullptr;
				if (!Enum)
				{
					Unsupported(Type, "TEnumAsByte takes an enum that is a UENUM.");
				}
				else if (Enum->Form == EEnumForm::Scoped)
				{
					Report(Type, "wraps an enum class, which does not compile; use '" + Enum->Name + "' itself.");
				}
				else
				{
					Type.ValueHeader = Enum->Header;
					Type.EnumName = Enum->CppType();
				}
			}

			void Number(FTypeUse& Type)
			{
				Type.Kind = ETypeKind::Number;
				RequireNoPointer(Type);
				if (Context.bBlueprint && !IsBlueprintNumber(Type.Name))
				{
					Report(Type, "is not known to Blueprints; use int32, int64 or uint8.");
				}
			}

			void ObjectPointer(FTypeUse& Type)
			{
				Type.Kind = Type.Name == "UClass" ? ETypeKind::Class : ETypeKind::Object;
				if (Type.Pointers == 0)
				{
					Report(Type, "is a class of objects, which are never values; use " + std::string(Context.Place == ETypePlace::Member ? "TObjectPtr<" + Type.Name + ">." : Type.Name + "*."));
					return;
				}
				ReferTo(Type, Types.FindClass(Type.Name), Type.Name);
			}

			void Struct(FTypeUse& Type)
			{
				Type.Kind = ETypeKind::Struct;
				const FClass* Parsed = Types.FindStruct(Type.Name);
				Type.ValueHeader = Parsed ? Parsed->Header : nullptr;
				if (Type.Pointers > 0)
				{
					Report(Type, "is a raw pointer to a struct, which is not supported; use the struct itself" + std::string(Context.Place == ETypePlace::Member ? "." : ", or a reference to it."));
					return;
				}
				if (Context.bBlueprint && Parsed && !IsBlueprintStruct(*Parsed))
				{
					Report(Type, "is not known to Blueprints; write USTRUCT(BlueprintType) before 'struct " + Type.Name + "'.");
				}
			}

			bool IsBlueprintStruct(const FClass& Struct) const
			{
				for (const FClass* Current : Types.GetChain(Struct))
				{
					if (Current->Meta.IsTrue("BlueprintType"))
					{
						return true;
					}
				}
				return false;
			}

			void EnumValue(FTypeUse& Type, const FEnum& Enum)
			{
				Type.Kind = ETypeKind::Enum;
				Type.ValueHeader = Enum.Header;
				Type.EnumName = Enum.CppType();
				RequireNoPointer(Type);
				if (Enum.Form != EEnumForm::Scoped && Context.Place == ETypePlace::Member)
				{
					Report(Type, "is a plain enum, whose size is not fixed; use TEnumAsByte<" + Enum.CppType() + "> or make it an 'enum class … : uint8'.");
				}
				else if (Enum.Form == EEnumForm::Scoped && Context.bBlueprint && Enum.Underlying != "uint8")
				{
					Report(Type, "is not known to Blueprints, whose enums are bytes; declare it as 'enum class " + Enum.Name + " : uint8'.");
				}
			}

			void DelegateValue(FTypeUse& Type, const FDelegateType& Delegate)
			{
				Type.Kind = Delegate.bMulticast ? ETypeKind::MulticastDelegate : ETypeKind::Delegate;
				Type.ValueHeader = Types.FindDelegateHeader(Delegate);
				Type.Qualifier = Delegate.Outer && Type.Name.find("::") == std::string::npos ? QualifierOf(*Delegate.Outer) : "";
				RequireNoPointer(Type);
				if (Delegate.bMulticast && Context.Place != ETypePlace::Member)
				{
					Report(Type, "is a multicast delegate, which cannot be passed; use a DECLARE_DYNAMIC_DELEGATE type.");
				}
			}

			static std::string QualifierOf(const FClass& Outer)
			{
				return (Outer.Kind == EClassKind::Interface ? Outer.NativeInterfaceName() : Outer.CppName) + "::";
			}

			void Unknown(const FTypeUse& Type)
			{
				const std::string Known = FindTypeRemedy(Type);
				if (!Known.empty())
				{
					Unsupported(Type, Known);
				}
				else if (const FClass* Interface = Types.FindInterface(Type.Name))
				{
					Unsupported(Type, "use TObjectPtr<UObject>, and Cast<" + Interface->NativeInterfaceName() + ">() what it holds.");
				}
				else if (Type.Name.size() > 1 && (Type.Name[0] == 'U' || Type.Name[0] == 'A') && Type.Pointers > 0)
				{
					UnknownClass(Type, Type.Name);
				}
				else if (Type.Pointers > 0)
				{
					Report(Type, "is a raw pointer to something that is not a UObject, which is not supported; leave the macro out, or point to a reflected class.");
				}
				else if (Type.Name.size() > 1 && Type.Name[0] == 'E')
				{
					Report(Type, "is not a reflected enum; put UENUM() before it, in a header that includes its .generated.h.");
				}
				else if (Type.Name.size() > 1 && Type.Name[0] == 'F')
				{
					Report(Type, "is neither a USTRUCT nor a dynamic delegate of a known header; reflect it, or leave the macro out.");
				}
				else
				{
					Unsupported(Type, "use a reflected type, or leave the macro out.");
				}
			}

			void UnknownClass(const FTypeUse& Type, const std::string& Name)
			{
				Report(Type, "names '" + Name + "', which is no reflected class of this module or of those it depends on; check the name, or put UCLASS() before it.");
			}

			void RequireNoPointer(const FTypeUse& Type)
			{
				if (Type.Pointers > 0)
				{
					Report(Type, "is a raw pointer to something that is not a UObject, which is not supported; use the value" + std::string(Context.Place == ETypePlace::Member ? "." : ", or a reference."));
				}
			}

			void ReferTo(FTypeUse& Type, const FClass* Class, const std::string& Name)
			{
				Type.ReferencedClass = Class;
				Type.ReferencedClassName = Name;
			}

			void Unsupported(const FTypeUse& Type, const std::string& What)
			{
				Report(Type, "is not supported here; " + What);
			}

			void Report(const FTypeUse& Type, const std::string& Problem)
			{
				Diagnostics.Error(Context.Path, Type.Place, Context.What + " '" + Type.Spell() + "' " + Problem);
			}

			const FTypeContext& Context;
			const FTypeTable& Types;
			FDiagnostics& Diagnostics;
		};
	}

	void CheckType(FTypeUse& Type, const FTypeContext& Context, const FTypeTable& Types, FDiagnostics& Diagnostics)
	{
		TypeChecker::FTypeChecker(Context, Types, Diagnostics).Check(Type);
	}
}
