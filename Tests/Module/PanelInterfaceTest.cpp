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

namespace PanelInterfaceTest
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

	/** What Blueprints may do with it, as "Name(parameters) use". */
	std::string Describe(const UFunction& Function)
	{
		std::string Text = ToUtf8(Function.GetName()) + "(";
		for (const FProperty* Parameter : Function.GetOwnProperties())
		{
			Text += (Text.back() == '(' ? "" : ", ") + ToUtf8(Parameter->GetName());
		}
		Text += ")";
		const std::pair<EFunctionFlags, const char*> Uses[] = {{FUNC_Static, " static"}, {FUNC_BlueprintPure, " pure"}, {FUNC_BlueprintCallable, " callable"}, {FUNC_BlueprintEvent, " event"}, {FUNC_Native, " native"}};
		for (const auto& [Flag, Use] : Uses)
		{
			Text += Function.HasAnyFunctionFlags(Flag) ? Use : "";
		}
		return Text;
	}

	std::string Describe(const FProperty& Property)
	{
		std::string Text = ToUtf8(Property.GetName());
		const std::pair<EPropertyFlags, const char*> Uses[] = {{CPF_Edit, " edit"}, {CPF_BlueprintVisible, " visible"}, {CPF_BlueprintReadOnly, " read-only"}, {CPF_BlueprintAssignable, " assignable"}};
		for (const auto& [Flag, Use] : Uses)
		{
			Text += Property.HasAnyPropertyFlags(Flag) ? Use : "";
		}
		for (const TCHAR* Binding : {TEXT("BindWidget"), TEXT("BindWidgetOptional")})
		{
			Text += Property.HasMetaData(Binding) ? " " + ToUtf8(FString(Binding)) : "";
		}
		return Text;
	}

	/** Properties and functions that a class adds; the test fails for one in another category than Category. */
	std::vector<std::string> Members(const UClass& Class, const std::string& Category)
	{
		std::vector<std::string> Members;
		const auto Add = [&Members, &Category](const auto& Member, bool bForBlueprints) {
			Members.push_back(Describe(Member));
			EXPECT_EQ(ToUtf8(Member.GetMetaData(TEXT("Category"))), bForBlueprints ? Category : "") << Members.back();
		};
		for (const FProperty* Property : Class.GetOwnProperties())
		{
			Add(*Property, true);
		}
		for (const UFunction* Function : Class.GetOwnFunctions())
		{
			Add(*Function, Function->HasAnyFunctionFlags(static_cast<EFunctionFlags>(FUNC_BlueprintCallable | FUNC_BlueprintEvent)));
		}
		return Members;
	}
}

using namespace PanelInterfaceTest;

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

