// Copyright Velmorant. All Rights Reserved.
// Scripts read in the window what they read without one.

#include "TestHeaders.h"

#include "TemporaryFolder.h"

#include <QProcess>

#include <filesystem>

namespace WindowScriptTest
{
	struct FRun
	{
		int Status = -1;
		QByteArray Output;
		QByteArray Errors;
	};

	/** Runs a program with a copy of the sample and a home of its own. */
	FRun RunProgram(const char* Program, const FTemporaryFolder& Folder, const QStringList& Arguments)
	{
		QProcess Process;
		QProcessEnvironment Environment = QProcessEnvironment::systemEnvironment();
		Environment.insert(QStringLiteral("VELMORANT_NO_KEYRING"), QStringLiteral("1"));
		Environment.insert(QStringLiteral("XDG_CONFIG_HOME"), QString::fromStdString(Folder.GetNative("Config").string()));
		Environment.insert(QStringLiteral("XDG_STATE_HOME"), QString::fromStdString(Folder.GetNative("State").string()));
		Environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
		Process.setProcessEnvironment(Environment);
		Process.start(QStringLiteral(VELMORANT_BINARY_DIR "/") + QLatin1String(Program), Arguments);
		FRun Result;
		if (Process.waitForFinished(120000))
		{
			Result.Status = Process.exitCode();
		}
		Result.Output = Process.readAllStandardOutput();
		Result.Errors = Process.readAllStandardError();
		return Result;
	}

	QString CopySample(const FTemporaryFolder& Folder)
	{
		std::filesystem::copy(VELMORANT_SOURCE_DIR "/Samples/HarborTower", Folder.GetNative("HarborTower"), std::filesystem::copy_options::recursive);
		return QString::fromStdString(Folder.GetNative("HarborTower").string());
	}
}

TEST(WindowScript, ReadsWordForWordWhatItReadsWithoutAWindow)
{
	using namespace WindowScriptTest;
	for (const char* Script : {"Demo", "Tour"})
	{
		SCOPED_TRACE(Script);
		const QString File = QStringLiteral(VELMORANT_SOURCE_DIR "/Samples/%1.velscript").arg(QLatin1String(Script));
		const FTemporaryFolder Without;
		const FRun Expected = RunProgram("velmorant", Without, {QStringLiteral("run"), CopySample(Without), File});
		ASSERT_EQ(Expected.Status, 0) << Expected.Errors.toStdString();
		const FTemporaryFolder With;
		const FRun Found = RunProgram("velmorant-editor", With, {CopySample(With), QStringLiteral("--script"), File});
		EXPECT_EQ(Found.Status, 0) << Found.Errors.toStdString();
		EXPECT_EQ(Found.Output.toStdString(), Expected.Output.toStdString());
	}
}

TEST(WindowScript, EndsAsItDoesWithoutAWindow)
{
	using namespace WindowScriptTest;
	const FTemporaryFolder Folder;
	const QString Project = CopySample(Folder);
	Folder.Write("Fails.velscript", "expect actors UnitVolumeActor 3\n");
	const QString Script = QString::fromStdString(Folder.GetNative("Fails.velscript").string());
	EXPECT_EQ(RunProgram("velmorant-editor", Folder, {Project, QStringLiteral("--script"), Script}).Status, 1) << "an expectation that does not hold";
	EXPECT_EQ(RunProgram("velmorant-editor", Folder, {Project, QStringLiteral("--script"), Script + QStringLiteral("x")}).Status, 3) << "no such script";
	EXPECT_EQ(RunProgram("velmorant-editor", Folder, {QStringLiteral("--theme"), QStringLiteral("blue"), Project}).Status, 2) << "no such theme";
	const FRun Missing = RunProgram("velmorant-editor", Folder, {Project, QStringLiteral("--service"), QStringLiteral("nowhere.json")});
	EXPECT_EQ(Missing.Status, 3);
	EXPECT_TRUE(Missing.Errors.contains("nowhere.json")) << Missing.Errors.toStdString();
}

TEST(WindowScript, LeavesAPictureOfEachPart)
{
	using namespace WindowScriptTest;
	const FTemporaryFolder Folder;
	const QString Project = CopySample(Folder);
	Folder.Write("Parts.velscript", "heading \"The first part\"\nwait 1\nheading \"And more\"\nwait 1\n");
	const QString Script = QString::fromStdString(Folder.GetNative("Parts.velscript").string());
	const QString Pictures = QString::fromStdString(Folder.GetNative("Pictures").string());
	const FRun Drawn = RunProgram("velmorant-editor", Folder, {Project, QStringLiteral("--script"), Script, QStringLiteral("--screenshot"), Pictures});
	ASSERT_EQ(Drawn.Status, 0) << Drawn.Errors.toStdString();
	for (const char* Name : {"/01-the-first-part.png", "/02-and-more.png"})
	{
		const QImage Picture(Pictures + QLatin1String(Name));
		EXPECT_EQ(Picture.size(), QSize(1440, 900)) << Name;
	}
}
