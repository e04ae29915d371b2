// Copyright Velmorant. All Rights Reserved.

#include "Components/EditableText.h"
#include "Components/ListView.h"
#include "EditorWidgets/VlmEWListDisplayer.h"
#include "HostObjects.h"
#include "PanelLayouts.h"
#include "ProjectWrapper.h"
#include "TestPanel.h"
#include "ToolkitTest.h"
#include "UObject/Package.h"
#include "VelmorantDeveloperUser.h"
#include "VelmorantProjectRequestManager.h"
#include "VlmButton.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace ListDisplayerPanelTest
{
	/** Two towers with units, not in the order of their numbers, and two configurators, of which the second applies to both towers. */
	const char* const Data = R"(
		"unitGroups": [
			{"keyCode": "HT-A", "name": "Torre Alba", "units": [{"keyCode": "A-2", "name": "Second", "unitID": 20}, {"keyCode": "A-1", "name": "First", "unitID": 10}]},
			{"keyCode": "HT-B", "name": "Brisa", "units": [{"keyCode": "B-1", "name": "Only", "unitID": 5}]}],
		"configurators": [
			{"name": "Flat", "unitGroups": ["HT-B"]},
			{"name": "Loft", "unitGroups": ["HT-A", "HT-B"]}])";

	const auto TwoTowers = ElementsAre("-1 HT-A Torre Alba", "-1 HT-B Brisa");
	const auto UnitsOfA = ElementsAre("10 A-1 First", "20 A-2 Second");
	const auto Configurators = ElementsAre("-1 HT-B Brisa", "-1 HT-A Torre Alba", "-1 HT-B Brisa");
}

using namespace ListDisplayerPanelTest;

class ListDisplayerPanel : public FToolkitTest
{
protected:
	ListDisplayerPanel() { WriteHarborTower(Data); }

	/** A panel on screen, activated, of a user who has chosen Harbor Tower. */
	FTestPanel MakePanel()
	{
		StartWithProject();
		FTestPanel Panel = ShowPanel();
		Activate(Panel);
		Panel.TakeEvents();
		return Panel;
	}

	/** The same, with the units of the first tower on show. */
	FTestPanel MakePanelOfUnits()
	{
		FTestPanel Panel = MakePanel();
		Panel.Choose(TEXT("ItemList"), TEXT("Torre Alba"));
		Panel.TakeEvents();
		return Panel;
	}

	static FTestPanel ShowPanel()
	{
		FTestPanel Panel(PanelLayouts::ListDisplayer, {TEXT("OnListCountChange"), TEXT("OnModeSelectionChange"), TEXT("OnNavBarButtonChanged"), TEXT("OnSelectionTypeChange")});
		Panel.Show();
		return Panel;
	}

	static void Activate(const FTestPanel& Panel) { IVlmEditorPanelInterface::Execute_ActivateDataPanel(Panel.Get()); }

	static UVlmEWListDisplayer* ListOf(const FTestPanel& Panel) { return Panel.Get<UVlmEWListDisplayer>(); }

	/** What the list view has, in its order: "UnitID Keycode Name". */
	static std::vector<std::string> Rows(const FTestPanel& Panel)
	{
		std::vector<std::string> Rows;
		for (const UObject* Item : Panel.Find<UListView>(TEXT("ItemList"))->GetListItems())
		{
			const UListDisplayerItemBase* Row = CastChecked<UListDisplayerItemBase>(Item);
			Rows.push_back(ToUtf8(FString::Printf(TEXT("%d %s %s"), Row->UnitID, *Row->Keycode, *Row->DisplayName)));
		}
		return Rows;
	}

	/** A click as the list view tells it. */
	static void ClickRow(const FTestPanel& Panel, UObject* Item) { Panel.Find<UListView>(TEXT("ItemList"))->OnItemClicked().Broadcast(Item); }

	/** As the request manager tells that a request has finished. */
	static void Raise(EUpdateRequestDataType DataType) { GetRequests()->GetOnUpdateRequest().Broadcast(DataType, EUpdateRequestType::Get); }

	/** Gives the panel its two navigation buttons. */
	static void SetNavBar(const FTestPanel& Panel) { ListOf(Panel)->SetNavBarButtons({Panel.Find<UVlmButton>(TEXT("NavUnits")), Panel.Find<UVlmButton>(TEXT("NavConfigurators"))}); }