// Blueprints of panels bind to these names, and may do with them what is said here.
TEST_F(PanelInterface, PanelsHaveTheMembersThatBlueprintsBindTo)
{
	StartEditor();
	const struct
	{
		const UClass* Class;
		const char* Category;
		std::vector<std::string> Members;
	} Cases[] = {
		{UVlmEditorPanelInterface::StaticClass(), "VlmPanelData", {"ActivateDataPanel() callable event native", "RefreshPanelData() callable event native"}},
		{UVlmEWPanelData::StaticClass(), "VlmPanelData", {"bRefreshOnActivation edit visible"}},
		{UVlmEWLoginUser::StaticClass(), "Editor|Velmorant|VlmEWLoginUser", {"OnLoginResult assignable", "UserName visible read-only BindWidget", "UserPassword visible read-only BindWidget", "SummitButton visible read-only BindWidget", "RememberUserCheckBox visible read-only BindWidget", "SetRememberMeOption(InChecked) callable native", "OnLoginInProcess(bInProgress) event", "OnLoginResultReceived(bSuccessful) event", "OnRememberMeOption(InChecked) event", "ReceivedClickSummit(ButtonID) native", "Received_LoginResult(bSuccess, UserLogInfo) native"}},
		{UVlmEWProjectSelector::StaticClass(), "Editor|Velmorant|VlmEWProjectSelector", {"ProjectKeyCode visible read-only BindWidget", "ProjectName visible read-only BindWidget", "ProjectSelection visible read-only BindWidget", "ForceUpdateCheckBox visible read-only BindWidget", "SetAsDefault visible read-only BindWidget", "CopyApyKey visible read-only BindWidget", "UserProjectList visible read-only", "RequestEditorUserProjects() callable native", "GetProjectByKeyCode(KeyCode, ReturnValue) pure callable native", "GetSelectedProject(ReturnValue) pure callable native", "SetUpdateInformationOnChange(bForce) callable native", "OnRequestingUserProjectsProcess(bInProcess) event", "GenerateComboItemWidget(Item, ReturnValue) callable native", "GenerateComboContentWidget(Item, ReturnValue) callable native", "Received_ProjectsResponse(bSuccess, Projects) native", "Received_SelectionChanged(SelectedItem, SelectionType) native", "Received_SetAsDefaultApiKey(ButtonID) native", "Received_CopyApiKey(ButtonID) native", "Received_ForceUpdateChange(bIsChecked) native"}},
		{UVlmEWDevInfo::StaticClass(), "Editor|Velmorant|VlmEWDevInfo", {"DevName visible read-only BindWidget", "DevEmail visible read-only BindWidget", "DevImage visible read-only BindWidget", "LogoutButton visible read-only BindWidget", "CheckedState visible read-only BindWidgetOptional", "GetDevUserInRuntime(ReturnValue) pure callable native", "SetDevUserInRuntime(bUseInRuntime) callable native", "ReceivedClickLogout(ButtonID) native"}},
		{UVlmEWListDisplayer::StaticClass(), "Editor|Velmorant|VlmEWListDisplayer", {"HomeButton visible read-only BindWidget", "SubSelectionButton visible read-only BindWidget", "ModeSelector visible read-only BindWidget", "SearchText visible read-only BindWidget", "ItemList visible read-only BindWidget", "NavButtonList visible read-only", "CurrentElemetsList visible read-only", "ClearSearchText() callable native", "DisplayUnitGroups() callable native", "DisplayUnitsFromUnitGroupTarget() callable native", "DisplayConfiguratorFromUnitGroupTarget() callable native", "GetUnitGroupTargetName(ReturnValue) pure callable native", "IsProjectSelected(ReturnValue) pure callable native", "IsUnitGroupTarget(ReturnValue) pure callable native", "SetNavBarButtons(InNavBarButtons) callable native", "SetNavBarByIndex(InIndex) callable native", "OnListCountChange(ListCount) event", "OnModeSelectionChange(ModeName) event", "OnNavBarButtonChanged(Index) event", "OnSelectionTypeChange(InSelectionItemType) event", "Received_NavBarButtonChange(ButtonChanged, bSelected) native", "ReceivedHomeButtonClicked(ButtonID) native", "ReceivedModeSelectorChange(SelectedItem, SelectionType) native", "ReceivedSearchTextChange(Text) native"}},
		{UListDisplayerItemBase::StaticClass(), "Editor|Velmorant|ListDisplayerItemBase", {"UnitID visible read-only", "Keycode visible read-only", "DisplayName visible read-only", "ItemBaseType visible read-only", "CreateListDisplayerItemBase(InUnitID, InKeycode, InDisplayName, InItemBaseType, ReturnValue) static callable native"}},
		{UVlmEWMinimapTool::StaticClass(), "Editor|Velmorant|VlmEWMinimapTool", {"MinimapLevelController visible read-only", "FindMinimapLevelController() callable native", "GetActiveMinimapFloor(ReturnValue) pure callable native", "GetMinimapConfig(ReturnValue) pure callable native", "GetMinimapFloorRange(MinFloor, MaxFloor, ReturnValue) pure callable native", "HasMinimapFloors(ReturnValue) pure callable native", "SetActiveMinimapFloor(FloorIndex, ReturnValue) callable native", "SetActiveFloorWidgetTransform(NewTransform) callable native", "OnScanMinimapLevel() event"}},
		{UVlmEWUnitVolumeDuplication_Item::StaticClass(), "Editor|Velmorant|VlmEWUnitVolumeDuplication_Item", {"Identifier visible read-only", "DuplicateActors visible read-only"}},
		{UVlmEWUnitVolumeDuplicationList::StaticClass(), "Editor|Velmorant|VlmEWUnitVolumeDuplicationList", {"CheckForDuplications() callable native", "OnDuplicationsList(Items) event"}},
	};
	for (const auto& Case : Cases)
	{
		EXPECT_THAT(Members(*Case.Class, Case.Category), testing::UnorderedElementsAreArray(Case.Members)) << ToUtf8(Case.Class->GetName());
		EXPECT_EQ(Case.Class->HasAnyClassFlags(CLASS_Abstract), Case.Class->IsChildOf(UUserWidget::StaticClass()) || Case.Class->HasAnyClassFlags(CLASS_Interface)) << ToUtf8(Case.Class->GetName());
	}
	for (const TCHAR* Name : {TEXT("ActivateDataPanel"), TEXT("RefreshPanelData")})
	{
		EXPECT_TRUE(UVlmEditorPanelInterface::StaticClass()->FindFunctionByName(Name)->HasMetaData(TEXT("CallInEditor")));
	}
}

TEST_F(PanelInterface, BlueprintsHearTheEventsOfTheirLife)
{
	for (const char* Layout : {PanelLayouts::Login, PanelLayouts::ProjectSelector, PanelLayouts::DeveloperInfo, PanelLayouts::ListDisplayer, PanelLayouts::MinimapTool})
	{
		StartEditor();
		FTestPanel Panel(Layout, {TEXT("OnInitialized"), TEXT("PreConstruct"), TEXT("Construct"), TEXT("Destruct")});
		Panel.Show();
		Panel.Hide();
		EXPECT_THAT(Panel.TakeEvents(), ElementsAre("OnInitialized", "PreConstruct(false)", "Construct", "Destruct")) << Layout;
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
