// Copyright Velmorant. All Rights Reserved.

#include "EditorFilesFixture.h"
#include "HostFiles.h"
#include "HostLeftovers.h"

#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

namespace LeftoversTest
{
	int Reached[2]; // a writer in another process says that its file is complete,
	int GoOn[2]; // and waits until it may put it into its place

	void WaitBeforeRename(const char*, const char*)
	{
		char Letter = '.';
		if (write(Reached[1], &Letter, 1) != 1 || read(GoOn[0], &Letter, 1) != 1)
		{
			_exit(1);
		}
	}

	class Leftovers : public FEditorFilesTest
	{
	protected:
		~Leftovers() override { HostFiles::SetBeforeRename(nullptr); }

		static inline const std::string Leftover = ".velmorant-1-2.tmp";
	};
}

using namespace LeftoversTest;

TEST_F(Leftovers, GoBelowAFolderAndNothingElseDoes)
{
	for (const std::string Directory : {"Top/", "Top/Deep/Down/", "Elsewhere/"})
	{
		Folder.Write(Directory + Leftover, "left over");
		Folder.Write(Directory + "File", "a file");
	}
	std::filesystem::create_directories(Folder.GetNative("Top/.velmorant-1-3.tmp"));
	std::filesystem::create_symlink(Folder.GetNative("Elsewhere/File"), Folder.GetNative("Top/.velmorant-1-4.tmp"));
	std::filesystem::create_directory_symlink(Folder.GetNative("Elsewhere"), Folder.GetNative("Top/Linked"));
	ASSERT_EQ(mkfifo(Folder.GetNative("Top/.velmorant-1-5.tmp").c_str(), 0600), 0);
	Folder.Write("Top/.velmorant-1-6.tmp", "somebody else's");
	const bool bElse = chown(Folder.GetNative("Top/.velmorant-1-6.tmp").c_str(), 65534, 65534) == 0; // root can

	HostLeftovers::RemoveBelow(Folder.Get("Top"));
	HostLeftovers::RemoveBelow(Folder.Get("NoSuchFolder"));
	EXPECT_FALSE(Folder.Exists("Top/" + Leftover));
	EXPECT_FALSE(Folder.Exists("Top/Deep/Down/" + Leftover));
	EXPECT_TRUE(Folder.Exists("Elsewhere/" + Leftover));
	EXPECT_EQ(Folder.Count("Top/Deep/Down"), 1u);
	EXPECT_EQ(Folder.Count("Top"), bElse ? 7u : 6u);
	EXPECT_EQ(GetProblems(), "");
}

TEST_F(Leftovers, AreNotTheFilesOfWritersWhoStillLive)
{
	ASSERT_EQ(pipe(Reached), 0);
	ASSERT_EQ(pipe(GoOn), 0);
	const pid_t Writer = Fork([this] {
		HostFiles::SetBeforeRename(WaitBeforeRename);
		_exit(HostFiles::Write(Folder.Get("sub/File"), "new") ? 0 : 1);
	});
	char Letter = '.';
	ASSERT_EQ(read(Reached[0], &Letter, 1), 1);
	HostLeftovers::RemoveBelow(Folder.Get());
	EXPECT_EQ(Folder.Count("sub"), 1u) << "what is being written was taken away";
	ASSERT_EQ(write(GoOn[1], &Letter, 1), 1);
	EXPECT_EQ(Wait(Writer), 0);
	EXPECT_EQ(Folder.Read("sub/File"), "new");
	for (const int File : {Reached[0], Reached[1], GoOn[0], GoOn[1]})
	{
		close(File);
	}
}

TEST_F(Leftovers, GoWithThePrivateFileThatIsDeleted)
{
	Folder.Write("settings/" + Leftover, "a password");
	Folder.Write("Config/" + Leftover, "no secret");
	EXPECT_TRUE(HostFiles::Delete(Folder.Get("settings/User.json"))) << "it was never there";
	EXPECT_FALSE(Folder.Exists("settings/" + Leftover));
	EXPECT_TRUE(HostFiles::Delete(Folder.Get("Config/User.json")));
	EXPECT_TRUE(Folder.Exists("Config/" + Leftover));
}

TEST_F(Leftovers, StayWhereTheDiskIsNotToBeTouched)
{
	Folder.Write("settings/" + Leftover, "a password");
	HostFiles::BeginOverlay();
	HostLeftovers::RemoveBelow(Folder.Get());
	EXPECT_TRUE(HostFiles::Delete(Folder.Get("settings/User.json")));
	EXPECT_TRUE(Folder.Exists("settings/" + Leftover));
}