	static std::vector<bool> NavBar(const FTestPanel& Panel)
	{
		return {Panel.Find<UVlmButton>(TEXT("NavUnits"))->IsButtonSelected(), Panel.Find<UVlmButton>(TEXT("NavConfigurators"))->IsButtonSelected()};
	}
};

TEST_F(ListDisplayerPanel, MakesRowsInTheTransientPackage)
{
	StartEditor();
	const UListDisplayerItemBase* Row = UListDisplayerItemBase::CreateListDisplayerItemBase(7, TEXT("K"), TEXT("Name"), ELDIT_Configurator);
	EXPECT_EQ(Row->GetOutermost(), GetTransientPackage());
	EXPECT_EQ(Row->UnitID, 7);
	EXPECT_EQ(ToUtf8(Row->Keycode), "K");
	EXPECT_EQ(ToUtf8(Row->DisplayName), "Name");
	EXPECT_EQ(Row->ItemBaseType, ELDIT_Configurator);
}

TEST_F(ListDisplayerPanel, ShowsTheUnitGroupsOfASelectedProject)
{
	StartWithProject();
	FTestPanel Panel = ShowPanel();
	EXPECT_THAT(Panel.TakeEvents(), IsEmpty());
	EXPECT_THAT(Panel.Options(TEXT("ModeSelector")), ElementsAre("Promotion", "Configurator"));
	Activate(Panel);
	EXPECT_THAT(Panel.TakeEvents(), ElementsAre("OnSelectionTypeChange(ELDIT_UnitGroup)")) << "the count is not told";
	EXPECT_THAT(Rows(Panel), TwoTowers);
	EXPECT_TRUE(ListOf(Panel)->IsProjectSelected());
	EXPECT_FALSE(ListOf(Panel)->IsUnitGroupTarget());
	EXPECT_EQ(ToUtf8(ListOf(Panel)->GetUnitGroupTargetName()), "");
}

TEST_F(ListDisplayerPanel, TakesAKeyCodeLongerThanAnyName)
{
	const FTestPanel Panel = MakePanel();
	ClickRow(Panel, UListDisplayerItemBase::CreateListDisplayerItemBase(-1, FString::ChrN(NAME_SIZE + 100, TEXT('k')), TEXT("Long"), ELDIT_UnitGroup));
	EXPECT_FALSE(ListOf(Panel)->IsUnitGroupTarget()) << "no unit group has that key code";
}

TEST_F(ListDisplayerPanel, ShowsNothingUntilAProjectIsSelected)
{
	StartEditor();
	FTestPanel Panel = ShowPanel();
	Activate(Panel); // no user: nothing to listen to
	EXPECT_FALSE(ListOf(Panel)->IsProjectSelected());
	ListOf(Panel)->DisplayUnitGroups();
	ListOf(Panel)->DisplayUnitsFromUnitGroupTarget();
	ListOf(Panel)->DisplayConfiguratorFromUnitGroupTarget();
	EXPECT_THAT(Rows(Panel), IsEmpty());

	SignIn();
	Panel.TakeEvents();
	Activate(Panel);
	EXPECT_THAT(Panel.TakeEvents(), IsEmpty());
	SelectProject(TEXT("HT"));
	EXPECT_THAT(Panel.TakeEvents(), ElementsAre("OnSelectionTypeChange(ELDIT_UnitGroup)", "OnListCountChange(0)", "OnSelectionTypeChange(ELDIT_UnitGroup)", "OnListCountChange(2)"));
	EXPECT_THAT(Rows(Panel), TwoTowers);
}

TEST_F(ListDisplayerPanel, AClickOnAUnitGroupShowsItsUnitsByNumber)
{
	FTestPanel Panel = MakePanel();
	Panel.Choose(TEXT("ItemList"), TEXT("Torre Alba"));
	EXPECT_THAT(Panel.TakeEvents(), ElementsAre("OnSelectionTypeChange(ELDIT_Unit)", "OnListCountChange(2)"));
	EXPECT_THAT(Rows(Panel), UnitsOfA);
	EXPECT_TRUE(ListOf(Panel)->IsUnitGroupTarget());
	EXPECT_EQ(ToUtf8(ListOf(Panel)->GetUnitGroupTargetName()), "Torre Alba");
}

