// Copyright Velmorant. All Rights Reserved.

#include "Components/Button.h"
#include "Components/CheckBox.h"
#include "Components/ComboBoxString.h"
#include "Components/EditableText.h"
#include "Components/ListView.h"
#include "Components/TextBlock.h"
#include "HostLog.h"
#include "HostObjects.h"
#include "HostSnapshot.h"
#include "TestLoginPanel.h"
#include "TestToolPanel.h"
#include "UObject/StrongObjectPtr.h"
#include "UiTestEditor.h"

/** Panels made of layouts that are sound. */
class WidgetLayout : public FUiTestEditor
{
protected:
	/** A login layout with everything bound; Members are added at the end of the document. */
	void WriteLogin(const std::string& Members, const std::string& MoreWidgets = "") const
	{
		WriteLayout("Login", R"("ParentClass": "/Script/TestPanels.TestLoginPanel",
			"Tree": {"Class": "VerticalBox", "Children": [
				{"Class": "TextBlock", "Name": "Status", "Properties": {"Text": "Welcome"}},
				{"Class": "EditableText", "Name": "UserName", "Properties": {"HintText": "User"}},
				{"Class": "CheckBox", "Name": "RememberUser", "Children": [{"Class": "TextBlock", "Properties": {"Text": "Remember"}}]},
				{"Class": "Button", "Name": "Submit", "Children": [{"Class": "TextBlock", "Properties": {"Text": "Sign in"}}]})" +
				MoreWidgets + "]}" + (Members.empty() ? "" : ", " + Members));
	}

	UTestLoginPanel* Open()
	{
		Panel = Cast<UTestLoginPanel>(MakePanel(TEXT("Login")));
		EXPECT_EQ(Problems(), "");
		Root = Panel ? TSharedPtr<SWidget>(Panel->TakeWidget()) : nullptr;
		return Panel;
	}

	std::string Read(const TCHAR* Widget) const
	{
		FString Reason;
		const TOptional<FString> Text = HostSnapshot::Read(Root.ToSharedRef(), Widget, Reason);
		return Utf8(Text.IsSet() ? Text.GetValue() : Reason);
	}

	UTestLoginPanel* Panel = nullptr; // kept by Root
	TSharedPtr<SWidget> Root;
};

TEST_F(WidgetLayout, BindsNamedWidgetsBeforeThePanelIsInitialized)
{
	WriteLogin("");
	ASSERT_NE(Open(), nullptr);
	EXPECT_EQ(Panel->Happened, (TArray<FString>{TEXT("initialized, bound"), TEXT("pre-construct"), TEXT("construct")}));
	EXPECT_EQ(Panel->UserName, Panel->GetWidgetFromName(FName(TEXT("username"))));
	EXPECT_NE(Panel->RememberUser, nullptr);
	EXPECT_EQ(Utf8(HostSnapshot::Take(Root.ToSharedRef())),
		"panel (Login)\n"
		"  vertical\n"
		"    text Status \"Welcome\"\n"
		"    edit UserName [User] \"\"\n"
		"    checkbox RememberUser [Remember] (unchecked)\n"
		"    button Submit [Sign in]\n");
}

TEST_F(WidgetLayout, APanelEndsWithItsWidgetAndBeginsAgainWithTheNext)
{
	WriteLogin("");
	ASSERT_NE(Open(), nullptr);
	const TStrongObjectPtr<UTestLoginPanel> Kept(Panel);
	Panel->Happened.Empty();
	Root.Reset();
	EXPECT_EQ(Panel->Happened, TArray<FString>{TEXT("destruct")});
	Root = Panel->TakeWidget();
	EXPECT_EQ(Panel->Happened, (TArray<FString>{TEXT("destruct"), TEXT("pre-construct"), TEXT("construct")}));
	HostSnapshot::Click(Root.ToSharedRef(), TEXT("Sign in"));
	EXPECT_EQ(Panel->Happened.Num(), 4) << "the handler was added once";
}

TEST_F(WidgetLayout, EventsShowWhatTheLayoutSays)
{
	WriteLogin(R"("Events": {
		"OnLoginInProcess": [
			{"Set": "Submit.IsEnabled", "To": "{!bInProgress}"},
			{"Set": "Status.Text", "To": {"If": "{bInProgress}", "Then": "Signing in {UserName.Text}…", "Else": "Done"}},
			{"Set": "RememberUser.Visibility", "To": {"If": "{bInProgress}", "Then": "Collapsed", "Else": "Visible"}}
		],
		"OnVisitorChanged": [
			{"When": {"Value": "{Count}", "Is": "0"}, "Set": "Status.Text", "To": "Nobody"},
			{"When": "{Count}", "Set": "Status.Text", "To": "{Count}: {Visitor.Name}, {Visitor.Visits} visits, {{ {self.Greeting} }}"}
		]})");
	ASSERT_NE(Open(), nullptr);
	Panel->UserName->SetText(FText::FromString(TEXT("ada")));
	Panel->OnLoginInProcess(true);
	EXPECT_EQ(Read(TEXT("Status")), "Signing in ada…");
	EXPECT_EQ(Refusal(HostSnapshot::Click(Root.ToSharedRef(), TEXT("Submit"))), "The button \"Submit\" is disabled.");
	EXPECT_EQ(Refusal(HostSnapshot::Check(Root.ToSharedRef(), TEXT("RememberUser"), true)), "The checkbox \"RememberUser\" is hidden.");
	Panel->OnLoginInProcess(false);
	EXPECT_EQ(Read(TEXT("Status")), "Done");
	EXPECT_EQ(Refusal(HostSnapshot::Click(Root.ToSharedRef(), TEXT("Submit"))), "");

