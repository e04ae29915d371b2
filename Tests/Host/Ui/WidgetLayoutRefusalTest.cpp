// Copyright Velmorant. All Rights Reserved.

#include "UiTestEditor.h"

/** Layouts that are not sound. */
class WidgetLayoutRefusal : public FUiTestEditor
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

TEST_F(WidgetLayoutRefusal, NamesPanelWidgetAndClassOfMissingAndWrongBindings)
{
	EXPECT_EQ(ProblemsWith(R"("ParentClass": "/Script/TestPanels.TestLoginPanel", "Tree": {"Class": "VerticalBox", "Children": [
			{"Class": "TextBlock", "Name": "Submit"}]})"),
		"/Tree: panel TestLoginPanel needs a widget named 'UserName' of class EditableText, and the layout has none\n"
		"/Tree: panel TestLoginPanel binds the widget 'Submit' as a Button, but here it is a TextBlock\n");
}

TEST_F(WidgetLayoutRefusal, SaysWhatIsWrongWithTheParentClass)
{
	EXPECT_EQ(ProblemsWith(R"("Tree": {"Class": "VerticalBox"})"), "/: a text 'ParentClass' is needed\n");
	EXPECT_EQ(ProblemsWith(R"("ParentClass": 7, "Tree": {})"), "/ParentClass: a text 'ParentClass' is needed\n");
	EXPECT_EQ(ProblemsWith(R"("ParentClass": "/Script/TestPanels.Nobody", "Tree": {})"), "/ParentClass: there is no class '/Script/TestPanels.Nobody'\n");
	EXPECT_EQ(ProblemsWith(R"("ParentClass": "/Script/TestPanels.TestListItem", "Tree": {})"), "/ParentClass: TestListItem is not a native user widget\n");
	EXPECT_EQ(ProblemsWith(R"("ParentClass": "/Script/TestPanels.TestToolPanel")"), "/: the layout has no 'Tree'\n");
}

TEST_F(WidgetLayoutRefusal, SaysWhatIsWrongWithAWidget)
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
		{R"({"Class": "SizeBox", "Properties": {"MinDesiredHeight": "high"}})", "/Tree/Children/0/Properties/MinDesiredHeight: 'high' is not a number\n"},
		{R"({"Class": "TextBlock", "Properties": {"Visibility": "Gone"}})",
			"/Tree/Children/0/Properties/Visibility: 'Gone' is none of Visible, Collapsed, Hidden, HitTestInvisible, SelfHitTestInvisible\n"},
		{R"({"Class": "ComboBoxString", "Properties": {"OnGenerateWidgetEvent": "Dance"}})", "/Tree/Children/0/Properties/OnGenerateWidgetEvent: panel TestToolPanel has no function 'Dance'\n"},
		{R"({"Class": "ComboBoxString", "Properties": {"OnGenerateWidgetEvent": ""}})", "/Tree/Children/0/Properties/OnGenerateWidgetEvent: panel TestToolPanel has no function ''\n"},
		{R"({"Class": "ComboBoxString", "Properties": {"OnGenerateWidgetEvent": "RemoveFromParent"}})",
			"/Tree/Children/0/Properties/OnGenerateWidgetEvent: 'RemoveFromParent' of panel TestToolPanel does not make a widget of one text (FString)\n"},
		{R"({"Class": "ComboBoxString", "Properties": {"OnGenerateWidgetEvent": "MakeSecretWidget"}})",
			"/Tree/Children/0/Properties/OnGenerateWidgetEvent: Blueprints cannot call 'MakeSecretWidget' of panel TestToolPanel\n"},
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

