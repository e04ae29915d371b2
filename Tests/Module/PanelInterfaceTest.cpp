// Copyright Velmorant. All Rights Reserved.

#include "EditorWidgets/VlmEWDevInfo.h"
#include "EditorWidgets/VlmEWListDisplayer.h"
#include "EditorWidgets/VlmEWLoginUser.h"
#include "EditorWidgets/VlmEWMinimapTool.h"
#include "EditorWidgets/VlmEWProjectSelector.h"
#include "EditorWidgets/VlmEWUnitVolumeDuplicationList.h"
#include "HostAssertions.h"
#include "HostObjects.h"
#include "HostWidgetLayout.h"
#include "PanelLayouts.h"
#include "TestPanel.h"
#include "ToolkitTest.h"
#include "UObject/Package.h"
#include "UObject/UnrealType.h"

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace
{
	/** The condition of the assertion that the call fails; empty when it does not. */
	template<typename CallT>
	std::string FailedCondition(CallT&& Call)
	{
		try
		{
			Call();
		}
		catch (const FHostAssertionFailure& Failure)
		{
			return Failure.GetExpression();
		}
		return "";
	}

	/** Uses the interface's defaults. */
	class FDefaultPanel : public IVlmEditorPanelInterface
	{
	};

	std::vector<std::string> ParametersOf(const UFunction& Function)
	{
		std::vector<std::string> Names;
		for (const FProperty* Parameter : Function.GetOwnProperties())
		{
			Names.push_back(ToUtf8(Parameter->GetName()));
		}
		return Names;
	}

	std::vector<std::string> PropertiesOf(const UClass* Class)
	{
		std::vector<std::string> Names;
		for (const FProperty* Property : Class->GetOwnProperties())
		{
			Names.push_back(ToUtf8(Property->GetName()) + (Property->HasMetaData(TEXT("BindWidget")) ? "*" : ""));
		}
		return Names;
	}
}

class PanelInterface : public FToolkitTest
{
};

TEST_F(PanelInterface, ReachesOverridesOfDerivedPanels)
{
	StartEditor();
	SignIn();
	FTestPanel Panel(PanelLayouts::ProjectSelector, {TEXT("ActivateDataPanel"), TEXT("RefreshPanelData"), TEXT("OnRequestingUserProjectsProcess")});
	IVlmEditorPanelInterface::Execute_ActivateDataPanel(Panel.Get());
	IVlmEditorPanelInterface::Execute_RefreshPanelData(Panel.Get());
	EXPECT_THAT(Panel.TakeEvents(), ElementsAre("ActivateDataPanel", "RefreshPanelData")) << "the native activation must not run beside the override";
}

TEST_F(PanelInterface, ReachesTheNativePanelWithoutAnOverride)
{
	StartEditor();
	SignIn();
	FTestPanel Panel(PanelLayouts::ProjectSelector, {TEXT("OnRequestingUserProjectsProcess")});
	IVlmEditorPanelInterface::Execute_RefreshPanelData(Panel.Get());
	EXPECT_THAT(Panel.TakeEvents(), IsEmpty()) << "refreshing does nothing by default";
	IVlmEditorPanelInterface::Execute_ActivateDataPanel(Panel.Get());
	EXPECT_THAT(Panel.TakeEvents(), ElementsAre("OnRequestingUserProjectsProcess(true)"));
	EXPECT_FALSE(Panel.Get<UVlmEWProjectSelector>()->bPanelActivated);
}

TEST_F(PanelInterface, ReachesObjectsThatImplementItInScriptOnly)
{
	StartEditor();
	UClass* Class = HostObjects::DeriveClass(UObject::StaticClass(), TEXT("ScriptPanel"), GetTransientPackage());
	HostObjects::AddScriptInterface(Class, UVlmEditorPanelInterface::StaticClass());
	int32 NumCalls = 0;
	HostObjects::AddScriptFunction(Class, TEXT("ActivateDataPanel"), [&NumCalls](UObject*, FFrame&, void*) { ++NumCalls; });
	IVlmEditorPanelInterface::Execute_ActivateDataPanel(NewObject<UObject>(GetTransientPackage(), Class));
	EXPECT_EQ(NumCalls, 1);
}

TEST_F(PanelInterface, ActivatesByDefault)
{
	FDefaultPanel Panel;
	EXPECT_FALSE(Panel.bPanelActivated);
	Panel.RefreshPanelData_Implementation();
	EXPECT_FALSE(Panel.bPanelActivated);
	Panel.ActivateDataPanel_Implementation();
	EXPECT_TRUE(Panel.bPanelActivated);
}