TEST_F(ListDisplayerPanel, OtherClicksDoNothing)
{
	FTestPanel Panel = MakePanelOfUnits();
	Panel.Choose(TEXT("ItemList"), TEXT("First"));
	for (UObject* Item : {static_cast<UObject*>(nullptr), static_cast<UObject*>(Panel.Get()), static_cast<UObject*>(UListDisplayerItemBase::CreateListDisplayerItemBase(-1, TEXT("HT-B"), TEXT("Brisa"), ELDIT_Configurator)),
			 static_cast<UObject*>(UListDisplayerItemBase::CreateListDisplayerItemBase(-1, TEXT("HT-B"), TEXT("Brisa"), ELDIT_Unit))})
	{
		ClickRow(Panel, Item);
	}
	EXPECT_THAT(Panel.TakeEvents(), IsEmpty());
	EXPECT_THAT(Rows(Panel), UnitsOfA);
	EXPECT_EQ(ToUtf8(ListOf(Panel)->GetUnitGroupTargetName()), "Torre Alba");
}

TEST_F(ListDisplayerPanel, HomeAndEveryModeGoBackToTheUnitGroups)
{
	FTestPanel Panel = MakePanelOfUnits();
	Panel.Click(TEXT("HomeButton"));
	EXPECT_THAT(Panel.TakeEvents(), ElementsAre("OnSelectionTypeChange(ELDIT_UnitGroup)", "OnListCountChange(2)"));
	EXPECT_THAT(Rows(Panel), TwoTowers);

	for (const TCHAR* Mode : {TEXT("Configurator"), TEXT("Promotion")})
	{
		ListOf(Panel)->DisplayUnitsFromUnitGroupTarget();
		Panel.TakeEvents();
		Panel.Choose(TEXT("ModeSelector"), Mode);
		EXPECT_THAT(Panel.TakeEvents(), ElementsAre("OnModeSelectionChange(" + ToUtf8(FString(Mode)) + ")", "OnSelectionTypeChange(ELDIT_UnitGroup)", "OnListCountChange(2)"));
		EXPECT_THAT(Rows(Panel), TwoTowers);
	}
}

TEST_F(ListDisplayerPanel, ShowsTheUnitGroupsOfAllConfigurators)
{
	FTestPanel Panel = MakePanel();
	ListOf(Panel)->DisplayConfiguratorFromUnitGroupTarget();
	EXPECT_THAT(Panel.TakeEvents(), ElementsAre("OnSelectionTypeChange(ELDIT_Configurator)"));
	EXPECT_THAT(Rows(Panel), Configurators);
	ListOf(Panel)->DisplayUnitsFromUnitGroupTarget();
	EXPECT_THAT(Rows(Panel), IsEmpty()) << "without target";
}

TEST_F(ListDisplayerPanel, OnlyANewProjectRefreshesAndLeadsBackToTheUnitGroups)
{
	FTestPanel Panel = MakePanelOfUnits();
	for (const EUpdateRequestDataType DataType : {EUpdateRequestDataType::None, EUpdateRequestDataType::Projects, EUpdateRequestDataType::Configurator, EUpdateRequestDataType::Units, EUpdateRequestDataType::ConfiguratorData})
	{
		Raise(DataType);
		EXPECT_THAT(Panel.TakeEvents(), IsEmpty()) << "kind " << static_cast<int>(DataType);
	}
	EXPECT_THAT(Rows(Panel), UnitsOfA);
	Raise(EUpdateRequestDataType::ProjectData);
	EXPECT_THAT(Panel.TakeEvents(), ElementsAre("OnSelectionTypeChange(ELDIT_UnitGroup)", "OnListCountChange(2)"));
	EXPECT_THAT(Rows(Panel), TwoTowers);
}

TEST_F(ListDisplayerPanel, EveryActivationHearsUpdatesOnceMore)
{
	FTestPanel Panel = MakePanel();
	Activate(Panel);
	Activate(Panel);
	Panel.TakeEvents();
	Raise(EUpdateRequestDataType::ProjectData);
	EXPECT_EQ(Panel.TakeEvents().size(), 6u) << "two events for each of three activations";
}

