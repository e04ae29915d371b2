// Copyright Velmorant. All Rights Reserved.

#include "SpecifierTable.h"

#include "TextTools.h"

namespace HeaderTool
{
	namespace SpecifierTable
	{
		constexpr unsigned Anywhere = InClass | InInterface | InStruct | InEnum | InEnumerator | InFunction | InProperty | InParameter;
		constexpr unsigned InTypes = InClass | InInterface | InStruct | InEnum;

		const std::vector<FSpecifierRow> Honoured = {
			// What people read.
			{"DisplayName", Anywhere & ~InEnumerator, ERole::Both, EValue::Needed, {}, "DisplayName", nullptr, "Field.cpp"},
			{"DisplayName", InEnumerator, ERole::Both, EValue::Needed, {}, "DisplayName", nullptr, "Enum.cpp"},
			{"ToolTip", Anywhere & ~(InEnumerator | InParameter), ERole::Both, EValue::Needed, {}, "ToolTip", nullptr, "Field.cpp"},
			{"ToolTip", InEnumerator, ERole::Both, EValue::Needed, {}, "ToolTip", nullptr, "Enum.cpp"},
			{"Category", InProperty, ERole::Both, EValue::Needed, {}, "Category", nullptr, "DetailsCategories.cpp"},
			{"Category", InFunction | InClass, ERole::Both, EValue::Needed, {}, "Category", nullptr, ByReflection},

			// Classes and interfaces.
			{"Abstract", InClass, ERole::Specifier, EValue::None, {"CLASS_Abstract"}, nullptr, nullptr, "WorldSpawn.cpp"},
			{"Blueprintable", InClass | InInterface, ERole::Specifier, EValue::None, {}, "IsBlueprintBase", "true", "KismetEditorUtilities.cpp"},
			{"NotBlueprintable", InClass, ERole::Specifier, EValue::None, {}, "IsBlueprintBase", "false", "KismetEditorUtilities.cpp"},
			{"IsBlueprintBase", InClass, ERole::Key, EValue::Needed, {}, "IsBlueprintBase", nullptr, "KismetEditorUtilities.cpp"},
			{"BlueprintType", InClass | InInterface, ERole::Both, EValue::None, {}, "BlueprintType", "true", ByReflection},
			{"Config", InClass, ERole::Specifier, EValue::Needed, {"CLASS_Config"}, nullptr, nullptr, "ObjectConfig.cpp"},
			{"DefaultConfig", InClass, ERole::Specifier, EValue::None, {"CLASS_DefaultConfig"}, nullptr, nullptr, "SettingsModule.cpp"},
			{"PerObjectConfig", InClass, ERole::Specifier, EValue::None, {"CLASS_PerObjectConfig"}, nullptr, nullptr, "ObjectFactory.cpp"},
			{"Deprecated", InClass, ERole::Specifier, EValue::None, {"CLASS_Deprecated", "CLASS_NotPlaceable"}, nullptr, nullptr, "WorldSpawn.cpp"},
			{"NotPlaceable", InClass, ERole::Specifier, EValue::None, {"CLASS_NotPlaceable"}, nullptr, nullptr, "ActorFactories.cpp"},
			{"MinimalAPI", InClass | InInterface, ERole::Specifier, EValue::None, {"CLASS_MinimalAPI"}, nullptr, nullptr, "Validator.cpp"},

			// Structs and enums.
			{"BlueprintType", InStruct, ERole::Both, EValue::None, {}, "BlueprintType", "true", "TypeChecker.cpp"},
			{"BlueprintType", InEnum, ERole::Both, EValue::None, {}, "BlueprintType", "true", "Validator.cpp"},
			{"Hidden", InEnumerator, ERole::Both, EValue::None, {}, "Hidden", nullptr, "SPropertyEnum.cpp"},

			// Functions and parameters.
			{"BlueprintCallable", InFunction, ERole::Specifier, EValue::None, {"FUNC_BlueprintCallable"}, nullptr, nullptr, "LayoutAccess.h"},
			{"BlueprintPure", InFunction, ERole::Specifier, EValue::None, {"FUNC_BlueprintCallable", "FUNC_BlueprintPure"}, nullptr, nullptr, "FunctionValidator.cpp"},
			{"BlueprintImplementableEvent", InFunction, ERole::Specifier, EValue::None, {"FUNC_Event", "FUNC_BlueprintEvent"}, nullptr, nullptr, "LayoutReader.cpp"},
			{"BlueprintNativeEvent", InFunction, ERole::Specifier, EValue::None, {"FUNC_Event", "FUNC_BlueprintEvent"}, nullptr, nullptr, "LayoutReader.cpp"},
			{"CallInEditor", InFunction, ERole::Both, EValue::None, {}, "CallInEditor", "true", ByReflection},
			{"WorldContext", InFunction, ERole::Key, EValue::Needed, {}, "WorldContext", nullptr, "FunctionValidator.cpp"},
			{"Ref", InParameter, ERole::Specifier, EValue::None, {"CPF_ReferenceParm"}, nullptr, nullptr, "FunctionCall.cpp"},

			// Properties.
			{"EditAnywhere", InProperty, ERole::Specifier, EValue::None, {"CPF_Edit"}, nullptr, nullptr, "PropertyNode.cpp"},
			{"VisibleAnywhere", InProperty, ERole::Specifier, EValue::None, {"CPF_Edit", "CPF_EditConst"}, nullptr, nullptr, "PropertyNode.cpp"},
			{"EditFixedSize", InProperty, ERole::Specifier, EValue::None, {"CPF_EditFixedSize"}, nullptr, nullptr, "ContainerKinds.cpp"},
			{"BlueprintReadWrite", InProperty, ERole::Specifier, EValue::None, {"CPF_BlueprintVisible"}, nullptr, nullptr, "LayoutAccess.h"},
			{"BlueprintReadOnly", InProperty, ERole::Specifier, EValue::None, {"CPF_BlueprintVisible", "CPF_BlueprintReadOnly"}, nullptr, nullptr, "LayoutAccess.h"},
			{"BlueprintAssignable", InProperty, ERole::Specifier, EValue::None, {"CPF_BlueprintAssignable"}, nullptr, nullptr, "LayoutAccess.h"},
			{"Config", InProperty, ERole::Specifier, EValue::None, {"CPF_Config"}, nullptr, nullptr, "ObjectConfig.cpp"},
			{"GlobalConfig", InProperty, ERole::Specifier, EValue::None, {"CPF_Config", "CPF_GlobalConfig"}, nullptr, nullptr, "ObjectConfig.cpp"},
			{"Transient", InProperty, ERole::Specifier, EValue::None, {"CPF_Transient"}, nullptr, nullptr, "PackageStructs.cpp"},
			{"DuplicateTransient", InProperty, ERole::Specifier, EValue::None, {"CPF_DuplicateTransient"}, nullptr, nullptr, "ObjectFactory.cpp"},
			{"AllowPrivateAccess", InProperty, ERole::Key, EValue::Optional, {}, "AllowPrivateAccess", nullptr, "Validator.cpp"},
			{"BindWidget", InProperty, ERole::Key, EValue::Optional, {}, "BindWidget", nullptr, "LayoutReaderWidgets.cpp"},
			{"BindWidgetOptional", InProperty, ERole::Key, EValue::Optional, {}, "BindWidgetOptional", nullptr, "LayoutReaderWidgets.cpp"},
			{"OptionalWidget", InProperty, ERole::Key, EValue::Optional, {}, "OptionalWidget", nullptr, "LayoutReaderWidgets.cpp"},
		};

