// Copyright Velmorant. All Rights Reserved.

#include "CollisionIni.h"
#include "ProjectOnDisk.h"

/** A standard output that takes nothing. */
class LostOutput : public FProjectOnDisk
{
};

TEST_F(LostOutput, IsNoSuccess)
{
	using namespace CollisionIni;
	MakeProject();
	WriteIni(SectionLine + ProfileLine + ChannelLine);
	Folder.Write("test.velscript", "wait 0\nprint log\ncall VelmorantEditorUtilitiesLibrary.GetVelmorantProVersion\n");
	const std::vector<std::string> Commands[] = {{"check", GetProject()}, {"check", GetProject(), "--json"}, {"run", GetProject(), GetScript()}, {"run", GetProject(), GetScript(), "--json"}, {"--help"}, {"check", "--json"}};
	for (const FProgramRun::EOutput Output : {FProgramRun::EOutput::FullDisk, FProgramRun::EOutput::ClosedPipe})
	{
		for (const std::vector<std::string>& Arguments : Commands)
		{
			SCOPED_TRACE(testing::PrintToString(Arguments));
			const FProgramResult Result = FProgramRun::Run(Arguments, GetEnvironment(), Output);
			EXPECT_EQ(Result.ExitStatus, 3) << Result.Errors;
			EXPECT_NE(Result.Errors.find("velmorant: the output could not be written: "), std::string::npos) << Result.Errors;
		}
	}
}

TEST_F(LostOutput, EndsAScriptBeforeItsNextStep)
{
	CopySample();
	Folder.Write("test.velscript", "wait 0\nplace \"Sun Sky Velmorant\"\nsave\n");
	const std::string Level = "Project/Content/Maps/HarborTower.umap.json";
	const std::string Before = Folder.Read(Level);
	const FProgramResult Result = FProgramRun::Run({"run", GetProject(), GetScript()}, GetEnvironment(), FProgramRun::EOutput::FullDisk);
	EXPECT_EQ(Result.ExitStatus, 3);
	EXPECT_NE(Result.Errors.find(GetScript() + "(2): error: the output cannot be written; this step and those after it were not done"), std::string::npos) << Result.Errors;
	EXPECT_EQ(Folder.Read(Level), Before);
}
