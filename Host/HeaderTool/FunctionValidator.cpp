// Copyright Velmorant. All Rights Reserved.

#include "FunctionValidator.h"

#include "ClassNames.h"
#include "Diagnostics.h"
#include "TextTools.h"
#include "TypeChecker.h"
#include "TypeTable.h"

namespace HeaderTool
{
	namespace FunctionValidator
	{
		class FFunctionValidator
		{
		public:
			FFunctionValidator(FClass& InClass, FFunction& InFunction, const FClassNames& InNames, const FTypeTable& InTypes, FDiagnostics& InDiagnostics)
				: Class(InClass)
				, Function(InFunction)
				, Names(InNames)
				, Types(InTypes)
				, Diagnostics(InDiagnostics)
				, Name("'" + InFunction.Name + "'")
			{
			}

			void Run()
			{
				CheckName();
				CheckInherited();
				CheckEvent();
				if (Class.Kind == EClassKind::Interface)
				{
					CheckInterface();
				}
				CheckTypes();
				CheckParameterNames();
				SetParameterFlags();
				CheckPure();
				CheckWorldContext();
			}

		private:
			/** Functions are looked up by name alone, so a name means one function. */
			void CheckName()
			{
				const FFunction* First = Names.FindFunction(Function.Name);
				if (First != &Function)
				{
					Error("UFUNCTION " + Name + " has the name of the UFUNCTION in line " + std::to_string(First->Place.Line) + " (case does not count): reflected functions cannot be overloaded; rename one, or reflect only one.");
				}
			}

			void CheckInherited()
			{
				const FClassNames::FInheritedFunction* Inherited = Names.FindInherited(Function.Name);
				if (Inherited == nullptr)
				{
					return;
				}
				if (Inherited->Interface.empty())
				{
					Error("UFUNCTION " + Name + " is a UFUNCTION of '" + Inherited->Owner->CppName + "' already; remove the macro here, overrides are found through the first declaration.");
				}
				else
				{
					Error("UFUNCTION " + Name + " belongs to the interface '" + Inherited->Interface + "'; do not declare it again, override " + Function.Name + "_Implementation().");
				}
			}

			void CheckEvent()
			{
				if (Function.Event == EFunctionEvent::None)
				{
					return;
				}
				const bool bNative = Function.Event == EFunctionEvent::Native;
				const std::string Kind = bNative ? "BlueprintNativeEvent" : "BlueprintImplementableEvent";
				if (Function.bStatic)
				{
					Error("the " + Kind + " " + Name + " cannot be static; remove 'static'.");
				}
				if (Function.bVirtual)
				{
					Error("the " + Kind + " " + Name + " cannot be virtual; remove 'virtual'" + std::string(bNative ? " and override " + Function.Name + "_Implementation()." : "."));
				}
				if (Function.bHasBody)
				{
					Error("the " + Kind + " " + Name + " cannot have a body, which is generated; " + (bNative ? "write " + Function.Name + "_Implementation() instead." : "remove it."));
				}
				if (Function.Access == EAccess::Private)
				{
					Error("the " + Kind + " " + Name + " cannot be private; Blueprints could not override it. Make it protected or public.");
				}
				if (!bNative && Class.Body.DeclaredFunctions.count(Function.Name + "_Implementation"))
				{
					Error("the BlueprintImplementableEvent " + Name + " has no native implementation; remove " + Function.Name + "_Implementation(), or make it a BlueprintNativeEvent.");
				}
			}

			void CheckInterface()
			{
				if (Function.bStatic)
				{
					Error("UFUNCTION " + Name + " of an interface cannot be static; remove 'static' or the macro.");
				}
				else if (Function.Event == EFunctionEvent::None)
				{
					Error("UFUNCTION " + Name + " of an interface must be a BlueprintNativeEvent or a BlueprintImplementableEvent; add one of them, or remove the macro.");
				}
			}

			void CheckTypes()
			{
				const bool bBlueprint = Function.Flags.Has("FUNC_BlueprintCallable") || Function.Flags.Has("FUNC_BlueprintEvent");
				FTypeContext Context{Class.Header->Path, "return value of " + Name + ": type", ETypePlace::Return, &Class, bBlueprint};
				CheckType(Function.Return, Context, Types, Diagnostics);
				for (FProperty& Parameter : Function.Parameters)
				{
					Context.What = "parameter '" + Parameter.Name + "' of " + Name + ": type";
					Context.Place = ETypePlace::Parameter;
					CheckType(Parameter.Type, Context, Types, Diagnostics);
				}
			}

