// Copyright Velmorant. All Rights Reserved.
// Assets that get another name, or go, and what refers to them.

#include "AssetRegistry/AssetRegistryModule.h"
#include "AssetTestEditor.h"
#include "Editor.h"
#include "HostEditor.h"
#include "IAssetTools.h"
#include "ObjectTools.h"
#include "ScopedTransaction.h"
#include "TestAssets.h"
#include "UObject/Package.h"

#include <filesystem>

class AssetChanges : public FAssetTestEditor
{
protected:
	AssetChanges() { HostEditor::Create(); }
	virtual ~AssetChanges() override { HostEditor::Destroy(); }

	void RestartAll()
	{
		HostEditor::Destroy();
		Restart();
		HostEditor::Create();
	}

	/** "/Game/D/User" refers to "/Game/D/Used" in every way there is; both are saved. */
	void MakePair()
	{
		UTestAsset* const Used = MakeAsset(TEXT("/Game/D/Used"));
		UTestAsset* const User = MakeAsset(TEXT("/Game/D/User"));
		User->Other = Used;
		User->Path.SetPath(Used->GetPathName());
		User->Soft = Used;
		User->Text = TEXT("/Game/D/UsedElsewhere");
		UTestPart* const Part = NewObject<UTestPart>(User, "Part");
		Part->Partner = Used->OwnPart;
		User->Parts.Add(Part);
		MakeAsset(TEXT("/Game/D/UsedElsewhere"));
		ASSERT_TRUE(HostPackages::SaveAll().Succeeded());
	}

	static bool Rename(UObject* Asset, const TCHAR* Folder, const TCHAR* Name)
	{
		return IAssetTools::Get().RenameAssets({FAssetRenameData(Asset, Folder, Name)});
	}

	static void AnswerDelete(const TCHAR* Choice)
	{
		FHostAnswer Answer;
		Answer.Choice = Choice;
		HostQuestions::Enqueue(FName("DeleteAssets"), Answer);
	}
};

TEST_F(AssetChanges, WhatRefersToARenamedAssetFollowsItInMemoryAndOnDisk)
{
	for (const bool bLoaded : {true, false})
	{
		SCOPED_TRACE(bLoaded);
		MakePair();
		if (!bLoaded)
		{
			RestartAll();
		}
		ASSERT_TRUE(Rename(LoadTestAsset(TEXT("/Game/D/Used")), TEXT("/Game/E"), TEXT("Renamed"))) << Problems();
		for (const bool bReopened : {false, true})
		{
			SCOPED_TRACE(bReopened);
			const UTestAsset* const User = LoadTestAsset(TEXT("/Game/D/User"));
			UTestAsset* const Renamed = LoadTestAsset(TEXT("/Game/E/Renamed"));
			ASSERT_NE(Renamed, nullptr);
			EXPECT_EQ(User->Other, Renamed);
			EXPECT_EQ(Utf8(User->Path.ToString()), "/Game/E/Renamed.Renamed");
			EXPECT_EQ(User->Soft.Get(), Renamed);
			EXPECT_EQ(User->Parts[0]->Partner, Renamed->OwnPart);
			EXPECT_EQ(Utf8(User->Text), "/Game/D/UsedElsewhere") << "only begins like the name";
			EXPECT_EQ(LoadTestAsset(TEXT("/Game/D/Used")), nullptr);
			EXPECT_TRUE(HostPackages::GetDirtyPackages().IsEmpty());
			RestartAll();
		}
		EXPECT_FALSE(HasContent("D/Used.uasset.json"));
		EXPECT_EQ(Problems(), "");
		std::filesystem::remove_all(Project.GetNative("Content"));
	}
}

TEST_F(AssetChanges, ARefusedRenameChangesNothing)
{
	MakePair();
	MakeAsset(TEXT("/Game/D/OnlyInMemory"));
	const std::string User = ReadContent("D/User.uasset.json");
	UTestAsset* const Used = LoadTestAsset(TEXT("/Game/D/Used"));
	for (const TCHAR* Name : {TEXT("User"), TEXT("user"), TEXT("OnlyInMemory"), TEXT(""), TEXT("a b"), TEXT("a/b"), TEXT("None")})
	{
		EXPECT_FALSE(Rename(Used, TEXT("/Game/D"), Name)) << Utf8(FString(Name));
	}
	EXPECT_FALSE(Rename(Used, TEXT("/Nowhere"), TEXT("Free")));
	EXPECT_FALSE(Rename(nullptr, TEXT("/Game/D"), TEXT("Free")));
	EXPECT_FALSE(Rename(Used->OwnPart, TEXT("/Game/D"), TEXT("Free"))) << "no asset of its own";

	// A file that refers to it and cannot be read, or not be written, would lose the asset.
	WriteContent("D/Broken.uasset.json", "{\"Class\": \"/Script/TestAssets.TestAsset\", \"Objects\": [{\"Name\": \"Broken\", \"Properties\": {\"Other\": \"/Game/D/Used.Used\", \"Count\": \"x\"}}]}");
	EXPECT_FALSE(Rename(Used, TEXT("/Game/D"), TEXT("Free")));
	EXPECT_NE(Problems().find("this refers to /Game/D/Used"), std::string::npos) << Problems();
	std::filesystem::remove(Project.GetNative("Content/D/Broken.uasset.json"));
	std::filesystem::permissions(Project.GetNative("Content/D/User.uasset.json"), std::filesystem::perms::owner_read);
	EXPECT_FALSE(Rename(Used, TEXT("/Game/D"), TEXT("Free")));

	EXPECT_EQ(Utf8(Used->GetPathName()), "/Game/D/Used.Used");
	EXPECT_TRUE(HasContent("D/Used.uasset.json"));
	EXPECT_FALSE(HasContent("D/Free.uasset.json"));
	EXPECT_EQ(ReadContent("D/User.uasset.json"), User);
}