	FTestLoginInfo Visitor;
	Visitor.Name = TEXT("Türmchen Ñ");
	Visitor.Visits = 7;
	Panel->OnVisitorChanged(3, Visitor);
	EXPECT_EQ(Read(TEXT("Status")), "3: Türmchen Ñ, 7 visits, { Ahoy }");
	Panel->OnVisitorChanged(0, Visitor);
	EXPECT_EQ(Read(TEXT("Status")), "Nobody");
}

TEST_F(WidgetLayout, CallsPassOnWhatTheEventGave)
{
	WriteLogin(R"("Calls": {
		"RememberUser.OnCheckStateChanged": [{"Call": "SetRememberMe"}],
		"UserName.OnTextChanged": [{"Call": "Note", "With": {"InText": "now {Text}", "InNumber": 5}}],
		"self.OnLoginResult": [
			{"When": "{bSuccess}", "Call": "OnVisitorChanged", "With": {"Count": 1, "Visitor": "{LoginInfo}"}},
			{"When": "{!bSuccess}", "Call": "Note", "With": {"InText": "{LoginInfo.Name} failed"}}
		],
		"Submit.OnClicked": [{"Call": "TakeWidgets", "With": {"InWidgets": ["Status", "{UserName}"]}}]
		},
		"Events": {"OnVisitorChanged": [{"Set": "Status.Text", "To": "Hello {Visitor.Name}"}]})");
	ASSERT_NE(Open(), nullptr);
	Panel->Happened.Empty();
	HostSnapshot::Check(Root.ToSharedRef(), TEXT("RememberUser"), true);
	HostSnapshot::Type(Root.ToSharedRef(), TEXT("UserName"), TEXT("ada"));
	FTestLoginInfo Info;
	Info.Name = TEXT("Ada");
	Panel->OnLoginResult.Broadcast(true, Info);
	Panel->OnLoginResult.Broadcast(false, Info);
	HostSnapshot::Click(Root.ToSharedRef(), TEXT("Submit"));
	EXPECT_EQ(Read(TEXT("Status")), "Hello Ada");
	EXPECT_EQ(Panel->Happened, (TArray<FString>{TEXT("remember"), TEXT("now ada 5"), TEXT("Ada failed 0"), TEXT("Status"), TEXT("UserName"), TEXT("submit ada")}));
}

