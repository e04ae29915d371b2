// Copyright Velmorant. All Rights Reserved.

#include "Editor.h"
#include "HostEditor.h"
#include "HostPackages.h"
#include "HostProblems.h"
#include "LevelTestEditor.h"
#include "Selection.h"
#include "TestActors.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"
#include "UnrealEdMisc.h"

class EditorBoot : public FLevelTestEditor
{
protected:
	EditorBoot()
	{
		Listen();
	}

	/** Writes what happens into Events. */
	void Listen()
	{
		FEditorDelegates::OnMapLoad.AddLambda([this](const FString& Filename, FCanLoadMap& CanLoad) {
			Events.push_back("load " + Utf8(Filename));
			if (bForbid)
			{
				CanLoad.SetFalse();
			}
		});
		FEditorDelegates::OnEditorInitialized.AddLambda([this](double Seconds) { Events.push_back("initialised " + std::to_string(int(Seconds))); });
	}

	/** Opens a new map, puts actors into it and saves it. */
	void MakeMap(const TCHAR* PackageName, std::initializer_list<const TCHAR*> Labels)
	{
		ASSERT_EQ(HostEditor::OpenMap(TEXT("")), HostEditor::EOpenMap::Opened);
		for (const TCHAR* Label : Labels)
		{
			GetWorld().SpawnActor<ATestActor>()->SetActorLabel(Label);
		}
		ASSERT_TRUE(HostEditor::SaveOpenMapAs(PackageName));
	}

	std::vector<std::string> Events;
	bool bForbid = false;
};

TEST_F(EditorBoot, AnnouncesTheMapBeforeItIsInitialised)
{
	EXPECT_EQ(HostEditor::OpenMap(TEXT("")), HostEditor::EOpenMap::Opened);
	HostEditor::FinishInitialization(2.0);
	EXPECT_EQ(Events, (std::vector<std::string>{"load /Temp/Untitled_1.umap", "initialised 2"}));
}

TEST_F(EditorBoot, IsInitialisedOnceHoweverOftenItIsSaid)
{
	HostEditor::FinishInitialization(1.0);
	HostEditor::FinishInitialization(1.0);
	EXPECT_EQ(Events.size(), 1u);
}

TEST_F(EditorBoot, AHandlerAddedWhileTheMapLoadsIsInTimeAndALaterOneIsNot)
{
	int32 Calls = 0;
	FEditorDelegates::OnMapLoad.AddLambda([&Calls](const FString&, FCanLoadMap&) {
		FEditorDelegates::OnEditorInitialized.AddLambda([&Calls](double) { ++Calls; });
	});
	HostEditor::OpenMap(TEXT(""));
	HostEditor::OpenMap(TEXT(""));
	HostEditor::FinishInitialization(0.0);
	EXPECT_EQ(Calls, 2) << "one for each map";
	HostEditor::OpenMap(TEXT(""));
	EXPECT_EQ(Calls, 2);
}

TEST_F(EditorBoot, TheNextEditorStartsWithoutHandlersOfTheLast)
{
	Restart();
	HostEditor::OpenMap(TEXT(""));
	HostEditor::FinishInitialization(0.0);
	EXPECT_TRUE(Events.empty());
	EXPECT_EQ(Utf8(HostEditor::GetOpenMap()), "/Temp/Untitled_1");
}

