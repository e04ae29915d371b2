// Copyright Velmorant. All Rights Reserved.

#include "Specifiers.h"

#include "Diagnostics.h"
#include "TextTools.h"

#include <functional>

namespace HeaderTool
{
	namespace
	{
		/** What a specifier does: sets flags, sets metadata, or something that takes code. */
		struct FRule
		{
			const char* Name;
			std::vector<const char*> Flags = {};
			const char* MetaKey = nullptr; // set to the specifier's value, or to MetaValue if that is given
			const char* MetaValue = nullptr;
			std::function<void(const FSpecifier&)> Act = {};
		};

		using FRules = std::vector<FRule>;

		/** Metadata that may stand outside of meta=(…) at any macro. */
		const FRules& CommonRules()
		{
			static const FRules Rules = {
				{"Category", {}, "Category"},
				{"DisplayName", {}, "DisplayName"},
				{"ToolTip", {}, "ToolTip"},
				{"ShortToolTip", {}, "ShortToolTip"},
				{"Experimental", {}, "DevelopmentStatus", "Experimental"},
				{"EarlyAccessPreview", {}, "DevelopmentStatus", "EarlyAccess"},
				{"DevelopmentOnly", {}, "DevelopmentOnly", "true"},
			};
			return Rules;
		}

		/** What the engine knows and this host has no use for: refused by name rather than as a slip of the pen. */
		bool IsNetworkSpecifier(const std::string& Name)
		{
			for (const char* Network : {"Server", "Client", "NetMulticast", "Reliable", "Unreliable", "WithValidation", "Replicated", "ReplicatedUsing", "NotReplicated", "ServiceRequest", "ServiceResponse", "BlueprintCosmetic", "BlueprintAuthorityOnly"})
			{
				if (EqualsIgnoringCase(Name, Network))
				{
					return true;
				}
			}
			return false;
		}

		void Apply(const FRule& Rule, const FSpecifier& Specifier, FFlagNames* Flags, FMetaData& Meta)
		{
			for (const char* Flag : Rule.Flags)
			{
				if (Flags)
				{
					Flags->Add(Flag);
				}
			}
			if (Rule.MetaKey && !Meta.Find(Rule.MetaKey))
			{
				Meta.Set(Rule.MetaKey, Rule.MetaValue ? Rule.MetaValue : Specifier.JoinedValue());
			}
			if (Rule.Act)
			{
				Rule.Act(Specifier);
			}
		}

		const FRule* FindRule(const FRules& Rules, const std::string& Name)
		{
			for (const FRule& Rule : Rules)
			{
				if (EqualsIgnoringCase(Rule.Name, Name))
				{
					return &Rule;
				}
			}
			return nullptr;
		}

		void ReportUnknown(const FSpecifierList& List, const FSpecifier& Specifier, const FRules& Rules, FDiagnostics& Diagnostics)
		{
			const std::string What = "'" + Specifier.Name + "' in " + List.Macro + "()";
			if (IsNetworkSpecifier(Specifier.Name))
			{
				Diagnostics.Error(List.Path, Specifier.Line, "specifier " + What + " is not supported: nothing is replicated here; remove it.");
				return;
			}
			std::vector<std::string> Names;
			for (const FRules* Known : {&Rules, &CommonRules()})
			{
				for (const FRule& Rule : *Known)
				{
					Names.push_back(Rule.Name);
				}
			}
			const std::string Nearest = FindNearest(Specifier.Name, Names);
			const std::string Remedy = Nearest.empty() ? "remove it, or write meta=(" + Specifier.Name + ") if it is metadata." : "did you mean '" + Nearest + "'?";
			Diagnostics.Error(List.Path, Specifier.Line, "unknown specifier " + What + "; " + Remedy);
		}

		void UseCommentAsToolTip(const FSpecifierList& List, FMetaData& Meta)
		{
			const std::string ToolTip = ToolTipFromComment(List.Comment);
			if (!ToolTip.empty() && !Meta.Find("ToolTip"))
			{
				Meta.Set("ToolTip", EscapeForLiteral(ToolTip));
			}
		}

