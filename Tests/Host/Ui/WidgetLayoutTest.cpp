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
class FWidgetLayoutTest : public FUiTestEditor
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

TEST_F(FWidgetLayoutTest, BindsNamedWidgetsBeforeThePanelIsInitialized)
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

TEST_F(FWidgetLayoutTest, APanelEndsWithItsWidgetAndBeginsAgainWithTheNext)
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

TEST_F(FWidgetLayoutTest, EventsShowWhatTheLayoutSays)
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

TEST_F(FWidgetLayoutTest, CallsPassOnWhatTheEventGave)
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

TEST_F(FWidgetLayoutTest, ACallIsNotMadeWithWhatDoesNotFit)
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

TEST_F(FWidgetLayoutTest, ACallGoesOnByWhatItReturned)
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

TEST_F(FWidgetLayoutTest, ActionsThatRaiseTheirOwnEventAreStopped)
{
	WriteLogin(R"("Events": {
		"OnLoginInProcess": [{"Call": "OnLoginInProcess"}, {"Call": "OnLoginInProcess"}, {"Set": "Status.Text", "To": "never"}],
		"OnMoodChanged": [{"Set": "Status.Text", "To": "works on"}]})");
	ASSERT_NE(Open(), nullptr);
	HostLog::Clear();
	Panel->OnLoginInProcess(true);
	EXPECT_EQ(Read(TEXT("Status")), "Welcome");
	ASSERT_EQ(HostLog::GetLines().Num(), 1);
	EXPECT_NE(Utf8(HostLog::GetLines()[0].Text).find("the actions of 'OnLoginInProcess' raise it again and again"), std::string::npos);
	Panel->OnMoodChanged(ETestMood::Busy);
	EXPECT_EQ(Read(TEXT("Status")), "works on");
}

TEST_F(FWidgetLayoutTest, AFunctionOfThePanelMakesTheOptionsOfAComboBox)
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

TEST_F(FWidgetLayoutTest, OverridesReachNativeEventsAndInterfaces)
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

TEST_F(FWidgetLayoutTest, ALayoutCanHoldAnotherOne)
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

TEST_F(FWidgetLayoutTest, ALayoutHearsWhenAPanelInItIsShownOrHidden)
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

TEST_F(FWidgetLayoutTest, RowsOfAListAreEntriesOfALayout)
{
	WriteLayout("Entry", R"("ParentClass": "/Script/TestPanels.TestListEntry",
		"Tree": {"Class": "TextBlock", "Name": "Label"},
		"Events": {"OnListItemObjectSet": [{"Set": "Label.Text", "To": "* {ListItemObject.DisplayName}{ListItemObject.NoSuchMember}"}]})");
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
}

TEST_F(FWidgetLayoutTest, AClosedPanelIsCollectedAndItsClassLivesOnWithItsAsset)
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

/** Layouts that are not sound. */
class FWidgetLayoutRefusalTest : public FUiTestEditor
{
protected:
	/** The problems with one document, without its class. */
	std::string ProblemsWith(const std::string& Members)
	{
		Restart();
		WriteLayout("Bad", Members);
		EXPECT_EQ(MakePanel(TEXT("Bad")), nullptr);
		return Problems();
	}

	/** The problems with a panel whose tree has one widget in a vertical box. */
	std::string ProblemsWithWidget(const std::string& Widget)
	{
		return ProblemsWith(R"("ParentClass": "/Script/TestPanels.TestToolPanel", "Tree": {"Class": "VerticalBox", "Children": [)" + Widget + "]}");
	}

	/** The problems with a panel whose tree is sound. */
	std::string ProblemsWithRest(const std::string& Members)
	{
		return ProblemsWith(R"("ParentClass": "/Script/TestPanels.TestLoginPanel", "Tree": {"Class": "VerticalBox", "Children": [
			{"Class": "EditableText", "Name": "UserName"}, {"Class": "Button", "Name": "Submit"}, {"Class": "TextBlock", "Name": "Status"}]}, )" +
			Members);
	}
};

TEST_F(FWidgetLayoutRefusalTest, NamesPanelWidgetAndClassOfMissingAndWrongBindings)
{
	EXPECT_EQ(ProblemsWith(R"("ParentClass": "/Script/TestPanels.TestLoginPanel", "Tree": {"Class": "VerticalBox", "Children": [
			{"Class": "TextBlock", "Name": "Submit"}]})"),
		"/Tree: panel TestLoginPanel needs a widget named 'UserName' of class EditableText, and the layout has none\n"
		"/Tree: panel TestLoginPanel binds the widget 'Submit' as a Button, but here it is a TextBlock\n");
}