TEST_F(EditorBoot, SavesALevelAndLoadsItBack)
{
	HostEditor::OpenMap(TEXT(""));
	ATestActor* Tower = GetWorld().SpawnActor<ATestActor>(FVector(1, 2, 3), FRotator(0, 45, 0));
	Tower->SetActorLabel(TEXT("Tower Ñ"));
	Tower->Storey = 12;
	GetWorld().SpawnActor<ATestActor>()->Destroy();
	GetWorld().SpawnActor<ATestSpecialActor>()->Neighbour = Tower;
	EXPECT_FALSE(HostEditor::CanSaveOpenMap());
	EXPECT_FALSE(HostEditor::SaveOpenMap());
	ASSERT_TRUE(HostEditor::SaveOpenMapAs(TEXT("/Game/Maps/Harbor")));
	EXPECT_FALSE(GetWorld().GetPackage()->IsDirty());

	Restart();
	ASSERT_EQ(HostEditor::OpenMap(TEXT("/Game/Maps/Harbor.Harbor")), HostEditor::EOpenMap::Opened);
	EXPECT_EQ(Utf8(HostEditor::GetOpenMap()), "/Game/Maps/Harbor");
	EXPECT_EQ(GetLabels(), (std::vector<std::string>{"Tower Ñ", "TestSpecialActor"}));
	ASSERT_EQ(GetWorld().GetCurrentLevel()->Actors.Num(), 2) << "no slot for what was destroyed";
	const ATestActor* Loaded = Cast<ATestActor>(GetWorld().GetCurrentLevel()->Actors[0]);
	ASSERT_NE(Loaded, nullptr);
	EXPECT_EQ(Loaded->GetActorLocation(), FVector(1, 2, 3));
	EXPECT_EQ(Loaded->GetActorRotation(), FRotator(0, 45, 0));
	EXPECT_EQ(Loaded->Storey, 12);
	EXPECT_EQ(Cast<ATestActor>(GetWorld().GetCurrentLevel()->Actors[1])->Neighbour, Loaded);
	EXPECT_FALSE(GetWorld().GetPackage()->IsDirty());
	EXPECT_EQ(GetWorld().WorldType, EWorldType::Editor);
}

TEST_F(EditorBoot, OpeningTheOpenLevelAgainDropsItsChanges)
{
	MakeMap(TEXT("/Game/Harbor"), {TEXT("Saved")});
	GetWorld().SpawnActor<ATestActor>()->SetActorLabel(TEXT("Not saved"));
	GEditor->SelectActor(GetWorld().GetCurrentLevel()->Actors[0], true, true);
	const TWeakObjectPtr<UWorld> Old = &GetWorld();
	ASSERT_EQ(HostEditor::OpenMap(TEXT("/Game/Harbor")), HostEditor::EOpenMap::Opened);
	EXPECT_EQ(GetLabels(), std::vector<std::string>{"Saved"});
	EXPECT_FALSE(Old.IsValid());
	EXPECT_EQ(GEditor->GetSelectedActorCount(), 0);
}

TEST_F(EditorBoot, AForbiddenOrMissingMapLeavesTheOpenOne)
{
	MakeMap(TEXT("/Game/Harbor"), {TEXT("A")});
	UWorld* Open = &GetWorld();
	EXPECT_EQ(HostEditor::OpenMap(TEXT("/Game/Nowhere")), HostEditor::EOpenMap::Failed);
	EXPECT_EQ(&GetWorld(), Open);
	ASSERT_EQ(HostProblems::GetAll().Num(), 1);
	EXPECT_NE(Utf8(HostProblems::GetAll()[0].File).find("Nowhere"), std::string::npos);

	bForbid = true;
	EXPECT_EQ(HostEditor::OpenMap(TEXT("")), HostEditor::EOpenMap::Forbidden);
	EXPECT_EQ(&GetWorld(), Open);
}

TEST_F(EditorBoot, SavingUnderATakenNameIsRefused)
{
	MakeMap(TEXT("/Game/Harbor"), {TEXT("A")});
	HostEditor::OpenMap(TEXT(""));
	EXPECT_FALSE(HostEditor::SaveOpenMapAs(TEXT("/Game/Harbor")));
	EXPECT_FALSE(HostEditor::SaveOpenMapAs(TEXT("/Nowhere/Harbor")));
	EXPECT_EQ(HostProblems::GetAll().Num(), 2);
	ASSERT_EQ(HostEditor::OpenMap(TEXT("/Game/Harbor")), HostEditor::EOpenMap::Opened);
	EXPECT_EQ(GetLabels(), std::vector<std::string>{"A"});
}

