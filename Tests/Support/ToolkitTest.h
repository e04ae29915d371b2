// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "EditorFixture.h"
#include "VelmorantSDKTypes.h"

#include <gmock/gmock.h>
#include <iosfwd>
#include <string>
#include <string_view>
#include <vector>

class UConfiguratorWrapper;
class UVelmorantDeveloperUser;
class UVelmorantProjectRequestManager;

/** The exact text: unlike FString, std::string tells letter case apart. */
std::string ToUtf8(const FString& String);
std::string ToUtf8(const FText& Text);
std::string ToUtf8(FName Name);

/** Each of them, in order. */
template<typename T>
std::vector<std::string> ToUtf8(const TArray<T>& Texts)
{
	std::vector<std::string> Result;
	for (const T& Text : Texts)
	{
		Result.push_back(ToUtf8(Text));
	}
	return Result;
}

/** What one notification told. */
struct FOutcome
{
	std::string Title;
	std::string Message;
	SNotificationItem::ECompletionState State = SNotificationItem::CS_None;
	float Seconds = 0.0f;

	bool operator==(const FOutcome& Other) const = default;
};

void PrintTo(const FOutcome& Outcome, std::ostream* Stream);

/** A configuration with the unit volumes' profile and channel, so that the start-up check has nothing to ask. */
extern const char* const SoundEngineIni;

/**
 * A project of somebody who works with the toolkit: collision set-up in order, and a service that answers from a data file which the
 * test may replace. One user, ada, has two projects, "Harbor Tower" (key code HT) and "Quay View" (QV, without API key).
 */
class FToolkitTest : public FEditorTest
{
protected:
	FToolkitTest();

	/** The test fails when an ensure did in any of its editors, unless it is about that, or an asset was made in a context. */
	virtual void TearDown() override { ExpectNoFaultsInLog(); }

	/** Replaces the whole data file; the next request sees it. */
	void WriteService(std::string_view Json) const { WriteProjectFile("Service.json", Json); }

	/** A data file whose project Harbor Tower has further members, such as "unitGroups". */
	void WriteHarborTower(std::string_view Members) const;

	/** A data file whose project Harbor Tower has these configurators (JSON objects, comma separated). */
	void WriteConfigurators(std::string_view Configurators) const;

	/** A data file with further members of the document, such as "delaySeconds". */
	void WriteServiceWith(std::string_view Members) const;

	/** Set by a test that makes ensures fail. */
	bool bEnsuresMayFail = false;

	/** As the base; what an earlier editor told is forgotten. */
	void StartEditor();

	/** Starts the editor, signs ada in and selects Harbor Tower; its data has arrived then. */
	void StartWithProject();

	/** Ada's login as the panel makes it. */
	void SignIn();

	/** Makes one of ada's projects the selected one and waits for its data. */
	void SelectProject(const TCHAR* KeyCode);

	static UVelmorantDeveloperUser* GetUser();
	static UVelmorantProjectRequestManager* GetRequests();

	/** Notifications since the last call, or since the editor started. */
	std::vector<FOutcome> TakeOutcomes();

	/** Log lines of the module since the last call, or since the editor started, each as "Verbosity: text". */
	std::vector<std::string> TakeModuleLog() { return TakeLog(TEXT("LogVelmorantProEditor")); }
	std::vector<std::string> TakeSdkLog() { return TakeLog(TEXT("LogVelmorantSDK")); }

	//~ What a designer would lose, and keeps
	/** Names of the packages with unsaved changes. */
	static std::vector<std::string> Unsaved();
	/** Saves everything; the test fails when something is left. */
	static void SaveAll();
	/** Saves everything and starts the editor again, with Level open when there is one. */
	void SaveAndRestart(const TCHAR* Level = nullptr);

	/** The whole log in one text, to look for what must not be in it. */
	static std::string WholeLog();

private:
	void ExpectNoFaultsInLog() const;
	std::vector<std::string> TakeLog(const TCHAR* Category);

	int32 NumTakenNotifications = 0;
	TMap<FName, int32> NumTakenLines; // by category
};