		/** What the engine knows and nobody here would act on. */
		struct FRefused
		{
			unsigned Macros;
			ERole Role;
			std::vector<const char*> Names;
		};

		const std::vector<FRefused> Refused = {
			{InTypes | InFunction | InProperty, ERole::Both, {"DevelopmentOnly", "EarlyAccessPreview", "Experimental", "ShortToolTip"}},
			{InClass, ERole::Specifier, {"AdvancedClassDisplay", "AutoCollapseCategories", "AutoExpandCategories", "ClassGroup", "CollapseCategories", "ComponentWrapperClass", "ConfigDoNotCheckDefaults", "Const", "ConversionRoot", "CustomConstructor", "CustomFieldNotify", "DefaultToInstanced", "DependsOn", "DontAutoCollapseCategories", "DontCollapseCategories", "EditInlineNew", "GlobalUserConfig", "Hidden", "HideCategories", "HideDropdown", "HideFunctions", "Intrinsic", "NoExport", "NonTransient", "NotBlueprintType", "NotEditInlineNew", "Optional", "Placeable", "PrioritizeCategories", "ProjectUserConfig", "ShowCategories", "ShowFunctions", "SparseClassDataTypes", "Transient", "Within"}},
			{InInterface, ERole::Specifier, {"ConversionRoot", "DependsOn", "NotBlueprintable"}},
			{InStruct, ERole::Specifier, {"Atomic", "HasDefaults", "HasNoOpConstructor", "Immutable", "IsAlwaysAccessible", "IsCoreType", "NoExport", "NotBlueprintType"}},
			{InEnum, ERole::Specifier, {"Flags", "NotBlueprintType"}},
			{InEnum, ERole::Key, {"Bitflags", "UseEnumValuesAsMaskValuesInEditor"}},
			{InEnumerator, ERole::Both, {"DevelopmentOnly", "Grouping", "ScriptName", "ShortToolTip", "Spacer"}},
			{InFunction, ERole::Specifier, {"BlueprintAuthorityOnly", "BlueprintCosmetic", "BlueprintGetter", "BlueprintInternalUseOnly", "BlueprintSetter", "Client", "CustomThunk", "Exec", "FieldNotify", "NetMulticast", "Reliable", "SealedEvent", "Server", "ServiceRequest", "ServiceResponse", "Unreliable", "Variadic", "WithValidation"}},
			{InProperty, ERole::Specifier, {"AdvancedDisplay", "AssetRegistrySearchable", "BlueprintCallable", "BlueprintGetter", "BlueprintSetter", "EditDefaultsOnly", "EditInstanceOnly", "Export", "FieldNotify", "Getter", "Instanced", "Interp", "Localized", "Native", "NoClear", "NonPIEDuplicateTransient", "NonTransactional", "NotReplicated", "Replicated", "ReplicatedUsing", "SaveGame", "Setter", "SimpleDisplay", "SkipSerialization", "TextExportTransient", "VisibleDefaultsOnly", "VisibleInstanceOnly"}},
			{InParameter, ERole::Specifier, {"Const", "NotReplicated", "Required"}},
			{InClass | InInterface, ERole::Key, {"BlueprintSpawnableComponent", "BlueprintThreadSafe", "CannotImplementInterfaceInBlueprint", "ChildCanTick", "ChildCannotTick", "DebugTreeLeaf", "DontUseGenericSpawnObject", "ExposedAsyncProxy", "IgnoreCategoryKeywordsInSubclasses", "KismetHideOverrides", "ProhibitedInterfaces", "RestrictedToClasses", "ShowWorldContextPin", "UsesHierarchy"}},
			{InClass | InFunction | InProperty, ERole::Key, {"DeprecatedNode", "DeprecatedFunction", "DeprecatedProperty", "DeprecationMessage", "ScriptName"}},
			{InStruct, ERole::Key, {"DisableSplitPin", "HasNativeBreak", "HasNativeMake", "HiddenByDefault"}},
			{InFunction, ERole::Key, {"AdvancedDisplay", "ArrayParm", "ArrayTypeDependentParams", "AutoCreateRefTerm", "BlueprintAutocast", "BlueprintProtected", "BlueprintThreadSafe", "CallableWithoutWorldContext", "CommutativeAssociativeBinaryOperator", "CompactNodeTitle", "CustomStructureParam", "DefaultToSelf", "DeterminesOutputType", "DynamicOutputParam", "ExpandBoolAsExecs", "ExpandEnumAsExecs", "ForceAsFunction", "HidePin", "HideSelfPin", "HideSpawnParms", "InternalUseParam", "Keywords", "Latent", "LatentInfo", "MapParam", "MaterialParameterCollectionFunction", "NativeBreakFunc", "NativeMakeFunc", "NotBlueprintThreadSafe", "ReturnDisplayName", "ScriptConstant", "ScriptMethod", "ScriptOperator", "SetParam", "UnsafeDuringActorConstruction", "Variadic"}},
			{InProperty, ERole::Key, {"AllowAbstract", "AllowedClasses", "AllowedTypes", "AllowPreserveRatio", "ArrayClamp", "AssetBundles", "Bitmask", "BitmaskEnum", "BlueprintBaseOnly", "BlueprintProtected", "ClampMax", "ClampMin", "ConfigHierarchyEditable", "ConfigRestartRequired", "ContentDir", "Delta", "DisallowedClasses", "DisplayAfter", "DisplayPriority", "DisplayThumbnail", "EditCondition", "EditConditionHides", "EditFixedOrder", "EditInline", "ExactClass", "ExposeFunctionCategories", "ExposeOnSpawn", "FilePathFilter", "ForceInlineRow", "ForceUnits", "GetAssetFilter", "GetByRef", "GetKeyOptions", "GetOptions", "GetRestrictedEnumValues", "GetValueOptions", "HideAlphaChannel", "HideEditConditionToggle", "HideViewOptions", "IgnoreForMemberInitializationTest", "InlineEditConditionToggle", "InvalidEnumValues", "LongPackageName", "MakeEditWidget", "MakeStructureDefaultValue", "MetaClass", "MetaStruct", "MultiLine", "Multiple", "MustImplement", "NoEditInline", "NoElementDuplicate", "NoResetToDefault", "NoSpinbox", "OnlyPlaceable", "PasswordField", "ReadOnlyKeys", "RelativePath", "RelativeToGameContentDir", "RelativeToGameDir", "RequiredAssetDataTags", "RowType", "ScriptNoExport", "ShowInnerProperties", "ShowOnlyInnerProperties", "ShowTreeView", "SliderExponent", "SliderSensitivity", "SnapValue", "TitleProperty", "UIMax", "UIMin", "Units", "Untracked", "ValidEnumValues", "WidgetBinding"}},
		};

		std::vector<FSpecifierRow> Combine()
		{
			std::vector<FSpecifierRow> Rows = Honoured;
			for (const FRefused& Group : Refused)
			{
				for (const char* Name : Group.Names)
				{
					Rows.push_back({Name, Group.Macros, Group.Role, EValue::Optional});
				}
			}
			return Rows;
		}
	}

	const std::vector<FSpecifierRow>& GetSpecifierTable()
	{
		static const std::vector<FSpecifierRow> Rows = SpecifierTable::Combine();
		return Rows;
	}

	const FSpecifierRow* FindSpecifier(const std::string& Name, EMacro Macro, bool bKey)
	{
		const ERole Other = bKey ? ERole::Specifier : ERole::Key;
		for (const FSpecifierRow& Row : GetSpecifierTable())
		{
			if ((Row.Macros & Macro) && Row.Role != Other && EqualsIgnoringCase(Row.Name, Name))
			{
				return &Row;
			}
		}
		return nullptr;
	}
}