TEST_F(PanelInterface, RefusesWhatIsNoPanel)
{
	StartEditor();
	UObject* NoPanel = GetTransientPackage();
	EXPECT_EQ(FailedCondition([] { IVlmEditorPanelInterface::Execute_ActivateDataPanel(nullptr); }), "O != NULL");
	EXPECT_EQ(FailedCondition([NoPanel] { IVlmEditorPanelInterface::Execute_ActivateDataPanel(NoPanel); }), "O->GetClass()->ImplementsInterface(UVlmEditorPanelInterface::StaticClass())");
	EXPECT_EQ(FailedCondition([NoPanel] { IVlmEditorPanelInterface::Execute_RefreshPanelData(NoPanel); }), "O->GetClass()->ImplementsInterface(UVlmEditorPanelInterface::StaticClass())");
}

TEST_F(PanelInterface, RefusesDirectCallsOfItsEvents)
{
	FDefaultPanel Panel;
	EXPECT_EQ(FailedCondition([&Panel] { Panel.ActivateDataPanel(); }), "0 && \"Do not directly call Event functions in Interfaces. Call Execute_ActivateDataPanel instead.\"");
	EXPECT_EQ(FailedCondition([&Panel] { Panel.RefreshPanelData(); }), "0 && \"Do not directly call Event functions in Interfaces. Call Execute_RefreshPanelData instead.\"");
}

TEST_F(PanelInterface, KnowsItsObject)
{
	StartEditor();
	FTestPanel Panel(PanelLayouts::ProjectSelector, {});
	const IVlmEditorPanelInterface* Interface = Cast<IVlmEditorPanelInterface>(Panel.Get());
	ASSERT_NE(Interface, nullptr);
	EXPECT_EQ(Interface->_getUObject(), Panel.Get());
}

TEST_F(PanelInterface, CanBeCalledAndOverriddenByBlueprintsAndPressedInTheEditor)
{
	StartEditor();
	for (const TCHAR* Name : {TEXT("ActivateDataPanel"), TEXT("RefreshPanelData")})
	{
		const UFunction* Function = UVlmEditorPanelInterface::StaticClass()->FindFunctionByName(Name);
		ASSERT_NE(Function, nullptr);
		EXPECT_TRUE(Function->HasAllFunctionFlags(static_cast<EFunctionFlags>(FUNC_BlueprintCallable | FUNC_BlueprintEvent | FUNC_Native)));
		EXPECT_TRUE(Function->HasMetaData(TEXT("CallInEditor")));
		EXPECT_EQ(ToUtf8(Function->GetMetaData(TEXT("Category"))), "VlmPanelData");
	}
}

