// Copyright Velmorant. All Rights Reserved.

#include "Specifiers.h"

#include "Diagnostics.h"
#include "SpecifierTable.h"
#include "TextTools.h"

namespace HeaderTool
{
	namespace Specifiers
	{
		/** Takes over one macro's specifiers. */
		class FApplier
		{
		public:
			FApplier(const FSpecifierList& InList, EMacro InMacro, FFlagNames* InFlags, FMetaData& InMeta, FDiagnostics& InDiagnostics)
				: List(InList)
				, Macro(InMacro)
				, Flags(InFlags)
				, Meta(InMeta)
				, Diagnostics(InDiagnostics)
			{
			}

			void Run()
			{
				for (const FSpecifier& Specifier : List.Specifiers)
				{
					if (const FSpecifierRow* Row = FindSpecifier(Specifier.Name, Macro, Specifier.bKey))
					{
						Known(Specifier, *Row);
					}
					else if (Specifier.bKey || Macro == InEnumerator)
					{
						UnknownKey(Specifier);
					}
					else
					{
						Error(Specifier, "unknown specifier " + Describe(Specifier) + "; " + Suggest(Specifier, "remove it, or write meta=(" + Specifier.Name + ") if it is metadata."));
					}
				}
				UseCommentAsToolTip();
			}

		private:
			void Known(const FSpecifier& Specifier, const FSpecifierRow& Row)
			{
				const bool bValue = !Specifier.Values.empty();
				if (!Row.Consumer)
				{
					Error(Specifier, Describe(Specifier) + " is known to the engine, not supported here; remove it.");
				}
				else if (Row.Value == EValue::Needed && !bValue)
				{
					Error(Specifier, Describe(Specifier) + " needs a value; write " + Specifier.Name + "=\"…\".");
				}
				else if (Row.Value == EValue::None && bValue && !Specifier.bKey)
				{
					Error(Specifier, Describe(Specifier) + " takes no value; write " + Specifier.Name + " alone.");
				}
				else
				{
					Honour(Specifier, Row);
				}
			}

			void Honour(const FSpecifier& Specifier, const FSpecifierRow& Row)
			{
				for (const char* Flag : Row.Flags)
				{
					Flags->Add(Flag, Specifier.Place);
				}
				if (Row.Key)
				{
					const bool bAsWritten = !Row.KeyValue || !Specifier.Values.empty();
					Meta.Set(Row.Key, bAsWritten ? WrittenValue(Specifier) : Row.KeyValue, Specifier.Place);
				}
			}

			/** The engine keeps any key, for whoever asks for it; only what was meant to be another one is stopped. */
			void UnknownKey(const FSpecifier& Specifier)
			{
				const std::string Meant = Suggest(Specifier, "");
				if (Macro != InEnumerator && FindSpecifier(Specifier.Name, Macro, false))
				{
					Error(Specifier, Describe(Specifier) + " is no metadata; write it outside of meta=(…).");
				}
				else if (!Meant.empty())
				{
					Error(Specifier, "unknown metadata key " + Describe(Specifier) + "; " + Meant);
				}
				else
				{
					Meta.Set(Specifier.Name, WrittenValue(Specifier), Specifier.Place);
				}
			}

			static std::string WrittenValue(const FSpecifier& Specifier)
			{
				if (Specifier.Values.empty())
				{
					return Specifier.bKey ? "" : "true";
				}
				return Join(Specifier.Values, " ");
			}

			std::string Describe(const FSpecifier& Specifier) const
			{
				return "'" + Specifier.Name + "' in " + List.Macro + "()";
			}

			/** "did you mean …?" of what would be honoured in the same place, or Otherwise. */
			std::string Suggest(const FSpecifier& Specifier, const std::string& Otherwise) const
			{
				std::vector<std::string> Names;
				for (const FSpecifierRow& Row : GetSpecifierTable())
				{
					if ((Row.Macros & Macro) && Row.Consumer && Row.Role != (Specifier.bKey ? ERole::Specifier : ERole::Key))
					{
						Names.push_back(Row.Name);
					}
				}
				const std::string Nearest = FindNearest(Specifier.Name, Names);
				return Nearest.empty() ? Otherwise : "did you mean '" + Nearest + "'?";
			}