		void ApplyAll(const FSpecifierList& List, const FRules& Rules, FFlagNames* Flags, FMetaData& Meta, FDiagnostics& Diagnostics)
		{
			Meta = List.Meta;
			for (const FSpecifier& Specifier : List.Specifiers)
			{
				const FRule* Rule = FindRule(Rules, Specifier.Name);
				Rule = Rule ? Rule : FindRule(CommonRules(), Specifier.Name);
				if (Rule)
				{
					Apply(*Rule, Specifier, Flags, Meta);
				}
				else
				{
					ReportUnknown(List, Specifier, Rules, Diagnostics);
				}
			}
			UseCommentAsToolTip(List, Meta);
		}

		bool IsFalse(const FSpecifier& Specifier)
		{
			return EqualsIgnoringCase(Specifier.JoinedValue(), "false");
		}
	}

	std::string FSpecifier::JoinedValue() const
	{
		return Values.empty() ? "true" : Join(Values, " ");
	}

	void ApplyClassSpecifiers(const FSpecifierList& List, FClass& Class, FDiagnostics& Diagnostics)
	{
		const FRules Rules = {
			{"Blueprintable", {}, "IsBlueprintBase", "true", [&Class](const FSpecifier&) { Class.Meta.Set("BlueprintType", "true"); }},
			{"NotBlueprintable", {}, "IsBlueprintBase", "false"},
			{"BlueprintType", {}, "BlueprintType", "true"},
			{"NotBlueprintType", {}, "NotBlueprintType", "true"},
			{"Abstract", {"CLASS_Abstract"}},
			{"Config", {"CLASS_Config"}, nullptr, nullptr, [&Class](const FSpecifier& Specifier) { Class.ConfigName = Specifier.JoinedValue(); }},
			{"DefaultConfig", {"CLASS_DefaultConfig"}},
			{"GlobalUserConfig", {"CLASS_GlobalUserConfig"}},
			{"ProjectUserConfig", {"CLASS_ProjectUserConfig"}},
			{"PerObjectConfig", {"CLASS_PerObjectConfig"}},
			{"Transient", {"CLASS_Transient"}},
			{"NonTransient"},
			{"Deprecated", {"CLASS_Deprecated", "CLASS_NotPlaceable"}},
			{"MinimalAPI", {"CLASS_MinimalAPI"}},
			{"Const", {"CLASS_Const"}},
			{"EditInlineNew", {"CLASS_EditInlineNew"}},
			{"NotEditInlineNew"},
			{"DefaultToInstanced", {"CLASS_DefaultToInstanced"}},
			{"CollapseCategories", {"CLASS_CollapseCategories"}},
			{"DontCollapseCategories"},
			{"Placeable"},
			{"NotPlaceable", {"CLASS_NotPlaceable"}},
			{"HideDropdown", {"CLASS_HideDropDown"}},
			{"Hidden", {"CLASS_Hidden"}},
			{"Within", {}, "Within"},
			{"HideCategories", {}, "HideCategories"},
			{"ShowCategories", {}, "ShowCategories"},
			{"AutoExpandCategories", {}, "AutoExpandCategories"},
			{"AutoCollapseCategories", {}, "AutoCollapseCategories"},
			{"PrioritizeCategories", {}, "PrioritizeCategories"},
			{"HideFunctions", {}, "HideFunctions"},
			{"ShowFunctions", {}, "ShowFunctions"},
			{"ClassGroup", {}, "ClassGroupNames"},
			{"ComponentWrapperClass", {}, "IgnoreCategoryKeywordsInSubclasses", "true"},
			{"AdvancedClassDisplay", {}, "AdvancedClassDisplay", "true"},
			{"ConversionRoot", {}, "IsConversionRoot", "true"},
			{"CustomConstructor"},
		};
		ApplyAll(List, Rules, &Class.Flags, Class.Meta, Diagnostics);
	}

