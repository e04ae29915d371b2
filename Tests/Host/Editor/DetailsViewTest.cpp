// Copyright Velmorant. All Rights Reserved.

#include "DetailsTestEditor.h"
#include "Modules/ModuleManager.h"
#include "PropertyEditorModule.h"

class DetailsView : public FDetailsTestEditor
{
};

TEST_F(DetailsView, ShowsOneRowPerPropertyByCategory)
{
	First->Icons.SetNum(1);
	First->Tags = {TEXT("red")};
	FHostDetailsView View(One());
	EXPECT_EQ(Snapshot(View), R"snap(search [Search Details] ""
category [Numbers]
  row Count [Count] "7" (edit)
  row Small [Small] "0" (edit)
  row Single [Single] "0.5" (edit)
  row Double [Double] "0.0" (edit)
  row Fixed [Fixed] "3" (read-only, edit)
category [Texts]
  row Text [Text] "" (edit)
  row Identifier [Identifier] "None" (edit)
  row Caption [Caption] "" (edit)
category [Look]
  row Finish [Surface] "Matt" (combo, 2 options, tip: How light comes back)
  row Size [Size] "TS Small" (combo, 2 options)
  row bVisible [Visible] (checked, checkbox)
  category [Colours]
    row Tint [Tint] "(R=1.000000,G=1.000000,B=1.000000,A=1.000000)" (edit)
      swatch "(R=1.000000,G=1.000000,B=1.000000,A=1.000000)"
category [Parts]
  row Sign [Sign]
    row Sign.Title [Title] "" (edit)
    row Sign.Icon [Icon]
      row Sign.Icon.Font [Font] "Harbor" (edit)
      row Sign.Icon.IconName [Icon Name] "None" (edit)
      row Sign.Icon.Tint [Tint] "(R=1.000000,G=0.500000,B=0.000000,A=1.000000)" (edit)
        swatch "(R=1.000000,G=0.500000,B=0.000000,A=1.000000)"
      row Sign.Icon.bUseContrast [Use Contrast] (unchecked, checkbox)
  row Icons [Icons] "1 element"
    button (tip: Add Element)
    button (tip: Remove All Elements)
    row Icons[0] [Index [ 0 ]]
      row Icons[0].Font [Font] "Harbor" (edit)
      row Icons[0].IconName [Icon Name] "None" (edit)
      row Icons[0].Tint [Tint] "(R=1.000000,G=0.500000,B=0.000000,A=1.000000)" (edit)
        swatch "(R=1.000000,G=0.500000,B=0.000000,A=1.000000)"
      row Icons[0].bUseContrast [Use Contrast] (unchecked, checkbox)
  row IconsByName [Icons By Name] "0 elements"
  row Tags [Tags] "1 element"
    row Tags[red] [red] "red" (read-only, edit)
category [Links]
  row Part [Part] "None" (edit)
  row Soft [Soft] "None" (edit)
category [TestDetails]
  row Location [Location] "(X=0.000000,Y=0.000000,Z=0.000000)" (edit)
)snap");
}

TEST_F(DetailsView, RowsTakeWhatAPersonDoes)
{
	FHostDetailsView View(One());
	const TSharedRef<SWidget> Panel = View.GetWidget();
	EXPECT_EQ(Type(View, TEXT("Count"), TEXT("12")), "");
	EXPECT_EQ(Type(View, TEXT("Caption"), TEXT("Tower")), "");
	EXPECT_EQ(Type(View, TEXT("Sign.Icon.IconName"), TEXT("anchor")), "");
	EXPECT_EQ(Refusal(HostSnapshot::Check(Panel, TEXT("Visible"), false)), "") << "by the name that shows";
	EXPECT_EQ(Refusal(HostSnapshot::Choose(Panel, TEXT("Surface"), TEXT("High Gloss"))), "");
	EXPECT_EQ(Refusal(HostSnapshot::Choose(Panel, TEXT("Size"), TEXT("TS Large"))), "");
	EXPECT_EQ(First->Count, 12);
	EXPECT_EQ(Utf8(First->Caption), "Tower");
	EXPECT_EQ(First->Sign.Icon.IconName, FName(TEXT("anchor")));
	EXPECT_FALSE(First->bVisible);
	EXPECT_EQ(First->Finish, ETestFinish::Glossy);
	EXPECT_EQ(First->Size, TS_Large);
	FString Reason;
	EXPECT_EQ(HostSnapshot::GetOptions(Panel, TEXT("Surface"), Reason), (TArray<FString>{TEXT("Matt"), TEXT("High Gloss")}));
}