TEST_F(WidgetLayout, ACallIsNotMadeWithWhatDoesNotFit)
{
	WriteLogin(R"("Calls": {"Submit.OnClicked": [
		{"Call": "Note", "With": {"InText": "visits", "InNumber": "{UserName.Text}"}},
		{"Call": "UserName.SetIsReadOnly", "With": {"InbIsReadyOnly": "{UserName.Text}"}},
		{"Set": "Status.Text", "To": "Done with {UserName.Text}"}]})");
	ASSERT_NE(Open(), nullptr);
	const auto Submit = [this](const TCHAR* Text) {
		Panel->Happened.Empty();
		HostSnapshot::Type(Root.ToSharedRef(), TEXT("UserName"), Text);
		HostSnapshot::Click(Root.ToSharedRef(), TEXT("Sign in"));
	};
	Submit(TEXT("many"));
	EXPECT_EQ(Panel->Happened, TArray<FString>{TEXT("submit many")});
	EXPECT_EQ(Read(TEXT("Status")), "Done with many") << "the rest is done";
	Submit(TEXT("12"));
	EXPECT_EQ(Panel->Happened, (TArray<FString>{TEXT("visits 12"), TEXT("submit 12")}));
}

TEST_F(WidgetLayout, ACallGoesOnByWhatItReturned)
{
	WriteLogin(R"("Calls": {"Submit.OnClicked": [
		{"Call": "RememberUser.IsChecked", "With": {},
			"Then": [{"Set": "Status.Text", "To": "Kept"}, {"Call": "Note", "With": {"InText": "kept"}}],
			"Else": [{"Set": "Status.Text", "To": "{UserName.Text} forgotten"}]},
		{"Call": "Note", "With": {"InText": "after"}}]})");
	ASSERT_NE(Open(), nullptr);
	Panel->Happened.Empty();
	HostSnapshot::Type(Root.ToSharedRef(), TEXT("UserName"), TEXT("ada"));
	HostSnapshot::Click(Root.ToSharedRef(), TEXT("Sign in"));
	EXPECT_EQ(Read(TEXT("Status")), "ada forgotten");
	HostSnapshot::Check(Root.ToSharedRef(), TEXT("RememberUser"), true);
	HostSnapshot::Click(Root.ToSharedRef(), TEXT("Sign in"));
	EXPECT_EQ(Read(TEXT("Status")), "Kept");
	EXPECT_EQ(Panel->Happened, (TArray<FString>{TEXT("after 0"), TEXT("submit ada"), TEXT("kept 0"), TEXT("after 0"), TEXT("submit ada")}));
}

TEST_F(WidgetLayout, ObjectsThatAreNoWidgetsAreAskedAndHeardWhileThePanelShows)
{
	WriteLogin(R"("Objects": {
			"Book": {"ResultOf": "/Script/TestPanels.TestVisitorBook.GetBook", "With": {"InWhere": "{UserName.Text}"}},
			"Copy": "{Book.Copy}",
			"Gone": "{Book.Nothing}"},
		"Events": {"Construct": [{"Set": "Status.Text", "To": "{Copy.Place}{Gone.Place}"}]},
		"Calls": {
			"Copy.OnVisit": [{"Call": "Note", "With": {"InText": "{LoginInfo.Name} at {Book.Place}"}}],
			"Gone.OnVisit": [{"Call": "Gone.Forget"}],
			"Submit.OnClicked": [{"Call": "Gone.Forget", "With": {}}, {"Call": "Note", "With": {"InText": "still there"}}]},
		"Properties": {"IsEnabled": true})");
	ASSERT_NE(Open(), nullptr);
	EXPECT_EQ(Read(TEXT("Status")), "");
	HostSnapshot::Type(Root.ToSharedRef(), TEXT("UserName"), TEXT("the pier"));
	const TStrongObjectPtr<UTestLoginPanel> Kept(Panel);
	const auto Visit = [this] {
		Panel->Happened.Empty();
		GetMutableDefault<UTestVisitorBook>()->OnVisit.Broadcast(true, FTestLoginInfo{TEXT("Ada"), 1});
		return Panel->Happened;
	};
	EXPECT_EQ(Visit(), TArray<FString>{TEXT("Ada at the pier 0")});
	HostSnapshot::Click(Root.ToSharedRef(), TEXT("Sign in"));
	EXPECT_EQ(Panel->Happened[1], TEXT("still there 0"));
	Root.Reset();
	EXPECT_EQ(Visit(), TArray<FString>()) << "off the screen";
	Root = Panel->TakeWidget();
	EXPECT_EQ(Read(TEXT("Status")), "the pier");
	EXPECT_EQ(Visit(), TArray<FString>{TEXT("Ada at the pier 0")}) << "once";
}