TEST_F(EditorBoot, RestartRequestsTellWhatIsNotSaved)
{
	MakeMap(TEXT("/Game/Harbor"), {TEXT("A")});
	FUnrealEdMisc::Get().RestartEditor(false);
	GetWorld().SpawnActor<ATestActor>();
	FUnrealEdMisc::Get().RestartEditor(true, FString(TEXT("-log")));
	const TArray<HostEditor::FRestartRequest>& Requests = HostEditor::GetRestartRequests();
	ASSERT_EQ(Requests.Num(), 2);
	EXPECT_FALSE(Requests[0].bWarn);
	EXPECT_EQ(Requests[0].UnsavedPackages.Num(), 0);
	EXPECT_TRUE(Requests[1].bWarn);
	EXPECT_EQ(Utf8(Requests[1].NewCommandLine.GetValue()), "-log");
	ASSERT_EQ(Requests[1].UnsavedPackages.Num(), 1);
	EXPECT_EQ(Utf8(Requests[1].UnsavedPackages[0]), "/Game/Harbor");
}

TEST_F(EditorBoot, SelectionForgetsWhatWasDestroyedAndTellsOfChanges)
{
	AActor* A = GetWorld().SpawnActor<ATestActor>();
	AActor* B = GetWorld().SpawnActor<ATestSpecialActor>();
	int32 Changes = 0;
	USelection::SelectionChangedEvent.AddLambda([&Changes](UObject*) { ++Changes; });
	GEditor->SelectActor(A, true, true);
	GEditor->SelectActor(A, true, true);
	EXPECT_EQ(Changes, 1) << "selected already";
	GEditor->SelectActor(B, true, false);
	EXPECT_EQ(Changes, 1);
	GEditor->NoteSelectionChange();
	EXPECT_EQ(Changes, 2);
	EXPECT_EQ(GEditor->GetSelectedActors()->GetTop<ATestSpecialActor>(), B);
	EXPECT_EQ(GEditor->GetSelectedActors()->GetSelectedObject(0), A);
	A->Destroy();
	EXPECT_EQ(GEditor->GetSelectedActorCount(), 1);
	HostEditor::SelectSurfaces(3);
	GEditor->SelectNone(false, false);
	EXPECT_EQ(HostEditor::GetNumSelectedSurfaces(), 3);
	GEditor->SelectNone(false, true);
	EXPECT_EQ(HostEditor::GetNumSelectedSurfaces(), 0);
	EXPECT_EQ(Changes, 2);
	EXPECT_EQ(GEditor->GetSelectedActorCount(), 0);
	EXPECT_FALSE(B->IsSelected());
	GEditor->SelectNone(true, true);
	EXPECT_EQ(Changes, 3);
}

TEST_F(EditorBoot, CamerasLookAtTheActor)
{
	AActor* Actor = GetWorld().SpawnActor<ATestActor>(FVector(0, 0, 500), FRotator::ZeroRotator);
	Actor->SetActorLabel(TEXT("Sets"));
	GEditor->MoveViewportCamerasToActor(*Actor, true);
	for (const HostEditor::FViewport& Viewport : HostEditor::GetViewports())
	{
		SCOPED_TRACE(Utf8(Viewport.Name));
		EXPECT_EQ(Viewport.NumMoves, Viewport.bActive ? 1 : 0);
	}
	GEditor->MoveViewportCamerasToActor(*Actor, false);
	for (const HostEditor::FViewport& Viewport : HostEditor::GetViewports())
	{
		SCOPED_TRACE(Utf8(Viewport.Name));
		EXPECT_EQ(Viewport.NumMoves, Viewport.bActive ? 2 : 1);
		EXPECT_EQ(Viewport.Target, FVector(0, 0, 500));
		ASSERT_EQ(Viewport.FocusedActors.Num(), 1);
		EXPECT_EQ(Utf8(Viewport.FocusedActors[0]), "Sets");
		EXPECT_NE(Viewport.CameraLocation, Viewport.Target);
	}
}
