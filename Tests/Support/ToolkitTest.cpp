// Copyright Velmorant. All Rights Reserved.

#include "ToolkitTest.h"

#include "HostEditor.h"
#include "HostPackages.h"
#include "UObject/Package.h"
#include "VelmorantDeveloperUser.h"
#include "VelmorantProjectRequestManager.h"
#include "VelmorantSDKEngineSubsystem.h"

#include <cstdlib>
#include <ostream>

const char* const SoundEngineIni =
	"[/Script/Engine.CollisionProfile]\n"
	"+Profiles=(Name=\"UnitVolume\",CollisionEnabled=QueryOnly,bCanModify=True,ObjectTypeName=\"\",CustomResponses=((Channel=\"UnitVolume\",Response=ECR_Block)),HelpMessage=\"\")\n"
	"+DefaultChannelResponses=(Channel=ECC_GameTraceChannel18, Name=\"UnitVolume\", DefaultResponse=ECR_Ignore, bTraceType=True, bStaticObject=True)\n";

namespace ToolkitTest
{
	const char* const Users =
		R"("users": [{"userName": "ada", "password": "sesame-77", "firstName": "Ada", "lastName": "Byron", "email": "ada@example.com", "projects": ["HT", "QV"]}])";

	const char* const Projects =
		R"("projects": [{"keyCode": "HT", "apiKey": "api-ht", "name": "Harbor Tower"}, {"keyCode": "QV", "name": "Quay View"}])";
}

std::string ToUtf8(const FString& String)
{
	return std::string(TCHAR_TO_UTF8(*String));
}

std::string ToUtf8(const FText& Text)
{
	return ToUtf8(Text.ToString());
}

std::string ToUtf8(FName Name)
{
	return ToUtf8(Name.ToString());
}

void PrintTo(const FOutcome& Outcome, std::ostream* Stream)
{
	*Stream << "{\"" << Outcome.Title << "\", \"" << Outcome.Message << "\", state " << static_cast<int>(Outcome.State) << ", " << Outcome.Seconds << " s}";
}

FToolkitTest::FToolkitTest()
{
	setenv("VELMORANT_NO_KEYRING", "1", 1); // tests leave the desktop's real secret store alone
	CommandLine = TEXT("-VelmorantService=") + Folder.Get("Project/Service.json");
	WriteProjectFile("Config/DefaultEngine.ini", SoundEngineIni);
	WriteServiceWith("");
}

void FToolkitTest::WriteServiceWith(std::string_view Members) const
{
	WriteService("{" + std::string(Members) + (Members.empty() ? "" : ", ") + ToolkitTest::Users + ", " + ToolkitTest::Projects + "}");
}

void FToolkitTest::WriteHarborTower(std::string_view Members) const
{
	WriteService(std::string("{") + ToolkitTest::Users + R"(, "projects": [{"keyCode": "HT", "apiKey": "api-ht", "name": "Harbor Tower", )" + std::string(Members) + R"(}, {"keyCode": "QV", "name": "Quay View"}]})");
}

void FToolkitTest::WriteConfigurators(std::string_view Configurators) const
{
	WriteHarborTower(R"("configurators": [)" + std::string(Configurators) + "]");
}

UVelmorantDeveloperUser* FToolkitTest::GetUser()
{
	return UVelmorantSDKEngineSubsystem::GetVelmorantEditorUser(true);
}

UVelmorantProjectRequestManager* FToolkitTest::GetRequests()
{
	return GetUser()->GetProjectRequestManager();
}

void FToolkitTest::SignIn()
{
	UVelmorantSDKEngineSubsystem::EnsureUserEditorContext();
	UVelmorantSDKEngineSubsystem::Get()->GetVelmorantUser()->RequestUserLogin(FVelmorantUserInformation(false, TEXT("ada"), TEXT("sesame-77")));
	Wait(0.0);
	ASSERT_TRUE(GetUser()->HasValidToken());
}

void FToolkitTest::SelectProject(const TCHAR* KeyCode)
{
	GetUser()->RequestEditorUserProjects();
	Wait(0.0);
	const TArray<FProject> Projects = GetUser()->GetEditorUserProjects();
	const FProject* Project = Projects.FindByPredicate([KeyCode](const FProject& Candidate) { return Candidate.KeyCode == KeyCode; });
	ASSERT_NE(Project, nullptr);
	GetUser()->SetSelectedProject(*Project, false);
	Wait(0.0);
}

void FToolkitTest::ExpectNoFaultsInLog() const
{
	EXPECT_EQ(WholeLog().find("was made in the context"), std::string::npos) << "the toolkit names no calling context";
	EXPECT_TRUE(bEnsuresMayFail || WholeLog().find("Ensure condition failed") == std::string::npos) << WholeLog();
}

void FToolkitTest::StartEditor()
{
	if (Editor.IsValid())
	{
		ExpectNoFaultsInLog(); // the log of that editor goes
	}
	NumTakenNotifications = 0;
	NumTakenLines.Empty();
	FEditorTest::StartEditor();
}

void FToolkitTest::StartWithProject()
{
	StartEditor();
	SignIn();
	SelectProject(TEXT("HT"));
	TakeOutcomes();
	TakeModuleLog();
}

std::vector<FOutcome> FToolkitTest::TakeOutcomes()
{
	const TArray<HostNotifications::FRecord> History = HostNotifications::GetHistory();
	std::vector<FOutcome> Outcomes;
	for (; NumTakenNotifications < History.Num(); ++NumTakenNotifications)
	{
		const FHostNotification& Notification = *History[NumTakenNotifications];
		Outcomes.push_back({ToUtf8(Notification.Text), ToUtf8(Notification.SubText), Notification.State, Notification.ExpireDuration});
	}
	return Outcomes;
}

std::vector<std::string> FToolkitTest::Unsaved()
{
	std::vector<std::string> Names;
	for (const UPackage* Package : HostPackages::GetDirtyPackages())
	{
		Names.push_back(ToUtf8(Package->GetName()));
	}
	return Names;
}

void FToolkitTest::SaveAll()
{
	EXPECT_TRUE(HostPackages::SaveAll().Succeeded());
	EXPECT_THAT(Unsaved(), testing::IsEmpty());
}

void FToolkitTest::SaveAndRestart(const TCHAR* Level)
{
	SaveAll();
	StartEditor();
	if (Level)
	{
		ASSERT_EQ(HostEditor::OpenMap(Level), HostEditor::EOpenMap::Opened);
	}
}

std::vector<std::string> FToolkitTest::TakeLog(const TCHAR* Category)
{
	const TArray<FHostLogLine>& All = HostLog::GetLines();
	int32& NumTaken = NumTakenLines.FindOrAdd(FName(Category));
	std::vector<std::string> Lines;
	for (; NumTaken < All.Num(); ++NumTaken)
	{
		if (All[NumTaken].Category == FName(Category))
		{
			Lines.push_back(ToUtf8(FString::Printf(TEXT("%s: %s"), ToString(All[NumTaken].Verbosity), *All[NumTaken].Text)));
		}
	}
	return Lines;
}

std::string FToolkitTest::WholeLog()
{
	std::string Log;
	for (const FHostLogLine& Line : HostLog::GetLines())
	{
		Log += ToUtf8(Line.ToString()) + "\n";
	}
	return Log;
}