// Blueprints of panels bind to these names.
TEST_F(PanelInterface, PanelsHaveTheNamesThatBlueprintsBindTo)
{
	StartEditor();
	EXPECT_THAT(PropertiesOf(UVlmEWPanelData::StaticClass()), ElementsAre("bRefreshOnActivation"));
	EXPECT_THAT(PropertiesOf(UVlmEWLoginUser::StaticClass()), ElementsAre("OnLoginResult", "UserName*", "UserPassword*", "SummitButton*", "RememberUserCheckBox*"));
	EXPECT_THAT(PropertiesOf(UVlmEWProjectSelector::StaticClass()), ElementsAre("ProjectKeyCode*", "ProjectName*", "ProjectSelection*", "ForceUpdateCheckBox*", "SetAsDefault*", "CopyApyKey*", "UserProjectList"));
	EXPECT_THAT(PropertiesOf(UVlmEWDevInfo::StaticClass()), ElementsAre("DevName*", "DevEmail*", "DevImage*", "LogoutButton*", "CheckedState"));
	EXPECT_THAT(PropertiesOf(UVlmEWListDisplayer::StaticClass()), ElementsAre("HomeButton*", "SubSelectionButton*", "ModeSelector*", "SearchText*", "ItemList*", "NavButtonList", "CurrentElemetsList"));
	EXPECT_THAT(PropertiesOf(UListDisplayerItemBase::StaticClass()), ElementsAre("UnitID", "Keycode", "DisplayName", "ItemBaseType"));
	EXPECT_THAT(PropertiesOf(UVlmEWMinimapTool::StaticClass()), ElementsAre("MinimapLevelController"));
	EXPECT_THAT(PropertiesOf(UVlmEWUnitVolumeDuplication_Item::StaticClass()), ElementsAre("Identifier", "DuplicateActors"));
	EXPECT_THAT(PropertiesOf(UVlmEWUnitVolumeDuplicationList::StaticClass()), IsEmpty());

	const struct
	{
		UClass* Class;
		const TCHAR* Function;
		std::vector<std::string> Parameters;
		bool bEvent;
	} Cases[] = {
		{UVlmEWLoginUser::StaticClass(), TEXT("ReceivedClickSummit"), {"ButtonID"}, false},
		{UVlmEWLoginUser::StaticClass(), TEXT("Received_LoginResult"), {"bSuccess", "UserLogInfo"}, false},
		{UVlmEWLoginUser::StaticClass(), TEXT("SetRememberMeOption"), {"InChecked"}, false},
		{UVlmEWLoginUser::StaticClass(), TEXT("OnLoginInProcess"), {"bInProgress"}, true},
		{UVlmEWLoginUser::StaticClass(), TEXT("OnLoginResultReceived"), {"bSuccessful"}, true},
		{UVlmEWLoginUser::StaticClass(), TEXT("OnRememberMeOption"), {"InChecked"}, true},
		{UVlmEWProjectSelector::StaticClass(), TEXT("GetProjectByKeyCode"), {"KeyCode", "ReturnValue"}, false},
		{UVlmEWProjectSelector::StaticClass(), TEXT("GetSelectedProject"), {"ReturnValue"}, false},
		{UVlmEWProjectSelector::StaticClass(), TEXT("RequestEditorUserProjects"), {}, false},
		{UVlmEWProjectSelector::StaticClass(), TEXT("SetUpdateInformationOnChange"), {"bForce"}, false},
		{UVlmEWProjectSelector::StaticClass(), TEXT("Received_SelectionChanged"), {"SelectedItem", "SelectionType"}, false},
		{UVlmEWProjectSelector::StaticClass(), TEXT("GenerateComboContentWidget"), {"Item", "ReturnValue"}, false},
		{UVlmEWProjectSelector::StaticClass(), TEXT("GenerateComboItemWidget"), {"Item", "ReturnValue"}, false},
		{UVlmEWProjectSelector::StaticClass(), TEXT("OnRequestingUserProjectsProcess"), {"bInProcess"}, true},
		{UVlmEWDevInfo::StaticClass(), TEXT("GetDevUserInRuntime"), {"ReturnValue"}, false},
		{UVlmEWDevInfo::StaticClass(), TEXT("SetDevUserInRuntime"), {"bUseInRuntime"}, false},
		{UVlmEWDevInfo::StaticClass(), TEXT("ReceivedClickLogout"), {"ButtonID"}, false},
		{UVlmEWListDisplayer::StaticClass(), TEXT("ClearSearchText"), {}, false},
		{UVlmEWListDisplayer::StaticClass(), TEXT("DisplayUnitGroups"), {}, false},
		{UVlmEWListDisplayer::StaticClass(), TEXT("DisplayUnitsFromUnitGroupTarget"), {}, false},
		{UVlmEWListDisplayer::StaticClass(), TEXT("DisplayConfiguratorFromUnitGroupTarget"), {}, false},
		{UVlmEWListDisplayer::StaticClass(), TEXT("GetUnitGroupTargetName"), {"ReturnValue"}, false},
		{UVlmEWListDisplayer::StaticClass(), TEXT("IsProjectSelected"), {"ReturnValue"}, false},
		{UVlmEWListDisplayer::StaticClass(), TEXT("IsUnitGroupTarget"), {"ReturnValue"}, false},
		{UVlmEWListDisplayer::StaticClass(), TEXT("SetNavBarButtons"), {"InNavBarButtons"}, false},
		{UVlmEWListDisplayer::StaticClass(), TEXT("SetNavBarByIndex"), {"InIndex"}, false},
		{UVlmEWListDisplayer::StaticClass(), TEXT("Received_NavBarButtonChange"), {"ButtonChanged", "bSelected"}, false},
		{UVlmEWListDisplayer::StaticClass(), TEXT("ReceivedHomeButtonClicked"), {"ButtonID"}, false},
		{UVlmEWListDisplayer::StaticClass(), TEXT("ReceivedModeSelectorChange"), {"SelectedItem", "SelectionType"}, false},
		{UVlmEWListDisplayer::StaticClass(), TEXT("ReceivedSearchTextChange"), {"Text"}, false},
		{UVlmEWListDisplayer::StaticClass(), TEXT("OnListCountChange"), {"ListCount"}, true},
		{UVlmEWListDisplayer::StaticClass(), TEXT("OnModeSelectionChange"), {"ModeName"}, true},
		{UVlmEWListDisplayer::StaticClass(), TEXT("OnNavBarButtonChanged"), {"Index"}, true},
		{UVlmEWListDisplayer::StaticClass(), TEXT("OnSelectionTypeChange"), {"InSelectionItemType"}, true},
		{UListDisplayerItemBase::StaticClass(), TEXT("CreateListDisplayerItemBase"), {"InUnitID", "InKeycode", "InDisplayName", "InItemBaseType", "ReturnValue"}, false},
		{UVlmEWMinimapTool::StaticClass(), TEXT("FindMinimapLevelController"), {}, false},
		{UVlmEWMinimapTool::StaticClass(), TEXT("GetActiveMinimapFloor"), {"ReturnValue"}, false},
		{UVlmEWMinimapTool::StaticClass(), TEXT("GetMinimapConfig"), {"ReturnValue"}, false},
		{UVlmEWMinimapTool::StaticClass(), TEXT("GetMinimapFloorRange"), {"MinFloor", "MaxFloor", "ReturnValue"}, false},
		{UVlmEWMinimapTool::StaticClass(), TEXT("HasMinimapFloors"), {"ReturnValue"}, false},
		{UVlmEWMinimapTool::StaticClass(), TEXT("SetActiveMinimapFloor"), {"FloorIndex", "ReturnValue"}, false},
		{UVlmEWMinimapTool::StaticClass(), TEXT("SetActiveFloorWidgetTransform"), {"NewTransform"}, false},
		{UVlmEWMinimapTool::StaticClass(), TEXT("OnScanMinimapLevel"), {}, true},
		{UVlmEWUnitVolumeDuplicationList::StaticClass(), TEXT("CheckForDuplications"), {}, false},
		{UVlmEWUnitVolumeDuplicationList::StaticClass(), TEXT("OnDuplicationsList"), {"Items"}, true},
	};
	for (const auto& Case : Cases)
	{
		const UFunction* Function = Case.Class->FindFunctionByName(Case.Function);
		ASSERT_NE(Function, nullptr) << ToUtf8(FString(Case.Function));
		EXPECT_EQ(ParametersOf(*Function), Case.Parameters) << ToUtf8(FString(Case.Function));
		EXPECT_EQ(Function->HasAnyFunctionFlags(FUNC_BlueprintEvent), Case.bEvent) << ToUtf8(FString(Case.Function));
	}
}