TEST_F(AssetChanges, AnAssetWithoutAFileIsRenamedInMemoryAlone)
{
	UTestAsset* const Fresh = MakeAsset(TEXT("/Game/D/Fresh"));
	Fresh->GetPackage()->MarkPackageDirty();
	ASSERT_TRUE(Rename(Fresh, TEXT("/Game/D"), TEXT("Other")));
	EXPECT_TRUE(Fresh->GetPackage()->IsDirty());
	EXPECT_FALSE(HasContent("D/Other.uasset.json"));
	TArray<FAssetData> Found;
	FAssetRegistryModule::GetRegistry().GetAssetsByPath(FName("/Game/D"), Found);
	ASSERT_EQ(Found.Num(), 1);
	EXPECT_EQ(Utf8(Found[0].PackageName), "/Game/D/Other");
	EXPECT_NE(MakeAsset(TEXT("/Game/D/Fresh")), Fresh) << "the name is free again";
}

TEST_F(AssetChanges, DeletionNamesWhatStillRefersAndAsksFirst)
{
	MakePair();
	RestartAll();
	UTestAsset* const Used = LoadTestAsset(TEXT("/Game/D/Used"));
	const TArray<FAssetData> Doomed = {FAssetData(Used)};

	EXPECT_EQ(ObjectTools::DeleteAssets(Doomed), 0) << "nobody said so";
	const FHostQuestion Question = HostQuestions::GetAsked().Last().Question;
	EXPECT_EQ(Utf8(Question.Choices[0]), "Force Delete");
	EXPECT_TRUE(Question.Message.ToString().Contains(TEXT("/Game/D/User"))) << Utf8(Question.Message);
	EXPECT_EQ(LoadTestAsset(TEXT("/Game/D/Used")), Used);
	EXPECT_TRUE(HasContent("D/Used.uasset.json"));

	UTestAsset* const User = LoadTestAsset(TEXT("/Game/D/User"));
	{
		const FScopedTransaction Transaction(FText::FromString(TEXT("Count")));
		User->Modify();
		User->Count = 1;
	}
	AnswerDelete(TEXT("Force Delete"));
	EXPECT_EQ(ObjectTools::DeleteAssets(Doomed), 1);
	EXPECT_FALSE(HasContent("D/Used.uasset.json"));
	EXPECT_EQ(LoadTestAsset(TEXT("/Game/D/Used")), nullptr);
	EXPECT_EQ(User->Other, nullptr);
	EXPECT_EQ(User->Parts[0]->Partner, nullptr);
	EXPECT_TRUE(User->GetPackage()->IsDirty());
	EXPECT_FALSE(GEditor->UndoTransaction()) << "undo could bring references to it back";
	TArray<FAssetData> Left;
	FAssetRegistryModule::GetRegistry().GetAssetsByPath(FName("/Game/D"), Left);
	EXPECT_EQ(Left.Num(), 2);

	AnswerDelete(TEXT("Delete"));
	EXPECT_EQ(ObjectTools::DeleteAssets(Left), 2) << "both together: nothing else refers to them";
	EXPECT_EQ(Utf8(HostQuestions::GetAsked().Last().Question.Choices[0]), "Delete");
	EXPECT_TRUE(HostPackages::GetDirtyPackages().IsEmpty());
}

TEST_F(AssetChanges, AFileThatCannotBeDeletedKeepsItsAsset)
{
	MakePair();
	std::filesystem::permissions(Project.GetNative("Content/D/Used.uasset.json"), std::filesystem::perms::owner_read);
	UTestAsset* const Used = LoadTestAsset(TEXT("/Game/D/Used"));
	EXPECT_EQ(ObjectTools::DeleteAssets({FAssetData(Used)}, false), 0);
	EXPECT_EQ(LoadTestAsset(TEXT("/Game/D/Used")), Used);
	EXPECT_EQ(LoadTestAsset(TEXT("/Game/D/User"))->Other, Used);
	EXPECT_NE(Problems(), "");
}
