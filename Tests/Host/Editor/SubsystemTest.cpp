// Copyright Velmorant. All Rights Reserved.

#include "Editor.h"
#include "HostObjects.h"
#include "LevelTestEditor.h"
#include "TestActors.h"

#include <algorithm>

class Subsystems : public FLevelTestEditor
{
protected:
	Subsystems()
	{
		FTestSubsystemDiary::Get().Reset();
		Restart();
	}

	static std::vector<std::string> GetDiary()
	{
		std::vector<std::string> Entries;
		for (const FString& Entry : FTestSubsystemDiary::Get())
		{
			Entries.push_back(Utf8(Entry));
		}
		return Entries;
	}
};

TEST_F(Subsystems, StopInTheReverseOrderOfTheirStart)
{
	FTestSubsystemDiary::Get().Reset();
	Restart();
	EXPECT_EQ(GetDiary(), (std::vector<std::string>{"Needed down", "First down", "First up", "Needed up"}));
}

TEST_F(Subsystems, OneOfEachWantedClassIsThereAndOutlivesCollections)
{
	const UTestNeededSubsystem* Needed = GEngine->GetEngineSubsystem<UTestNeededSubsystem>();
	ASSERT_NE(Needed, nullptr);
	EXPECT_EQ(GEngine->GetEngineSubsystem<UTestUnwantedSubsystem>(), nullptr);
	const TWeakObjectPtr<const UTestNeededSubsystem> Weak = Needed;
	HostObjects::CollectGarbage();
	EXPECT_TRUE(Weak.IsValid());
	EXPECT_EQ(GEngine->GetEngineSubsystem<UTestNeededSubsystem>(), Needed);
}

TEST_F(Subsystems, EachEditorHasItsOwn)
{
	const TWeakObjectPtr<UTestEditorSubsystem> Old = GEditor->GetEditorSubsystem<UTestEditorSubsystem>();
	ASSERT_TRUE(Old.IsValid());
	Restart();
	EXPECT_FALSE(Old.IsValid());
	EXPECT_NE(GEditor->GetEditorSubsystem<UTestEditorSubsystem>(), nullptr);
}
