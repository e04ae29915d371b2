// Copyright Velmorant. All Rights Reserved.

#include "CoreMinimal.h"
#include "Editor.h"
#include "LevelVariantSets.h"
#include "ScopedTransaction.h"
#include "Support/Beliefs.h"
#include "Support/EditorState.h"
#include "Support/TestFlags.h"
#include "Support/TestPackage.h"
#include "VelmorantConfiguratorDataAsset.h"

#if WITH_DEV_AUTOMATION_TESTS

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantDirtyPackagesTest, "Velmorant.Engine.Packages.Dirty", VelmorantTests::Flags)

bool FVelmorantDirtyPackagesTest::RunTest(const FString&)
{
	const FVelmorantTestContent Content;
	UVelmorantConfiguratorDataAsset* Asset = Content.Make<UVelmorantConfiguratorDataAsset>(TEXT("Data"));
	UPackage* Package = Asset->GetPackage();
	Asset->ConfiguratorName = TEXT("Tower");
	Asset->LevelVariantSets.SetPath(TEXT("/Game/Sets.Sets"));
	TestFalse(TEXT("a raw write dirties nothing"), Package->IsDirty());
	Asset->Modify();
	TestTrue(TEXT("Modify does, also without a step of undo"), Package->IsDirty());
	Package->SetDirtyFlag(false);
	Asset->Modify(false);
	TestFalse(TEXT("unless told not to"), Package->IsDirty());
	TestTrue(TEXT("MarkPackageDirty does"), Asset->MarkPackageDirty() && Package->IsDirty());
	UObject* Transient = NewObject<ULevelVariantSets>(GetTransientPackage());
	Transient->MarkPackageDirty();
	TestFalse(TEXT("the transient package never is"), GetTransientPackage()->IsDirty());
	return true;
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantDirtyByUndoTest, "Velmorant.Engine.Packages.DirtyAfterUndo", VelmorantTests::Flags)

bool FVelmorantDirtyByUndoTest::RunTest(const FString&)
{
	const FVelmorantTestContent Content;
	const FVelmorantEditorState State;
	UVelmorantConfiguratorDataAsset* Asset = Content.Make<UVelmorantConfiguratorDataAsset>(TEXT("Data"));
	{
		const FScopedTransaction Transaction(INVTEXT("Velmorant test"));
		Asset->Modify();
		Asset->ConfiguratorName = TEXT("Tower");
	}
	GEditor->UndoTransaction();
	VelmorantTests::RecordBelief(*this, TEXT("a package dirtied by a step is dirty after its undo"), Asset->GetPackage()->IsDirty());
	Asset->GetPackage()->SetDirtyFlag(false);
	GEditor->RedoTransaction();
	VelmorantTests::RecordBelief(*this, TEXT("a clean package is dirty after a redo"), Asset->GetPackage()->IsDirty());
	return true;
}

#endif