			void UseCommentAsToolTip()
			{
				const std::string ToolTip = ToolTipFromComment(List.Comment);
				if (!ToolTip.empty() && !Meta.Find("ToolTip"))
				{
					Meta.Set("ToolTip", EscapeForLiteral(ToolTip));
				}
			}

			void Error(const FSpecifier& Specifier, const std::string& Message)
			{
				Diagnostics.Error(List.Path, Specifier.Place, Message);
			}

			const FSpecifierList& List;
			const EMacro Macro;
			FFlagNames* const Flags; // null where a macro has none
			FMetaData& Meta;
			FDiagnostics& Diagnostics;
		};

		/** What can be the base of a Blueprint can be the type of its variables as well. */
		void ShowToBlueprints(FClass& Class)
		{
			if (Class.Meta.IsTrue("IsBlueprintBase"))
			{
				Class.Meta.Set("BlueprintType", "true");
			}
		}
	}

	const FSpecifier* FSpecifierList::Find(const std::string& Name) const
	{
		for (const FSpecifier& Specifier : Specifiers)
		{
			if (EqualsIgnoringCase(Specifier.Name, Name))
			{
				return &Specifier;
			}
		}
		return nullptr;
	}

	void ApplyClassSpecifiers(const FSpecifierList& List, FClass& Class, FDiagnostics& Diagnostics)
	{
		Specifiers::FApplier(List, InClass, &Class.Flags, Class.Meta, Diagnostics).Run();
		Specifiers::ShowToBlueprints(Class);
		if (const FSpecifier* Config = List.Find("Config"))
		{
			Class.ConfigName = Join(Config->Values, " ");
		}
	}

	void ApplyInterfaceSpecifiers(const FSpecifierList& List, FClass& Class, FDiagnostics& Diagnostics)
	{
		Specifiers::FApplier(List, InInterface, &Class.Flags, Class.Meta, Diagnostics).Run();
		Specifiers::ShowToBlueprints(Class);
	}

	void ApplyStructSpecifiers(const FSpecifierList& List, FClass& Struct, FDiagnostics& Diagnostics)
	{
		Specifiers::FApplier(List, InStruct, &Struct.Flags, Struct.Meta, Diagnostics).Run();
	}

	void ApplyEnumSpecifiers(const FSpecifierList& List, FEnum& Enum, FDiagnostics& Diagnostics)
	{
		Specifiers::FApplier(List, InEnum, nullptr, Enum.Meta, Diagnostics).Run();
	}

	void ApplyEnumeratorSpecifiers(const FSpecifierList& List, FEnumerator& Enumerator, FDiagnostics& Diagnostics)
	{
		Specifiers::FApplier(List, InEnumerator, nullptr, Enumerator.Meta, Diagnostics).Run();
	}

	void ApplyFunctionSpecifiers(const FSpecifierList& List, FFunction& Function, FDiagnostics& Diagnostics)
	{
		Specifiers::FApplier(List, InFunction, &Function.Flags, Function.Meta, Diagnostics).Run();
		const FSpecifier* Native = List.Find("BlueprintNativeEvent");
		const FSpecifier* Implementable = List.Find("BlueprintImplementableEvent");
		if (Native && Implementable)
		{
			Diagnostics.Error(List.Path, std::max(Native->Place, Implementable->Place), "a function is either a BlueprintNativeEvent or a BlueprintImplementableEvent; keep one of the two.");
		}
		if (Native || Implementable)
		{
			Function.Event = Native ? EFunctionEvent::Native : EFunctionEvent::Implementable;
		}
	}

	void ApplyPropertySpecifiers(const FSpecifierList& List, FProperty& Property, FDiagnostics& Diagnostics)
	{
		Specifiers::FApplier(List, InProperty, &Property.Flags, Property.Meta, Diagnostics).Run();
	}

	void ApplyParameterSpecifiers(const FSpecifierList& List, FProperty& Parameter, FDiagnostics& Diagnostics)
	{
		Specifiers::FApplier(List, InParameter, &Parameter.Flags, Parameter.Meta, Diagnostics).Run();
	}
}