TEST_F(DetailsView, BadInputLeavesTheOldValue)
{
	FHostDetailsView View(One());
	EXPECT_EQ(Type(View, TEXT("Count"), TEXT("many")), "");
	EXPECT_EQ(First->Count, 7);
	EXPECT_EQ(Read(View, TEXT("Count")), "7");
	EXPECT_EQ(Type(View, TEXT("Fixed"), TEXT("4")), "The row \"Fixed\" is read-only.");
	EXPECT_EQ(First->Fixed, 3);
	EXPECT_EQ(Type(View, TEXT("bVisible"), TEXT("no")), "The row \"bVisible\" takes no such input.");
}

TEST_F(DetailsView, ObjectsMayRefuseToBeChanged)
{
	First->bRefusesChanges = true;
	FHostDetailsView View(One());
	EXPECT_EQ(Type(View, TEXT("Count"), TEXT("12")), "The row \"Count\" is read-only.");
	EXPECT_EQ(Refusal(HostSnapshot::Check(View.GetWidget(), TEXT("bVisible"), false)), "The row \"bVisible\" is disabled.");
	EXPECT_TRUE(First->bVisible);
}

TEST_F(DetailsView, ValuesThatDifferShowAsMultiple)
{
	Second->Count = 8;
	Second->Text = TEXT("oak");
	Second->bVisible = false;
	Second->Finish = ETestFinish::Glossy;
	FHostDetailsView View(Both());
	EXPECT_EQ(Read(View, TEXT("Count")), "Multiple Values");
	EXPECT_EQ(Read(View, TEXT("Finish")), "Multiple Values");
	FString Reason;
	EXPECT_EQ(HostSnapshot::Describe(View.GetWidget(), TEXT("bVisible"), Reason)->Checked, ECheckBoxState::Undetermined);

	EXPECT_EQ(Type(View, TEXT("Text"), TEXT("Multiple Values")), "");
	EXPECT_EQ(Second->Text, TEXT("oak")) << "leaving the field as it is changes nothing";
	EXPECT_EQ(Refusal(HostSnapshot::Choose(View.GetWidget(), TEXT("Finish"), TEXT("Matt"))), "");
	EXPECT_EQ(Second->Finish, ETestFinish::Matt);
	EXPECT_EQ(Refusal(HostSnapshot::Click(View.GetWidget(), TEXT("bVisible"))), "");
	EXPECT_TRUE(Second->bVisible);
}

TEST_F(DetailsView, ShowsWhatOthersChanged)
{
	FHostDetailsView View(One());
	FHostDetailsView Other(One());
	Other.FindHandle(TEXT("Count"))->SetValue(int32(9));
	First->Finish = ETestFinish::Glossy;
	EXPECT_EQ(Read(View, TEXT("Count")), "9");
	EXPECT_EQ(Read(View, TEXT("Finish")), "High Gloss");
	First->Finish = ETestFinish::Matt;
	EXPECT_EQ(Refusal(HostSnapshot::Choose(View.GetWidget(), TEXT("Finish"), TEXT("High Gloss"))), "");
	First->Finish = ETestFinish::Matt;
	EXPECT_EQ(Refusal(HostSnapshot::Choose(View.GetWidget(), TEXT("Finish"), TEXT("High Gloss"))), "");
	EXPECT_EQ(First->Finish, ETestFinish::Glossy) << "the same pick again is one, because the value had changed";
}

TEST_F(DetailsView, RowsOfElementsComeAndGo)
{
	FHostDetailsView View(One());
	EXPECT_EQ(Read(View, TEXT("Icons")), "0 elements");
	EXPECT_EQ(Refusal(HostSnapshot::Click(View.GetWidget(), TEXT("Icons/Add Element"))), "");
	EXPECT_EQ(Refusal(HostSnapshot::Click(View.GetWidget(), TEXT("Icons/Add Element"))), "");
	EXPECT_EQ(First->Icons.Num(), 2);
	EXPECT_EQ(Type(View, TEXT("Icons[1].Font"), TEXT("Hill")), "");
	EXPECT_EQ(First->Icons[1].Font, FName(TEXT("Hill")));
	First->Icons.SetNum(1);
	EXPECT_EQ(Read(View, TEXT("Icons[1].Font")), "There is no widget \"Icons[1].Font\".");
	EXPECT_EQ(Read(View, TEXT("Icons[0].Font")), "Harbor");
	EXPECT_EQ(Refusal(HostSnapshot::Click(View.GetWidget(), TEXT("Icons/Remove All Elements"))), "");
	EXPECT_TRUE(First->Icons.IsEmpty());
}