			void CheckParameterNames()
			{
				std::set<std::string> Taken = {"returnvalue"};
				for (const FProperty& Parameter : Function.Parameters)
				{
					if (Parameter.Name.empty())
					{
						Error("a parameter of UFUNCTION " + Name + " (type '" + Parameter.Type.Spell() + "') has no name; give it one.", Parameter.Place);
					}
					else if (EqualsIgnoringCase(Parameter.Name, "ReturnValue"))
					{
						Error("parameter '" + Parameter.Name + "' of " + Name + " has the name that is kept for the result; rename it.", Parameter.Place);
					}
					else if (!Taken.insert(ToLower(Parameter.Name)).second)
					{
						Error("UFUNCTION " + Name + " has two parameters named '" + Parameter.Name + "' (case does not count); rename one.", Parameter.Place);
					}
					CheckShadowing(Parameter);
				}
			}

			void CheckShadowing(const FProperty& Parameter)
			{
				for (const auto& [Owner, Property] : Names.FindProperties(Parameter.Name))
				{
					Error("parameter '" + Parameter.Name + "' of " + Name + " has the name of the UPROPERTY '" + Owner->CppName + "::" + Property->Name + "'; rename it, to 'In" + Parameter.Name + "' for example.", Parameter.Place);
				}
			}

			void SetParameterFlags()
			{
				for (FProperty& Parameter : Function.Parameters)
				{
					const bool bConst = Parameter.Type.bConst && Parameter.Type.Pointers == 0;
					Parameter.Flags.Add("CPF_Parm");
					if (Parameter.Type.bReference)
					{
						Parameter.Flags.Add("CPF_OutParm");
						if (bConst)
						{
							Parameter.Flags.Add("CPF_ReferenceParm");
						}
					}
					if (bConst)
					{
						Parameter.Flags.Add("CPF_ConstParm");
					}
					bHasOutput |= Parameter.Type.bReference && !bConst;
				}
				if (bHasOutput)
				{
					Function.Flags.Add("FUNC_HasOutParms");
				}
			}

			void CheckPure()
			{
				const bool bHasResult = Function.Returns() || bHasOutput;
				if (Function.Flags.Has("FUNC_BlueprintPure") && !bHasResult)
				{
					Error("the BlueprintPure function " + Name + " returns nothing; give it a result, or make it BlueprintCallable.", Function.Flags.PlaceOf("FUNC_BlueprintPure"));
				}
				// A const function that only tells something needs no execution pin.
				if (Function.Flags.Has("FUNC_BlueprintCallable") && Function.bConst && bHasResult)
				{
					Function.Flags.Add("FUNC_BlueprintPure");
				}
			}

			void CheckWorldContext()
			{
				const FMetaEntry* Context = Function.Meta.Find("WorldContext");
				if (!Context)
				{
					return;
				}
				for (const FProperty& Parameter : Function.Parameters)
				{
					if (EqualsIgnoringCase(Parameter.Name, Context->Value))
					{
						return;
					}
				}
				Error("WorldContext of " + Name + " names '" + Context->Value + "', which is no parameter of it; name the one that leads to the world.", Context->Place);
			}

			void Error(const std::string& Message, const FPlace& Place = {})
			{
				Diagnostics.Error(Class.Header->Path, Place.IsSet() ? Place : Function.Place, Message);
			}

			FClass& Class;
			FFunction& Function;
			const FClassNames& Names;
			const FTypeTable& Types;
			FDiagnostics& Diagnostics;
			const std::string Name; // in quotes, for messages
			bool bHasOutput = false; // a parameter that the function writes to
		};
	}

	void ValidateFunctions(FClass& Class, const FTypeTable& Types, FDiagnostics& Diagnostics)
	{
		if (Class.Functions.empty())
		{
			return;
		}
		const FClassNames Names(Class, Types);
		for (FFunction& Function : Class.Functions)
		{
			FunctionValidator::FFunctionValidator(Class, Function, Names, Types, Diagnostics).Run();
		}
	}
}