	void ApplyInterfaceSpecifiers(const FSpecifierList& List, FClass& Class, FDiagnostics& Diagnostics)
	{
		const FRules Rules = {
			{"Blueprintable", {}, "IsBlueprintBase", "true", [&Class](const FSpecifier&) { Class.Meta.Set("BlueprintType", "true"); }},
			{"NotBlueprintable", {}, "IsBlueprintBase", "false", [&Class](const FSpecifier&) { Class.Meta.Set("CannotImplementInterfaceInBlueprint", "true"); }},
			{"BlueprintType", {}, "BlueprintType", "true"},
			{"MinimalAPI", {"CLASS_MinimalAPI"}},
			{"ConversionRoot", {}, "IsConversionRoot", "true"},
		};
		ApplyAll(List, Rules, &Class.Flags, Class.Meta, Diagnostics);
	}

	void ApplyStructSpecifiers(const FSpecifierList& List, FClass& Struct, FDiagnostics& Diagnostics)
	{
		const FRules Rules = {
			{"BlueprintType", {}, "BlueprintType", "true"},
			{"NotBlueprintType", {}, "NotBlueprintType", "true"},
			{"Atomic"},
			{"Immutable"},
			{"HasDefaults"},
			{"HasNoOpConstructor"},
		};
		ApplyAll(List, Rules, &Struct.Flags, Struct.Meta, Diagnostics);
	}

	void ApplyEnumSpecifiers(const FSpecifierList& List, FEnum& Enum, FDiagnostics& Diagnostics)
	{
		const FRules Rules = {
			{"BlueprintType", {}, "BlueprintType", "true", [&Enum](const FSpecifier&) { Enum.bBlueprintType = true; }},
			{"NotBlueprintType", {}, "NotBlueprintType", "true"},
			{"Flags", {}, "Flags", "true"},
		};
		ApplyAll(List, Rules, nullptr, Enum.Meta, Diagnostics);
	}

	void ApplyEnumeratorSpecifiers(const FSpecifierList& List, FEnumerator& Enumerator)
	{
		// Everything in UMETA is metadata: there is nothing unknown.
		Enumerator.Meta = List.Meta;
		for (const FSpecifier& Specifier : List.Specifiers)
		{
			Enumerator.Meta.Set(Specifier.Name, Specifier.JoinedValue());
		}
		UseCommentAsToolTip(List, Enumerator.Meta);
	}

	void ApplyFunctionSpecifiers(const FSpecifierList& List, FFunction& Function, FDiagnostics& Diagnostics)
	{
		const auto SetEvent = [&List, &Function, &Diagnostics](EFunctionEvent Event, int Line) {
			if (Function.Event != EFunctionEvent::None && Function.Event != Event)
			{
				Diagnostics.Error(List.Path, Line, "a function is either a BlueprintNativeEvent or a BlueprintImplementableEvent; keep one of the two.");
			}
			Function.Event = Event;
		};
		const FRules Rules = {
			{"BlueprintCallable", {"FUNC_BlueprintCallable"}},
			{"BlueprintPure", {}, nullptr, nullptr, [&Function](const FSpecifier& Specifier) {
				 Function.Flags.Add("FUNC_BlueprintCallable");
				 if (IsFalse(Specifier))
				 {
					 Function.bForcedImpure = true;
				 }
				 else
				 {
					 Function.Flags.Add("FUNC_BlueprintPure");
				 }
			 }},
			{"BlueprintImplementableEvent", {"FUNC_Event", "FUNC_BlueprintEvent"}, nullptr, nullptr, [&SetEvent](const FSpecifier& Specifier) { SetEvent(EFunctionEvent::Implementable, Specifier.Line); }},
			{"BlueprintNativeEvent", {"FUNC_Event", "FUNC_BlueprintEvent"}, nullptr, nullptr, [&SetEvent](const FSpecifier& Specifier) { SetEvent(EFunctionEvent::Native, Specifier.Line); }},
			{"BlueprintGetter", {"FUNC_BlueprintCallable", "FUNC_BlueprintPure"}, "BlueprintGetter", ""},
			{"BlueprintSetter", {"FUNC_BlueprintCallable"}, "BlueprintSetter", ""},
			{"BlueprintInternalUseOnly", {}, "BlueprintInternalUseOnly", "true"},
			{"CallInEditor", {}, "CallInEditor", "true"},
			{"Exec", {"FUNC_Exec"}},
			{"SealedEvent", {"FUNC_Final"}},
		};
		ApplyAll(List, Rules, &Function.Flags, Function.Meta, Diagnostics);
	}