TEST_F(DetailsView, TheSearchLeavesRowsThatHaveAllItsWords)
{
	FHostDetailsView View(One());
	View.SetFilter(TEXT("icon NAME"));
	EXPECT_EQ(Snapshot(View), R"snap(search [Search Details] "icon NAME"
category [Parts]
  row Sign [Sign]
    row Sign.Icon [Icon]
      row Sign.Icon.IconName [Icon Name] "None" (edit)
  row IconsByName [Icons By Name] "0 elements"
)snap");
	EXPECT_EQ(Refusal(HostSnapshot::Type(View.GetWidget(), TEXT("Search Details"), TEXT("surface"))), "");
	EXPECT_EQ(Read(View, TEXT("Finish")), "Matt");
	EXPECT_EQ(Read(View, TEXT("Count")), "There is no widget \"Count\".");
	EXPECT_EQ(Refusal(HostSnapshot::Click(View.GetWidget(), TEXT("Search Details/Clear"))), "");
	EXPECT_EQ(Read(View, TEXT("Count")), "7");
}

TEST_F(DetailsView, SectionsShowTheirCategories)
{
	FPropertyEditorModule& Module = FModuleManager::LoadModuleChecked<FPropertyEditorModule>("PropertyEditor");
	Module.FindOrCreateSection(TEXT("TestDetails"), TEXT("Numbers"), FText::FromString(TEXT("All numbers")))->AddCategory(TEXT("Numbers"));
	Module.FindOrCreateSection(TEXT("Object"), TEXT("Look"), FText::FromString(TEXT("Look")))->AddCategory(TEXT("Look"));
	Module.FindOrCreateSection(TEXT("Actor"), TEXT("Actors"), FText::FromString(TEXT("Actors")))->AddCategory(TEXT("Look"));
	Module.FindOrCreateSection(TEXT("Object"), TEXT("Sounds"), FText::FromString(TEXT("Sounds")))->AddCategory(TEXT("Audio"));
	FHostDetailsView View(One());
	EXPECT_EQ(Refusal(HostSnapshot::Click(View.GetWidget(), TEXT("Look"))), "") << "of a super class; not the category of that name";
	EXPECT_EQ(View.GetRowTitles(), (TArray<FString>{TEXT("Surface (Finish)"), TEXT("Size"), TEXT("Visible (bVisible)"), TEXT("Tint")}))
		<< "with the categories inside";
	View.SetSection(TEXT("Numbers"));
	EXPECT_EQ(View.GetRowTitles(), (TArray<FString>{TEXT("Count"), TEXT("Small"), TEXT("Single"), TEXT("Double"), TEXT("Fixed")}));
	EXPECT_EQ(Refusal(HostSnapshot::Click(View.GetWidget(), TEXT("Actors"))), "There is no widget \"Actors\".");
	EXPECT_EQ(Refusal(HostSnapshot::Click(View.GetWidget(), TEXT("Sounds"))), "There is no widget \"Sounds\".") << "nothing of the objects is in it";
	View.SetSection(TEXT("Actors"));
	EXPECT_TRUE(View.GetRowTitles().IsEmpty());
	EXPECT_EQ(Refusal(HostSnapshot::Click(View.GetWidget(), TEXT("All"))), "");
	EXPECT_GT(View.GetRowTitles().Num(), 20);
}

TEST_F(DetailsView, IsEmptyOnceItsObjectsAreGone)
{
	FHostDetailsView View(One());
	const TSharedRef<SWidget> Panel = View.GetWidget();
	const TWeakObjectPtr<UTestDetails> Weak(First.Get());
	First->ClearFlags(RF_Standalone);
	First.Reset();
	HostObjects::CollectGarbage();
	ASSERT_FALSE(Weak.IsValid());
	EXPECT_NE(Utf8(HostSnapshot::Take(Panel)).find("row Count [Count] \"\""), std::string::npos) << "until the next frame, rows without values";
	Tick();
	EXPECT_EQ(Utf8(HostSnapshot::Take(Panel)), "search [Search Details] \"\"\n");
	EXPECT_TRUE(View.GetObjects().IsEmpty());
	View.SetObjects({Second.Get()});
	EXPECT_EQ(Read(View, TEXT("Count")), "7");
}

TEST_F(DetailsView, OutlivesNoEditor)
{
	{
		FHostDetailsView View(One());
		First.Reset();
		Second.Reset();
		HostObjects::CollectGarbage();
	}
	Restart();
	FHostDetailsView Next({});
	Tick();
	EXPECT_EQ(Snapshot(Next), "search [Search Details] \"\"\n");
}