TEST_F(FWidgetLayoutRefusalTest, SaysWhatIsWrongWithTheParentClass)
{
	EXPECT_EQ(ProblemsWith(R"("Tree": {"Class": "VerticalBox"})"), "/: a text 'ParentClass' is needed\n");
	EXPECT_EQ(ProblemsWith(R"("ParentClass": 7, "Tree": {})"), "/ParentClass: a text 'ParentClass' is needed\n");
	EXPECT_EQ(ProblemsWith(R"("ParentClass": "/Script/TestPanels.Nobody", "Tree": {})"), "/ParentClass: there is no class '/Script/TestPanels.Nobody'\n");
	EXPECT_EQ(ProblemsWith(R"("ParentClass": "/Script/TestPanels.TestListItem", "Tree": {})"), "/ParentClass: TestListItem is not a native user widget\n");
	EXPECT_EQ(ProblemsWith(R"("ParentClass": "/Script/TestPanels.TestToolPanel")"), "/: the layout has no 'Tree'\n");
}

TEST_F(FWidgetLayoutRefusalTest, SaysWhatIsWrongWithAWidget)
{
	struct FCase
	{
		const char* Widget;
		const char* Problem;
	};
	const FCase Cases[] = {
		{"7", "/Tree/Children/0: a widget is a JSON object\n"},
		{R"({"Name": "A"})", "/Tree/Children/0: a text 'Class' is needed\n"},
		{R"({"Class": "Gadget"})", "/Tree/Children/0/Class: there is no class 'Gadget'\n"},
		{R"({"Class": "PanelWidget"})", "/Tree/Children/0/Class: PanelWidget is not a widget that can be made\n"},
		{R"({"Class": "TestListItem"})", "/Tree/Children/0/Class: TestListItem is not a widget that can be made\n"},
		{R"({"Class": "/Game/Nowhere"})", "/Tree/Children/0/Class: there is no widget blueprint '/Game/Nowhere', or it could not be read\n"},
		{R"({"Class": "/Game/Bad"})", "/Tree/Children/0/Class: there is no widget blueprint '/Game/Bad', or it could not be read\n"},
		{R"({"Class": "TextBlock", "Nmae": "A"})", "/Tree/Children/0/Nmae: this member is not known here\n"},
		{R"({"Class": "TextBlock", "Name": "A.B"})", "/Tree/Children/0/Name: 'A.B' cannot be the name of a widget\n"},
		{R"({"Class": "TextBlock", "Name": "A"}, {"Class": "TextBlock", "Name": "a"})", "/Tree/Children/1/Name: another widget is named 'a'; case does not tell them apart\n"},
		{R"({"Class": "TextBlock", "Children": []})", "/Tree/Children/0/Children: a TextBlock has no children\n"},
		{R"({"Class": "Button", "Children": [{"Class": "TextBlock"}, {"Class": "TextBlock"}]})", "/Tree/Children/0/Children: a Button has one child, not 2\n"},
		{R"({"Class": "TextBlock", "Properties": {"Txet": "A"}})", "/Tree/Children/0/Properties/Txet: TextBlock has no property 'Txet'\n"},
		{R"({"Class": "TextBlock", "Properties": {"Text": null}})", "/Tree/Children/0/Properties/Text: a value is a text, a number, true, false, a list, or a choice\n"},
		{R"({"Class": "TextBlock", "Properties": {"Text": "{Nobody.Text}"}})", "/Tree/Children/0/Properties/Text: 'Nobody' is neither a parameter of the event nor a widget of the layout\n"},
		{R"({"Class": "TextBlock", "Properties": {"Text": "100 { per cent"}})", "/Tree/Children/0/Properties/Text: '100 { per cent' has a brace that begins no name\n"},
		{R"({"Class": "TextBlock", "Properties": {"Text": ["A"]}})", "/Tree/Children/0/Properties/Text: a list fits only where a list is wanted\n"},
		{R"({"Class": "TextBlock", "Properties": {"IsEnabled": "maybe"}})", "/Tree/Children/0/Properties/IsEnabled: 'maybe' is not a truth value (true or false)\n"},
		{R"({"Class": "SizeBox", "Properties": {"WidthOverride": "wide"}})", "/Tree/Children/0/Properties/WidthOverride: 'wide' is not a number\n"},
		{R"({"Class": "TextBlock", "Properties": {"Visibility": "Gone"}})",
			"/Tree/Children/0/Properties/Visibility: 'Gone' is none of Visible, Collapsed, Hidden, HitTestInvisible, SelfHitTestInvisible\n"},
		{R"({"Class": "ComboBoxString", "Properties": {"OnGenerateWidgetEvent": "Dance"}})", "/Tree/Children/0/Properties/OnGenerateWidgetEvent: panel TestToolPanel has no function 'Dance'\n"},
		{R"({"Class": "ComboBoxString", "Properties": {"OnGenerateWidgetEvent": ""}})", "/Tree/Children/0/Properties/OnGenerateWidgetEvent: panel TestToolPanel has no function ''\n"},
		{R"({"Class": "ComboBoxString", "Properties": {"OnGenerateWidgetEvent": "RemoveFromParent"}})",
			"/Tree/Children/0/Properties/OnGenerateWidgetEvent: 'RemoveFromParent' of panel TestToolPanel does not make a widget of one text (FString)\n"},
		{R"({"Class": "ComboBoxString", "Properties": {"OnGenerateWidgetEvent": "{self.Name}"}})",
			"/Tree/Children/0/Properties/OnGenerateWidgetEvent: a function is named as it is, without braces or conditions\n"},
		{R"({"Class": "ComboBoxString", "Properties": {"OnGenerateWidgetEvent": ["RemoveFromParent"]}})",
			"/Tree/Children/0/Properties/OnGenerateWidgetEvent: a function is named as it is, without braces or conditions\n"},
		{R"({"Class": "ListView", "Properties": {"EntryWidgetClass": "TextBlock"}})", "/Tree/Children/0/Properties/EntryWidgetClass: 'TextBlock' is not a class of UserWidget\n"},
	};
	for (const FCase& Case : Cases)
	{
		SCOPED_TRACE(Case.Widget);
		EXPECT_EQ(ProblemsWithWidget(Case.Widget), Case.Problem);
	}
}

TEST_F(FWidgetLayoutRefusalTest, SaysWhatIsWrongWithEventsAndCalls)
{
	struct FCase
	{
		const char* Rest;
		const char* Problem;
	};
	const FCase Cases[] = {
		{R"("Events": [])", "/Events: events are a JSON object: from the name of an event to a list of actions\n"},
		{R"("Events": {"OnNothing": []})", "/Events/OnNothing: panel TestLoginPanel has no event 'OnNothing'\n"},
		{R"("Events": {"SetRememberMe": []})", "/Events/SetRememberMe: panel TestLoginPanel has no event 'SetRememberMe'\n"},
		{R"("Events": {"Construct": {}})", "/Events/Construct: what is to be done is a JSON array of actions\n"},
		{R"("Events": {"Construct": [{"Call": "Note", "Then": []}]})", "/Events/Construct/0/Then: 'Note' returns no truth value to go by\n"},
		{R"("Events": {"Construct": [{"Call": "Submit.GetIsEnabled", "Else": [{"Call": "Dance"}]}]})", "/Events/Construct/0/Else/0/Call: TestLoginPanel has no function 'Dance'\n"},
		{R"("Events": {"Construct": [{}]})", "/Events/Construct/0: an action has a 'Set', a 'Call' or a 'CallParent'\n"},
		{R"("Events": {"Construct": [{"Set": "Status.Text"}]})", "/Events/Construct/0: 'Set' needs a 'To'\n"},
		{R"("Events": {"Construct": [{"Set": "Nobody.Text", "To": ""}]})", "/Events/Construct/0/Set: the layout has no widget 'Nobody'\n"},
		{R"("Events": {"Construct": [{"Set": "Status.Colour", "To": ""}]})", "/Events/Construct/0/Set: TextBlock has no property 'Colour'\n"},
		{R"("Events": {"Construct": [{"Set": "Status.Text", "To": "{bInProgress}"}]})",
			"/Events/Construct/0/To: 'bInProgress' is neither a parameter of the event nor a widget of the layout\n"},
		{R"("Events": {"OnVisitorChanged": [{"Set": "Status.Text", "To": "{Visitor.Nmae}"}]})",
			"/Events/OnVisitorChanged/0/To: 'TestLoginInfo' of 'Visitor.Nmae' has nothing called 'Nmae'\n"},
		{R"("Events": {"OnVisitorChanged": [{"When": {"Value": "{Coutn}", "Is": 1}, "Call": "Submit.SetIsEnabled"}]})",
			"/Events/OnVisitorChanged/0/When/Value: 'Coutn' is neither a parameter of the event nor a widget of the layout\n"},
		{R"("Events": {"Construct": [{"Call": "Dance"}]})", "/Events/Construct/0/Call: TestLoginPanel has no function 'Dance'\n"},
		{R"("Events": {"Construct": [{"Call": "/Nowhere"}]})", "/Events/Construct/0/Call: there is no class ''\n"},
		{R"("Events": {"Construct": [{"Call": "/Script/UMG.Nothing.Dance"}]})", "/Events/Construct/0/Call: there is no class '/Script/UMG.Nothing'\n"},
		{R"("Events": {"Construct": [{"Call": "/Script/UMG.TextBlock.Dance"}]})", "/Events/Construct/0/Call: TextBlock has no function 'Dance'\n"},
		{R"("Events": {"Construct": [{"Call": "/Script/UMG.TextBlock.SetText"}]})", "/Events/Construct/0/Call: 'SetText' is no static function that Blueprints can call\n"},
		{R"("Events": {"Construct": [{"Call": "Note", "With": {"Text": "A"}}]})", "/Events/Construct/0/With/Text: 'Note' has no parameter 'Text'\n"},
		{R"("Events": {"Construct": [{"Call": "Note", "With": {"InNumber": "1.5"}}]})", "/Events/Construct/0/With/InNumber: '1.5' is not a whole number\n"},
		{R"("Events": {"Construct": [{"Call": "TakeWidgets", "With": {"InWidgets": ["Nobody"]}}]})", "/Events/Construct/0/With/InWidgets/0: there is no object 'Nobody'\n"},
		{R"("Calls": {"Nobody.OnClicked": []})", "/Calls/Nobody.OnClicked: the layout has no widget 'Nobody'\n"},
		{R"("Calls": {"Submit.OnTextChanged": []})", "/Calls/Submit.OnTextChanged: Button raises no event 'OnTextChanged'\n"},
		{R"("Calls": {"Submit.OnClicked": [{"CallParent": true}]})", "/Calls/Submit.OnClicked/0: an action has a 'Set' or a 'Call'\n"},
		{R"("Extra": 1)", "/Extra: this member is not known here\n"},
	};
	for (const FCase& Case : Cases)
	{
		SCOPED_TRACE(Case.Rest);
		EXPECT_EQ(ProblemsWithRest(Case.Rest), Case.Problem);
	}
}

TEST_F(FWidgetLayoutRefusalTest, TellsAllProblemsOfOneKindOfTroubleAtOnceAndLeavesNothingBehind)
{
	EXPECT_EQ(ProblemsWithRest(R"("Events": {"OnA": [], "OnB": []}, "Calls": {"Submit.OnC": []})"),
		"/Events/OnA: panel TestLoginPanel has no event 'OnA'\n"
		"/Events/OnB: panel TestLoginPanel has no event 'OnB'\n"
		"/Calls/Submit.OnC: Button raises no event 'OnC'\n");
	WriteLayout("Bad", R"("ParentClass": "/Script/TestPanels.TestToolPanel", "Tree": {"Class": "TextBlock"})");
	EXPECT_NE(MakePanel(TEXT("Bad")), nullptr) << "put right, it loads in the same editor";
}

TEST_F(FWidgetLayoutRefusalTest, NeedsAnEditorUtilityWidgetAsTheOutermostPanel)
{
	WriteLayout("Bad", R"("ParentClass": "/Script/TestPanels.TestListEntry", "Tree": {"Class": "TextBlock"})", "/Script/Blutility.EditorUtilityWidgetBlueprint");
	EXPECT_EQ(MakePanel(TEXT("Bad")), nullptr);
	EXPECT_EQ(Problems(), "/ParentClass: the parent class of an editor utility widget has to be an EditorUtilityWidget, and TestListEntry is none\n");
}