TEST_F(WidgetLayout, ValuesCanBeWhatAFunctionReturns)
{
	const std::string Visitor = R"({"ResultOf": "/Script/TestPanels.TestVisitorBook.MakeVisitor", "With": {"Name": "{UserName.Text}", "Visits": 7})";
	WriteLogin(R"("Calls": {"Submit.OnClicked": [
			{"Call": "OnVisitorChanged", "With": {"Count": 2, "Visitor": )" +
		Visitor + R"(}}},
			{"When": {"Value": )" +
		Visitor + R"(, "Member": "Name"}, "Is": "ada"}, "Call": "Note", "With": {"InText": {"ResultOf": "GetGreeting"}}}]},
		"Events": {"OnVisitorChanged": [{"Set": "Status.Text", "To": "{Visitor.Name}, {Visitor.Visits}"}]})");
	ASSERT_NE(Open(), nullptr);
	Panel->Happened.Empty();
	for (const TCHAR* Name : {TEXT("eve"), TEXT("ada")})
	{
		HostSnapshot::Type(Root.ToSharedRef(), TEXT("UserName"), Name);
		HostSnapshot::Click(Root.ToSharedRef(), TEXT("Sign in"));
	}
	EXPECT_EQ(Read(TEXT("Status")), "ada, 7");
	EXPECT_EQ(Panel->Happened, (TArray<FString>{TEXT("submit eve"), TEXT("Ahoy 0"), TEXT("submit ada")}));
}

TEST_F(WidgetLayout, ALayoutsOwnFunctionsAreCalledLikeThoseOfThePanel)
{
	WriteLogin(R"("Functions": {
			"Greet": [{"Set": "Status.Text", "To": "Hello {UserName.Text}"}, {"Call": "Tell"}],
			"Tell": [{"Call": "Note", "With": {"InText": "{Status.Text}"}}]},
		"Events": {"OnMoodChanged": [{"Call": "Greet"}]},
		"Calls": {"Submit.OnClicked": [{"Call": "Greet", "With": {}}]})");
	ASSERT_NE(Open(), nullptr);
	Panel->Happened.Empty();
	HostSnapshot::Type(Root.ToSharedRef(), TEXT("UserName"), TEXT("ada"));
	HostSnapshot::Click(Root.ToSharedRef(), TEXT("Sign in"));
	Panel->OnMoodChanged(ETestMood::Busy);
	EXPECT_EQ(Panel->Happened, (TArray<FString>{TEXT("Hello ada 0"), TEXT("submit ada"), TEXT("Hello ada 0")}));
}

TEST_F(WidgetLayout, ActionsThatRaiseTheirOwnEventAreStopped)
{
	WriteLogin(R"("Events": {
		"OnVisitorChanged": [{"Call": "OnVisitorChanged"}, {"Call": "OnVisitorChanged"}, {"Set": "Status.Text", "To": "never"}],
		"OnMoodChanged": [{"Set": "Status.Text", "To": "works on"}]})");
	ASSERT_NE(Open(), nullptr);
	HostLog::Clear();
	Panel->OnVisitorChanged(1, FTestLoginInfo());
	EXPECT_EQ(Read(TEXT("Status")), "Welcome");
	ASSERT_EQ(HostLog::GetLines().Num(), 1);
	EXPECT_NE(Utf8(HostLog::GetLines()[0].Text).find("the actions of 'OnVisitorChanged' raise it again and again"), std::string::npos);
	Panel->OnMoodChanged(ETestMood::Busy);
	EXPECT_EQ(Read(TEXT("Status")), "works on");
}