	void ApplyPropertySpecifiers(const FSpecifierList& List, FProperty& Property, FDiagnostics& Diagnostics)
	{
		const FRules Rules = {
			{"EditAnywhere", {"CPF_Edit"}},
			{"EditDefaultsOnly", {"CPF_Edit", "CPF_DisableEditOnInstance"}},
			{"EditInstanceOnly", {"CPF_Edit", "CPF_DisableEditOnTemplate"}},
			{"VisibleAnywhere", {"CPF_Edit", "CPF_EditConst"}},
			{"VisibleDefaultsOnly", {"CPF_Edit", "CPF_EditConst", "CPF_DisableEditOnInstance"}},
			{"VisibleInstanceOnly", {"CPF_Edit", "CPF_EditConst", "CPF_DisableEditOnTemplate"}},
			{"BlueprintReadWrite", {"CPF_BlueprintVisible"}},
			{"BlueprintReadOnly", {"CPF_BlueprintVisible", "CPF_BlueprintReadOnly"}},
			{"BlueprintGetter", {"CPF_BlueprintVisible", "CPF_BlueprintReadOnly"}, "BlueprintGetter"},
			{"BlueprintSetter", {"CPF_BlueprintVisible"}, "BlueprintSetter"},
			{"BlueprintAssignable", {"CPF_BlueprintAssignable"}},
			{"BlueprintCallable", {"CPF_BlueprintCallable"}},
			{"Config", {"CPF_Config"}},
			{"GlobalConfig", {"CPF_Config", "CPF_GlobalConfig"}},
			{"Transient", {"CPF_Transient"}},
			{"DuplicateTransient", {"CPF_DuplicateTransient"}},
			{"NonPIEDuplicateTransient", {"CPF_NonPIEDuplicateTransient"}},
			{"TextExportTransient", {"CPF_TextExportTransient"}},
			{"Export", {"CPF_ExportObject"}},
			{"Instanced", {"CPF_PersistentInstance", "CPF_ExportObject", "CPF_InstancedReference"}, "EditInline", "true"},
			{"NoClear", {"CPF_NoClear"}},
			{"EditFixedSize", {"CPF_EditFixedSize"}},
			{"SimpleDisplay", {"CPF_SimpleDisplay"}},
			{"AdvancedDisplay", {"CPF_AdvancedDisplay"}},
			{"AssetRegistrySearchable", {"CPF_AssetRegistrySearchable"}},
			{"SaveGame", {"CPF_SaveGame"}},
			{"Interp", {"CPF_Edit", "CPF_BlueprintVisible", "CPF_Interp"}},
			{"FieldNotify", {}, "FieldNotify", ""},
			{"Getter", {}, "Getter"},
			{"Setter", {}, "Setter"},
		};
		ApplyAll(List, Rules, &Property.Flags, Property.Meta, Diagnostics);
	}

	void ApplyParameterSpecifiers(const FSpecifierList& List, FProperty& Parameter, FDiagnostics& Diagnostics)
	{
		const FRules Rules = {
			{"Ref", {"CPF_ReferenceParm"}},
			{"Const", {"CPF_ConstParm"}},
		};
		ApplyAll(List, Rules, &Parameter.Flags, Parameter.Meta, Diagnostics);
	}
}