TEST_F(PanelInterface, KindsOfRowsHaveTheNamesAndNumbersThatBlueprintsSwitchOn)
{
	StartEditor();
	const UEnum* Kinds = StaticEnum<EListDisplayItemType>();
	const struct
	{
		int64 Value;
		const char* Name;
		const char* DisplayName;
	} Cases[] = {{0, "ELDIT_UnitGroup", "UnitGroup"}, {1, "ELDIT_Unit", "Unit"}, {2, "ELDIT_Configurator", "Configurator"}};
	for (const auto& Case : Cases)
	{
		EXPECT_EQ(ToUtf8(Kinds->GetNameStringByValue(Case.Value)), Case.Name);
		EXPECT_EQ(ToUtf8(Kinds->GetDisplayNameTextByValue(Case.Value)), Case.DisplayName);
	}
	EXPECT_TRUE((std::is_same_v<std::underlying_type_t<EListDisplayItemType>, int>)) << "unscoped, as TEnumAsByte needs it";
	EXPECT_EQ(sizeof(UListDisplayerItemBase::ItemBaseType), 1u) << "a byte in the row";
}

TEST_F(PanelInterface, DuplicationsStandInTheirBlueprintCategories)
{
	StartEditor();
	for (const FProperty* Property : UVlmEWUnitVolumeDuplication_Item::StaticClass()->GetOwnProperties())
	{
		EXPECT_EQ(ToUtf8(Property->GetMetaData(TEXT("Category"))), "Editor|Velmorant|VlmEWUnitVolumeDuplication_Item");
	}
	for (const TCHAR* Name : {TEXT("CheckForDuplications"), TEXT("OnDuplicationsList")})
	{
		EXPECT_EQ(ToUtf8(UVlmEWUnitVolumeDuplicationList::StaticClass()->FindFunctionByName(Name)->GetMetaData(TEXT("Category"))), "Editor|Velmorant|VlmEWUnitVolumeDuplicationList");
	}
}

TEST_F(PanelInterface, LayoutsMustHaveEveryBoundWidget)
{
	StartEditor();
	TArray<HostWidgetLayout::FProblem> Problems;
	EXPECT_FALSE(HostWidgetLayout::Read(TEXT(R"({"ParentClass": "/Script/VelmorantProEditor.VlmEWLoginUser", "Tree": {"Class": "VerticalBox", "Children": [
		{"Class": "EditableText", "Name": "UserName"}, {"Class": "EditableText", "Name": "UserPassword"}, {"Class": "EditableText", "Name": "RememberUserCheckBox"}]}})"),
		Problems)
					 .IsValid());
	ASSERT_EQ(Problems.Num(), 2);
	EXPECT_THAT(ToUtf8(Problems[0].Message), testing::AllOf(HasSubstr("VlmEWLoginUser"), HasSubstr("SummitButton")));
	EXPECT_THAT(ToUtf8(Problems[1].Message), testing::AllOf(HasSubstr("VlmEWLoginUser"), HasSubstr("RememberUserCheckBox")));
}
