// Copyright Velmorant. All Rights Reserved.

#include "Editor.h"
#include "EditorUtilitySubsystem.h"
#include "EditorUtilityWidgetBlueprint.h"
#include "HostObjects.h"
#include "HostPackages.h"
#include "HostSlate.h"
#include "HostSnapshot.h"
#include "HostTabs.h"
#include "TestToolPanel.h"
#include "UiTestEditor.h"

class EditorTabs : public FUiTestEditor
{
protected:
	EditorTabs()
	{
		for (const char* Name : {"Tool", "Other"})
		{
			WriteLayout(Name, R"("ParentClass": "/Script/TestPanels.TestToolPanel",
				"Tree": {"Class": "Button", "Name": "Close", "Children": [{"Class": "TextBlock", "Properties": {"Text": "Close"}}]},
				"Calls": {"Close.OnClicked": [{"Call": "CloseMyTab"}]})",
				"/Script/Blutility.EditorUtilityWidgetBlueprint");
		}
		UTestToolPanel::NumDestructed = 0;
	}

	static UEditorUtilitySubsystem* Tabs() { return GEditor->GetEditorSubsystem<UEditorUtilitySubsystem>(); }
	static UEditorUtilityWidgetBlueprint* Blueprint(const TCHAR* Name)
	{
		return Cast<UEditorUtilityWidgetBlueprint>(HostPackages::LoadAsset(FString(TEXT("/Game/")) + Name));
	}
};

TEST_F(EditorTabs, OpensOneTabForEachBlueprintAndBringsItToTheFront)
{
	FName Id;
	UEditorUtilityWidget* Tool = Tabs()->SpawnAndRegisterTabAndGetID(Blueprint(TEXT("Tool")), Id);
	ASSERT_NE(Tool, nullptr) << Problems();
	EXPECT_EQ(Id, FName(TEXT("/Game/Tool.Tool_ActiveTab")));
	EXPECT_NE(Tabs()->SpawnAndRegisterTab(Blueprint(TEXT("Other"))), nullptr);
	EXPECT_EQ(HostTabs::Find(TEXT("")).Label, TEXT("Other"));
	EXPECT_EQ(Tabs()->SpawnAndRegisterTab(Blueprint(TEXT("Tool"))), Tool);
	EXPECT_EQ(HostTabs::GetOpen().Num(), 2);
	EXPECT_EQ(HostTabs::Find(TEXT("")).Panel, Tool);
	EXPECT_EQ(Tool->GetWorld(), GEditor->GetEditorWorldContext().World());
}

TEST_F(EditorTabs, APanelMayCloseItsOwnTab)
{
	Tabs()->SpawnAndRegisterTab(Blueprint(TEXT("Tool")));
	{
		const TSharedRef<SWidget> Content = HostTabs::Find(TEXT("Tool")).Content.ToSharedRef();
		EXPECT_EQ(Refusal(HostSnapshot::Click(Content, TEXT("Close"))), "");
	}
	EXPECT_TRUE(HostTabs::GetOpen().IsEmpty());
	EXPECT_EQ(UTestToolPanel::NumDestructed, 1);
	EXPECT_EQ(Blueprint(TEXT("Tool"))->GetCreatedWidget(), nullptr);
	HostObjects::CollectGarbage();
	EXPECT_NE(Tabs()->SpawnAndRegisterTab(Blueprint(TEXT("Tool"))), nullptr);
}

TEST_F(EditorTabs, OpensNothingWithoutABlueprintOrAUserInterface)
{
	EXPECT_EQ(Tabs()->SpawnAndRegisterTab(nullptr), nullptr);
	EXPECT_FALSE(Tabs()->CloseTabByID(FName(TEXT("Nobody"))));
	HostSlate::Stop();
	EXPECT_EQ(Tabs()->SpawnAndRegisterTab(Blueprint(TEXT("Tool"))), nullptr);
}

TEST_F(EditorTabs, PanelsAreTakenDownWithTheEditor)
{
	Tabs()->SpawnAndRegisterTab(Blueprint(TEXT("Tool")));
	Tabs()->SpawnAndRegisterTab(Blueprint(TEXT("Other")));
	Restart();
	EXPECT_EQ(UTestToolPanel::NumDestructed, 2);
	EXPECT_TRUE(HostTabs::GetOpen().IsEmpty());
}