TEST_F(ListDisplayerPanel, ShowsWhatIsFoundAndTellsHowMany)
{
	FTestPanel Panel = MakePanelOfUnits();
	Panel.Type(TEXT("SearchText"), TEXT("a-2"));
	EXPECT_THAT(Rows(Panel), ElementsAre("20 A-2 Second"));
	EXPECT_THAT(Panel.TakeEvents(), ElementsAre("OnListCountChange(1)"));
	Panel.Type(TEXT("SearchText"), TEXT("FIR "));
	EXPECT_THAT(Rows(Panel), IsEmpty()) << "blanks count";
	EXPECT_THAT(Panel.TakeEvents(), ElementsAre("OnListCountChange(0)"));
	Panel.Type(TEXT("SearchText"), TEXT(""));
	EXPECT_THAT(Rows(Panel), UnitsOfA);
	EXPECT_THAT(Panel.TakeEvents(), ElementsAre("OnListCountChange(2)"));
}

TEST_F(ListDisplayerPanel, ARebuiltListIsNotSearchedAgain)
{
	FTestPanel Panel = MakePanel();
	Panel.Type(TEXT("SearchText"), TEXT("brisa"));
	EXPECT_THAT(Rows(Panel), ElementsAre("-1 HT-B Brisa"));
	Panel.Click(TEXT("HomeButton"));
	EXPECT_THAT(Rows(Panel), TwoTowers);
	EXPECT_EQ(Panel.Read(TEXT("SearchText")), "brisa");
}

TEST_F(ListDisplayerPanel, ClearsTheSearchText)
{
	FTestPanel Panel = MakePanel();
	Panel.Type(TEXT("SearchText"), TEXT("nothing"));
	EXPECT_THAT(Rows(Panel), IsEmpty());
	Panel.TakeEvents();
	ListOf(Panel)->ClearSearchText();
	EXPECT_EQ(Panel.Read(TEXT("SearchText")), "");
	EXPECT_THAT(Rows(Panel), TwoTowers);
	EXPECT_THAT(Panel.TakeEvents(), testing::AllOf(testing::Not(IsEmpty()), testing::Each("OnListCountChange(2)")));

	ListOf(Panel)->ClearSearchText(); // nothing to clear
	EXPECT_THAT(Panel.TakeEvents(), ElementsAre("OnListCountChange(2)"));
}

TEST_F(ListDisplayerPanel, OneNavigationButtonIsSelectedAtATime)
{
	FTestPanel Panel = MakePanelOfUnits();
	SetNavBar(Panel);
	SetNavBar(Panel); // twice must not count twice
	Panel.ListenTo(TEXT("OnSelectionStateChanged"), TEXT("NavConfigurators"));
	Panel.Click(TEXT("NavConfigurators"));
	EXPECT_THAT(Panel.TakeEvents(), ElementsAre("OnNavBarButtonChanged(1)", "OnSelectionStateChanged"));
	ListOf(Panel)->SetNavBarByIndex(0);
	EXPECT_THAT(Panel.TakeEvents(), ElementsAre("OnSelectionStateChanged", "OnNavBarButtonChanged(0)")) << "who is released is told";
	EXPECT_THAT(NavBar(Panel), ElementsAre(true, false));

	Panel.Click(TEXT("NavUnits")); // off: none is selected, and nobody is told
	EXPECT_THAT(Panel.TakeEvents(), IsEmpty());
	EXPECT_THAT(NavBar(Panel), ElementsAre(false, false));
}

TEST_F(ListDisplayerPanel, OnlyButtonsOfTheBarHaveAnIndex)
{
	FTestPanel Panel = MakePanelOfUnits();
	ListOf(Panel)->SetNavBarByIndex(0); // no buttons yet
	SetNavBar(Panel);
	for (const int32 Index : {-1, 2, 1000})
	{
		ListOf(Panel)->SetNavBarByIndex(Index);
	}
	EXPECT_THAT(Panel.TakeEvents(), IsEmpty());
	EXPECT_THAT(NavBar(Panel), ElementsAre(false, false));
	ListOf(Panel)->SetNavBarButtons({}); // the old ones are still listened to
	Panel.Click(TEXT("NavUnits"));
	EXPECT_THAT(Panel.TakeEvents(), ElementsAre("OnNavBarButtonChanged(-1)"));
}

