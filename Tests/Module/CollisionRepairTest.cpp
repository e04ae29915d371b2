// Copyright Velmorant. All Rights Reserved.

#include "CollisionIni.h"
#include "ToolkitTest.h"
#include "VelmorantEditorUtilitiesLibrary.h"

#include <filesystem>

using CollisionIni::Channel;
using CollisionIni::Glass;
using CollisionIni::Profile;
using CollisionIni::Replace;
using CollisionIni::Section;
using CollisionIni::ToUtf16;

namespace CollisionRepairTest
{
	const std::string Repair = Profile + "\n" + Channel + "\n"; // what is inserted
}

using namespace CollisionRepairTest;

class CollisionRepair : public FToolkitTest
{
protected:
	std::string RepairFile(const std::string& Before)
	{
		WriteProjectFile(CollisionIni::File, Before);
		UVelmorantEditorUtilitiesLibrary::AddUnitVolumeCollisionProfile();
		return ReadProjectFile(CollisionIni::File);
	}
};

TEST_F(CollisionRepair, InsertsBothLinesIntoFilesOfAnyKindAndChangesNothingElse)
{
	struct FCase
	{
		const char* Behaviour;
		std::string Before;
		std::string After;
	};
	const std::string Head = "; by the sales team\n\n[/Script/Engine.RendererSettings]\nr.ReflectionMethod=1\n" + Section + "\n";
	const std::string Tail = "EditProfiles=\n\n[/Script/Other.Plugin]\n+Paths=(Path=\"C:\\\\Temp\")\n+Paths=(Path=\"C:\\\\Temp\")\n";
	const std::string Accent = "; Edificio Alcal\xE1\n"; // Latin-1, for UTF-16
	const FCase Cases[] = {
		{"one profile line", Head + Glass + "\n" + Tail, Head + Glass + "\n" + Repair + Tail},
		{"last line without line end", Head + Glass, Head + Glass + "\n" + Profile + "\n" + Channel},
		{"CRLF", Replace(Head + Glass + "\n" + Tail, "\n", "\r\n"), Replace(Head + Glass + "\n" + Repair + Tail, "\n", "\r\n")},
		{"UTF-8 with byte-order mark", "\xEF\xBB\xBF; Alcal\xC3\xA1\n" + Glass + "\n" + Tail, "\xEF\xBB\xBF; Alcal\xC3\xA1\n" + Glass + "\n" + Repair + Tail},
		{"UTF-8 without byte-order mark", "; Alcal\xC3\xA1\n" + Glass + "\n", "; Alcal\xC3\xA1\n" + Glass + "\n" + Repair},
		{"UTF-16 with CRLF", ToUtf16(Replace(Accent + Glass + "\n" + Tail, "\n", "\r\n")), ToUtf16(Replace(Accent + Glass + "\n" + Repair + Tail, "\n", "\r\n"))},
		{"no profile line", Head + Tail, Head + Tail},
		{"no profile line and no last line end", "[A]\r\nB=1", "[A]\r\nB=1"},
		{"an empty file", "", ""},
	};
	StartEditor();
	for (const FCase& Case : Cases)
	{
		SCOPED_TRACE(Case.Behaviour);
		EXPECT_EQ(RepairFile(Case.Before), Case.After);
	}
}

TEST_F(CollisionRepair, DoesNotAskTheConfigCache)
{
	StartEditor(); // a sound project: the cache knows the profile already
	EXPECT_EQ(RepairFile(Glass + "\n"), Glass + "\n" + Repair);
}

TEST_F(CollisionRepair, SavesAnEmptyFileWhenThereIsNone)
{
	StartEditor();
	std::filesystem::remove(Folder.GetNative("Project/Config/DefaultEngine.ini"));
	UVelmorantEditorUtilitiesLibrary::AddUnitVolumeCollisionProfile();
	EXPECT_TRUE(Folder.Exists("Project/Config/DefaultEngine.ini"));
	EXPECT_EQ(ReadProjectFile(CollisionIni::File), "");
}

TEST_F(CollisionRepair, IsOpenToScripts)
{
	StartEditor();
	WriteProjectFile(CollisionIni::File, Glass + "\n");
	UObject* Library = UVelmorantEditorUtilitiesLibrary::StaticClass()->GetDefaultObject();
	Library->ProcessEvent(Library->FindFunctionChecked("AddUnitVolumeCollisionProfile"), nullptr);
	EXPECT_EQ(ReadProjectFile(CollisionIni::File), Glass + "\n" + Repair);
}