TEST_F(WidgetLayout, AFunctionOfThePanelMakesTheOptionsOfAComboBox)
{
	WriteLogin("", R"(, {"Class": "ComboBoxString", "Name": "Place", "Properties": {"OnGenerateWidgetEvent": "MakeOptionWidget"}})");
	ASSERT_NE(Open(), nullptr);
	UComboBoxString* Place = CastChecked<UComboBoxString>(Panel->GetWidgetFromName(FName(TEXT("Place"))));
	Place->AddOption(TEXT("Quay"));
	Place->AddOption(TEXT("Tower"));
	FString Reason;
	EXPECT_EQ(HostSnapshot::GetOptions(Root.ToSharedRef(), TEXT("Place"), Reason), (TArray<FString>{TEXT("[Quay]"), TEXT("[Tower]")}));
	EXPECT_TRUE(HostSnapshot::Choose(Root.ToSharedRef(), TEXT("Place"), TEXT("[Tower]")).bDone);
	EXPECT_EQ(Utf8(Place->GetSelectedOption()), "Tower");
	EXPECT_EQ(Read(TEXT("Place")), "[Tower]");
}

TEST_F(WidgetLayout, OverridesReachNativeEventsAndInterfaces)
{
	WriteLogin(R"("Events": {
		"OnMoodChanged": [{"When": {"Value": "{NewMood}", "Is": "Busy"}, "CallParent": true}, {"Call": "Note", "With": {"InText": "{NewMood}"}}],
		"ActivateDataPanel": [{"Call": "Note", "With": {"InText": "activated"}}]})");
	ASSERT_NE(Open(), nullptr);
	Panel->Happened.Empty();
	Panel->OnMoodChanged(ETestMood::Calm);
	Panel->OnMoodChanged(ETestMood::Busy);
	ITestPanelInterface::Execute_ActivateDataPanel(Panel);
	EXPECT_EQ(Panel->Mood, ETestMood::Busy);
	EXPECT_EQ(Panel->Happened, (TArray<FString>{TEXT("Calm 0"), TEXT("native OnMoodChanged"), TEXT("Busy 0"), TEXT("activated 0")}));
}

TEST_F(WidgetLayout, ALayoutCanHoldAnotherOne)
{
	WriteLogin("");
	WriteLayout("Shell", R"("ParentClass": "/Script/TestPanels.TestToolPanel",
		"Tree": {"Class": "VerticalBox", "Children": [
			{"Class": "/Game/Login", "Name": "LoginPanel"},
			{"Class": "/Game/Login", "Name": "Second", "Properties": {"IsEnabled": false}},
			{"Class": "TextBlock", "Name": "Status"}]},
		"Events": {"Construct": [{"Set": "Status.Text", "To": "constructed"}]},
		"Calls": {"LoginPanel.OnLoginResult": [
			{"Set": "Status.Text", "To": "{LoginInfo.Name}"},
			{"When": "{bSuccess}", "Call": "Second.ActivateDataPanel"}]})");
	UUserWidget* Shell = MakePanel(TEXT("Shell"));
	ASSERT_NE(Shell, nullptr) << Problems();
	Root = Shell->TakeWidget();
	UTestLoginPanel* First = Cast<UTestLoginPanel>(Shell->GetWidgetFromName(FName(TEXT("LoginPanel"))));
	UTestLoginPanel* Second = Cast<UTestLoginPanel>(Shell->GetWidgetFromName(FName(TEXT("Second"))));
	ASSERT_NE(First, nullptr);
	ASSERT_NE(Second, nullptr);
	EXPECT_EQ(First->Happened.Last(), TEXT("construct")) << "nested panels are constructed with their outer one";
	EXPECT_EQ(Read(TEXT("Shell/Status")), "There is no widget \"Shell\".");
	EXPECT_EQ(Read(TEXT("LoginPanel/Status")), "Welcome");

	First->OnLoginResult.Broadcast(true, FTestLoginInfo{TEXT("Ada"), 1});
	EXPECT_EQ(Second->Happened.Last(), TEXT("native ActivateDataPanel"));
	EXPECT_EQ(Refusal(HostSnapshot::Click(Root.ToSharedRef(), TEXT("Second/Submit"))), "The button \"Second/Submit\" is disabled.");
	EXPECT_EQ(Refusal(HostSnapshot::Click(Root.ToSharedRef(), TEXT("LoginPanel/Submit"))), "");
	HostObjects::CollectGarbage();
	EXPECT_EQ(First->Happened.Last(), TEXT("submit ")) << "what shows is kept";
}