TEST_F(ListDisplayerPanel, NavigationIsIgnoredWithoutATarget)
{
	FTestPanel Panel = MakePanel();
	SetNavBar(Panel);
	ListOf(Panel)->SetNavBarByIndex(0);
	ListOf(Panel)->SetNavBarByIndex(1);
	EXPECT_THAT(Panel.TakeEvents(), IsEmpty());
	EXPECT_THAT(NavBar(Panel), ElementsAre(true, true)) << "the other is not deselected either";
}

TEST_F(ListDisplayerPanel, NavigationIsIgnoredWithoutApiKey)
{
	WriteService(R"({
		"users": [{"userName": "ada", "password": "sesame-77", "projects": ["QV"]}],
		"projects": [{"keyCode": "QV", "name": "Quay View", "unitGroups": [{"keyCode": "QV-P", "name": "Pier", "units": []}]}]})");
	StartEditor();
	SignIn();
	SelectProject(TEXT("QV"));
	FTestPanel Panel = ShowPanel();
	Activate(Panel);
	EXPECT_FALSE(ListOf(Panel)->IsProjectSelected());
	GetRequests()->SetSelectedUnitGroup("QV-P");
	ASSERT_TRUE(ListOf(Panel)->IsUnitGroupTarget());
	SetNavBar(Panel);
	ListOf(Panel)->SetNavBarByIndex(0);
	EXPECT_THAT(Panel.TakeEvents(), IsEmpty());
}

TEST_F(ListDisplayerPanel, AMissingButtonOfTheBarKeepsItsIndex)
{
	FTestPanel Panel = MakePanelOfUnits();
	ListOf(Panel)->SetNavBarButtons({nullptr, Panel.Find<UVlmButton>(TEXT("NavUnits")), nullptr, Panel.Find<UVlmButton>(TEXT("NavConfigurators"))});
	ListOf(Panel)->SetNavBarByIndex(0);
	EXPECT_THAT(Panel.TakeEvents(), IsEmpty());
	ListOf(Panel)->SetNavBarByIndex(3);
	EXPECT_THAT(Panel.TakeEvents(), ElementsAre("OnNavBarButtonChanged(3)"));
	Panel.Click(TEXT("NavUnits"));
	EXPECT_THAT(Panel.TakeEvents(), ElementsAre("OnNavBarButtonChanged(1)"));
	EXPECT_THAT(NavBar(Panel), ElementsAre(true, false));
}

TEST_F(ListDisplayerPanel, ShownAgainItHasItsModesOnceAndAClickCountsOnce)
{
	FTestPanel Panel = MakePanel();
	Panel.Hide();
	Panel.Show();
	Panel.TakeEvents();
	EXPECT_THAT(Panel.Options(TEXT("ModeSelector")), ElementsAre("Promotion", "Configurator"));
	Panel.Choose(TEXT("ItemList"), TEXT("Brisa"));
	EXPECT_THAT(Panel.TakeEvents(), ElementsAre("OnSelectionTypeChange(ELDIT_Unit)", "OnListCountChange(1)"));
	Panel.Click(TEXT("HomeButton"));
	EXPECT_THAT(Panel.TakeEvents(), ElementsAre("OnSelectionTypeChange(ELDIT_UnitGroup)", "OnListCountChange(2)"));
}

TEST_F(ListDisplayerPanel, FollowsASwitchToAnotherProject)
{
	FTestPanel Panel = MakePanelOfUnits();
	SelectProject(TEXT("QV"));
	EXPECT_THAT(Rows(Panel), IsEmpty());
	EXPECT_FALSE(ListOf(Panel)->IsProjectSelected());
	EXPECT_FALSE(ListOf(Panel)->IsUnitGroupTarget());
}

TEST_F(ListDisplayerPanel, AnAnswerAfterItWasClosedIsHarmless)
{
	{
		FTestPanel Panel = MakePanel();
		Panel.Hide();
	}
	HostObjects::CollectGarbage();
	Raise(EUpdateRequestDataType::ProjectData);
	EXPECT_THAT(TakeModuleLog(), IsEmpty());
}