TEST_F(WidgetLayoutRefusal, SaysWhatIsWrongWithEventsAndCalls)
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
		{R"("Events": {"Construct": [{"Call": "OnLoginInProcess", "With": {"bInProgress": true}}]})", "/Events/Construct/0/Call: Blueprints cannot call 'OnLoginInProcess' of TestLoginPanel\n"},
		{R"("Events": {"Construct": [{"Call": "ReceivedSubmit"}]})", "/Events/Construct/0/Call: Blueprints cannot call 'ReceivedSubmit' of TestLoginPanel\n"},
		{R"("Events": {"Construct": [{"Set": "Mood", "To": "Busy"}]})", "/Events/Construct/0/Set: Blueprints cannot set 'Mood' of TestLoginPanel\n"},
		{R"("Events": {"Construct": [{"Set": "Status.Text", "To": "{self.NumVisits}"}]})", "/Events/Construct/0/To: Blueprints cannot read 'NumVisits' of TestLoginPanel\n"},
		{R"("Events": {"Construct": [{"Set": "Status.Text", "To": "{self.Secret}"}]})", "/Events/Construct/0/To: Blueprints cannot read 'Secret' of TestLoginPanel\n"},
		{R"("Properties": {"NumVisits": 7})", "/Properties/NumVisits: 'NumVisits' of TestLoginPanel cannot be set in a layout\n"},
		{R"("Calls": {"self.OnVisit": []})", "/Calls/self.OnVisit: Blueprints cannot listen to 'OnVisit' of TestLoginPanel\n"},
		{R"("Calls": {"Nobody.OnClicked": []})", "/Calls/Nobody.OnClicked: the layout has no widget 'Nobody'\n"},
		{R"("Calls": {"Submit.OnTextChanged": []})", "/Calls/Submit.OnTextChanged: Button raises no event 'OnTextChanged'\n"},
		{R"("Calls": {"Submit.OnClicked": [{"CallParent": true}]})", "/Calls/Submit.OnClicked/0: an action has a 'Set' or a 'Call'\n"},
		{R"("Extra": 1)", "/Extra: this member is not known here\n"},
		{R"("Functions": [])", "/Functions: functions are a JSON object: from a name to a list of actions\n"},
		{R"("Functions": {"Note": []})", "/Functions/Note: panel TestLoginPanel has a 'Note' of its own\n"},
		{R"("Functions": {"A/B": []})", "/Functions/A~1B: 'A/B' cannot be the name of a function\n"},
		{R"("Functions": {"Greet": [{"Set": "Status.Text", "To": "{Count}"}]})", "/Functions/Greet/0/To: 'Count' is neither a parameter of the event nor a widget of the layout\n"},
		{R"("Functions": {"Greet": [{"Call": "Dance"}]})", "/Functions/Greet/0/Call: TestLoginPanel has no function 'Dance'\n"},
		{R"("Objects": [])", "/Objects: objects are a JSON object: from a name to the value that leads to the object\n"},
		{R"("Objects": {"status": "{self}"})", "/Objects/status: a widget is named 'status'; case does not tell them apart\n"},
		{R"("Objects": {"A.B": "{self}"})", "/Objects/A.B: 'A.B' cannot be the name of an object\n"},
		{R"("Objects": {"Book": "pier"})", "/Objects/Book: this leads to no object\n"},
		{R"("Objects": {"Book": "{Status.Text}"})", "/Objects/Book: this leads to no object\n"},
		{R"("Objects": {"Book": {"ResultOf": "GetGreeting"}})", "/Objects/Book: this leads to no object\n"},
		{R"("Objects": {"Copy": "{Book.Copy}", "Book": {"ResultOf": "/Script/TestPanels.TestVisitorBook.GetBook"}})",
			"/Objects/Copy: 'Book' is neither a parameter of the event nor a widget of the layout\n"},
		{R"("Objects": {"Book": {"ResultOf": "/Script/TestPanels.TestVisitorBook.GetBook"}}, "Calls": {"Book.OnClicked": []})",
			"/Calls/Book.OnClicked: TestVisitorBook raises no event 'OnClicked'\n"},
		{R"("Events": {"Construct": [{"Set": "Status.Text", "To": {"ResultOf": "Note"}}]})", "/Events/Construct/0/To/ResultOf: 'Note' returns nothing\n"},
		{R"("Events": {"Construct": [{"Set": "Status.Text", "To": {"ResultOf": "Dance"}}]})", "/Events/Construct/0/To/ResultOf: TestLoginPanel has no function 'Dance'\n"},
		{R"("Events": {"Construct": [{"Set": "Status.Text", "To": {"ResultOf": "/Script/TestPanels.TestVisitorBook.MakeVisitor", "Member": "Nmae"}}]})",
			"/Events/Construct/0/To: 'TestLoginInfo' of 'MakeVisitor.Nmae' has nothing called 'Nmae'\n"},
		{R"("Events": {"Construct": [{"Set": "Status.Text", "To": {"ResultOf": "/Script/TestPanels.TestVisitorBook.MakeVisitor", "With": {"Visits": "many"}}}]})",
			"/Events/Construct/0/To/With/Visits: 'many' is not a whole number\n"},
		{R"("Properties": {"ToolTipText": {"ResultOf": "GetGreeting"}})", "/Properties/ToolTipText: what a function returns can be used in actions and in 'Objects' only\n"},
	};
	for (const FCase& Case : Cases)
	{
		SCOPED_TRACE(Case.Rest);
		EXPECT_EQ(ProblemsWithRest(Case.Rest), Case.Problem);
	}
}

TEST_F(WidgetLayoutRefusal, TellsAllProblemsOfOneKindOfTroubleAtOnceAndLeavesNothingBehind)
{
	EXPECT_EQ(ProblemsWithRest(R"("Events": {"OnA": [], "OnB": []}, "Calls": {"Submit.OnC": []})"),
		"/Events/OnA: panel TestLoginPanel has no event 'OnA'\n"
		"/Events/OnB: panel TestLoginPanel has no event 'OnB'\n"
		"/Calls/Submit.OnC: Button raises no event 'OnC'\n");
	WriteLayout("Bad", R"("ParentClass": "/Script/TestPanels.TestToolPanel", "Tree": {"Class": "TextBlock"})");
	EXPECT_NE(MakePanel(TEXT("Bad")), nullptr) << "put right, it loads in the same editor";
}

TEST_F(WidgetLayoutRefusal, NeedsAnEditorUtilityWidgetAsTheOutermostPanel)
{
	WriteLayout("Bad", R"("ParentClass": "/Script/TestPanels.TestListEntry", "Tree": {"Class": "TextBlock"})", "/Script/Blutility.EditorUtilityWidgetBlueprint");
	EXPECT_EQ(MakePanel(TEXT("Bad")), nullptr);
	EXPECT_EQ(Problems(), "/ParentClass: the parent class of an editor utility widget has to be an EditorUtilityWidget, and TestListEntry is none\n");
}