TEST_F(WidgetLayout, ALayoutHearsWhenAPanelInItIsShownOrHidden)
{
	WriteLogin("");
	WriteLayout("Shell", R"("ParentClass": "/Script/TestPanels.TestToolPanel",
		"Tree": {"Class": "VerticalBox", "Children": [
			{"Class": "/Game/Login", "Name": "LoginPanel", "Properties": {"Visibility": "Hidden"}},
			{"Class": "TextBlock", "Name": "Heard", "Properties": {"Text": "-"}}]},
		"Calls": {"LoginPanel.OnVisibilityChanged": [{"Set": "Heard.Text", "To": "{Heard.Text}{InVisibility}-"}]})");
	UUserWidget* Shell = MakePanel(TEXT("Shell"));
	ASSERT_NE(Shell, nullptr) << Problems();
	Root = Shell->TakeWidget();
	EXPECT_EQ(Read(TEXT("Heard")), "-") << "what it is made with is no change";
	UWidget* Login = Shell->GetWidgetFromName(FName(TEXT("LoginPanel")));
	Login->SetVisibility(ESlateVisibility::Collapsed);
	Login->SetVisibility(ESlateVisibility::Collapsed);
	Login->SetVisibility(ESlateVisibility::Visible);
	EXPECT_EQ(Read(TEXT("Heard")), "-Collapsed-Visible-");
}

TEST_F(WidgetLayout, RowsOfAListAreEntriesOfALayout)
{
	WriteLayout("Entry", R"("ParentClass": "/Script/TestPanels.TestListEntry",
		"Tree": {"Class": "TextBlock", "Name": "Label"},
		"Events": {"OnListItemObjectSet": [{"Set": "Label.Text", "To": "* {ListItemObject.DisplayName}{ListItemObject.NoSuchMember}{ListItemObject.Price}"}]})");
	WriteLogin(R"("Calls": {"Items.BP_OnItemClicked": [{"Call": "Note", "With": {"InText": "{Item.DisplayName}"}}]})",
		R"(, {"Class": "ListView", "Name": "Items", "Properties": {"EntryWidgetClass": "/Game/Entry"}})");
	ASSERT_NE(Open(), nullptr);
	TArray<UTestListItem*> Items;
	for (const TCHAR* Name : {TEXT("Oak"), TEXT("Ash")})
	{
		Items.Add(NewObject<UTestListItem>());
		Items.Last()->DisplayName = Name;
	}
	UListView* List = Cast<UListView>(Panel->GetWidgetFromName(FName(TEXT("Items"))));
	List->SetListItems(Items);
	EXPECT_EQ(List->GetNumItems(), 2);
	Wait();
	EXPECT_NE(Utf8(HostSnapshot::Take(Root.ToSharedRef())).find("    list Items (2 items)\n      item\n        panel (Entry)\n          text Label \"* Oak\"\n      item\n        panel (Entry)\n          text Label \"* Ash\"\n"),
		std::string::npos)
		<< Utf8(HostSnapshot::Take(Root.ToSharedRef()));
	EXPECT_EQ(Refusal(HostSnapshot::Choose(Root.ToSharedRef(), TEXT("Items"), TEXT("* Ash"))), "");
	EXPECT_EQ(Panel->Happened.Last(), TEXT("Ash 0"));
	EXPECT_EQ(List->GetSelectedItem(), Items[1]);
	EXPECT_TRUE(HostLog::GetLines().ContainsByPredicate([](const auto& Line) { return Line.Text.Equals(TEXT("Blueprints cannot read 'Price' of TestListItem; it reads as empty in layouts.")); }));
}

TEST_F(WidgetLayout, ARowOfSeveralTextsIsMeantByAnyOfThem)
{
	WriteLayout("Entry", R"("ParentClass": "/Script/TestPanels.TestListEntry",
		"Tree": {"Class": "HorizontalBox", "Children": [{"Class": "TextBlock", "Properties": {"Text": "Wood"}}, {"Class": "TextBlock", "Name": "Label"}, {"Class": "ListView", "Name": "Inner"}]},
		"Events": {"OnListItemObjectSet": [{"Set": "Label.Text", "To": "{ListItemObject.DisplayName}"}, {"Call": "Inner.BP_SetListItems", "With": {"InListItems": ["{ListItemObject}"]}}]})");
	WriteLogin(R"("Calls": {"Items.BP_OnItemClicked": [{"Call": "Note", "With": {"InText": "{Item.DisplayName}, {Items.BP_GetSelectedItem.DisplayName}"}}]})",
		R"(, {"Class": "ListView", "Name": "Items", "Properties": {"EntryWidgetClass": "/Game/Entry"}})");
	ASSERT_NE(Open(), nullptr);
	TArray<UTestListItem*> Items;
	for (const TCHAR* Name : {TEXT("Oak"), TEXT("Ash"), TEXT("Elm")})
	{
		Items.Add(NewObject<UTestListItem>());
		Items.Last()->DisplayName = Name;
	}
	Cast<UListView>(Panel->GetWidgetFromName(FName(TEXT("Items"))))->SetListItems(Items);
	Wait();
	Wait(); // the lists within the rows
	EXPECT_EQ(Refusal(HostSnapshot::Choose(Root.ToSharedRef(), TEXT("Items"), TEXT("Ash"))), "");
	EXPECT_EQ(Panel->Happened.Last(), TEXT("Ash, Ash 0"));
	EXPECT_EQ(Refusal(HostSnapshot::Choose(Root.ToSharedRef(), TEXT("Items"), TEXT("Wood Oak Oak"))), "") << "the whole row";
	EXPECT_EQ(Panel->Happened.Last(), TEXT("Oak, Oak 0"));
	EXPECT_EQ(Refusal(HostSnapshot::Choose(Root.ToSharedRef(), TEXT("Items"), TEXT("Oa"))), "The list \"Items\" has no item \"Oa\".");
	EXPECT_EQ(Refusal(HostSnapshot::Click(Root.ToSharedRef(), TEXT("Items/Wood Elm Elm"))), "");
	EXPECT_EQ(Panel->Happened.Last(), TEXT("Elm, Elm 0"));
	EXPECT_NE(Refusal(HostSnapshot::Click(Root.ToSharedRef(), TEXT("Wood"))), "") << "all rows have it";
}

TEST_F(WidgetLayout, AClosedPanelIsCollectedAndItsClassLivesOnWithItsAsset)
{
	WriteLogin("");
	ASSERT_NE(Open(), nullptr);
	const TWeakObjectPtr<UTestLoginPanel> Weak(Panel);
	const TWeakObjectPtr<UClass> Class(Panel->GetClass());
	HostObjects::CollectGarbage();
	EXPECT_TRUE(Weak.IsValid());
	Root.Reset();
	HostObjects::CollectGarbage();
	EXPECT_FALSE(Weak.IsValid());
	EXPECT_TRUE(Class.IsValid());
	EXPECT_NE(Open(), nullptr);
}
