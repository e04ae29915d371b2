// Copyright Velmorant. All Rights Reserved.
// Scripts read in the window what they read without one.

#include "TestHeaders.h"

#include "TemporaryFolder.h"

#include <QFileInfo>
#include <QProcess>

#include <algorithm>
#include <cstdlib>
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

namespace WindowScriptTest
{
	/** What a script of the sample did in the window, with its pictures: each is played once, whoever asks, the tour in the project that the demo left. */
	struct FPlayed
	{
		FPlayed(const char* Script, const FTemporaryFolder& Folder, const QString& Project)
			: File(QStringLiteral(VELMORANT_SOURCE_DIR "/Samples/%1.velscript").arg(QLatin1String(Script)))
			, Pictures(QString::fromStdString(Folder.GetNative(std::string("Pictures/") + Script).string()))
			, Run(RunProgram("velmorant-editor", Folder, {Project, QStringLiteral("--theme"), QStringLiteral("dark"), QStringLiteral("--script"), File, QStringLiteral("--screenshot"), Pictures}))
		{
		}

		static const FPlayed& Get(const QString& Script)
		{
			static const FTemporaryFolder Folder;
			static const QString Project = CopySample(Folder);
			static const FPlayed Demo("Demo", Folder, Project);
			static const FPlayed Tour("Tour", Folder, Project);
			return Script == QLatin1String("Demo") ? Demo : Tour;
		}

		QString File;
		QString Pictures;
		FRun Run;
	};

	/** The mean colour of each of 16 by 16 parts: what the eye sees from afar, whatever the font renderer did to the letters. */
	QImage Blur(const QImage& Picture)
	{
		return Picture.convertToFormat(QImage::Format_RGB32).scaled(16, 16, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
	}

	/** The largest difference of a part's red, green or blue, of 255. */
	int Compare(const QImage& Left, const QImage& Right)
	{
		const QImage BlurredLeft = Blur(Left);
		const QImage BlurredRight = Blur(Right);
		int Most = 0;
		for (int Y = 0; Y < 16; ++Y)
		{
			for (int X = 0; X < 16; ++X)
			{
				const QRgb One = BlurredLeft.pixel(X, Y);
				const QRgb Other = BlurredRight.pixel(X, Y);
				Most = std::max({Most, std::abs(qRed(One) - qRed(Other)), std::abs(qGreen(One) - qGreen(Other)), std::abs(qBlue(One) - qBlue(Other))});
			}
		}
		return Most;
	}
}

TEST(WindowScript, ReadsWordForWordWhatItReadsWithoutAWindow)
{
	using namespace WindowScriptTest;
	const FTemporaryFolder Without;
	const QString Project = CopySample(Without);
	for (const char* Script : {"Demo", "Tour"})
	{
		SCOPED_TRACE(Script);
		const FPlayed& Found = FPlayed::Get(QLatin1String(Script));
		const FRun Expected = RunProgram("velmorant", Without, {QStringLiteral("run"), Project, Found.File});
		ASSERT_EQ(Expected.Status, 0) << Expected.Errors.toStdString();
		EXPECT_EQ(Found.Run.Status, 0) << Found.Run.Errors.toStdString();
		EXPECT_EQ(Found.Run.Output.toStdString(), Expected.Output.toStdString());
	}
}

/** Docs/Pictures/Tour-06-….png is what the sixth part of Tour.velscript looks like. */
TEST(WindowScript, DrawsWhatTheDocumentsShow)
{
	using namespace WindowScriptTest;
	static const int MostDifference = 14; // another release of the font library changes a part by less; a dock that moved by far more
	const QFileInfoList Shown = QDir(QStringLiteral(VELMORANT_SOURCE_DIR "/Docs/Pictures")).entryInfoList({QStringLiteral("*.png")}, QDir::Files);
	ASSERT_GE(Shown.size(), 5);
	for (const QFileInfo& Each : Shown)
	{
		SCOPED_TRACE(Each.fileName().toStdString());
		const FPlayed& Played = FPlayed::Get(Each.fileName().section(QLatin1Char('-'), 0, 0));
		const QImage Found(Played.Pictures + QLatin1Char('/') + Each.fileName().section(QLatin1Char('-'), 1));
		ASSERT_FALSE(Found.isNull()) << "no part of the script draws it any more";
		const QImage Expected(Each.filePath());
		EXPECT_EQ(Found.size(), Expected.size());
		EXPECT_LE(Compare(Found, Expected), MostDifference) << "draw it anew: ./velmorant editor --screenshot FOLDER";
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

TEST(WindowScript, WaitsAfterEachStepAtAPersonsPace)
{
	using namespace WindowScriptTest;
	const FTemporaryFolder Folder;
	const QString Project = CopySample(Folder);
	Folder.Write("Steps.velscript", "expect no panel Nothing\nexpect no panel Nothing\n");
	const QString Script = QString::fromStdString(Folder.GetNative("Steps.velscript").string());
	QElapsedTimer Clock;
	Clock.start();
	EXPECT_EQ(RunProgram("velmorant-editor", Folder, {Project, QStringLiteral("--script"), Script, QStringLiteral("--pace"), QStringLiteral("0.6")}).Status, 0);
	EXPECT_GE(Clock.elapsed(), 1200) << "two steps";
	for (const char* Wrong : {"-1", "61", "slow"})
	{
		EXPECT_EQ(RunProgram("velmorant-editor", Folder, {Project, QStringLiteral("--script"), Script, QStringLiteral("--pace"), QLatin1String(Wrong)}).Status, 2) << Wrong;
	}
}

TEST(WindowScript, LeavesAPictureOfEachPart)
{
	using namespace WindowScriptTest;
	const FTemporaryFolder Folder;
	const QString Project = CopySample(Folder);
	Folder.Write("Parts.velscript",
		"heading \"The first part\"\nopen /VelmorantPro/EditorHelpers/DeveloperPanel/VelmorantDeveloperPanel as Developer\nprint snapshot Developer\n"
		"heading \"And more\"\nwait 1\nrestart\n");
	const QString Script = QString::fromStdString(Folder.GetNative("Parts.velscript").string());
	const QString Pictures = QString::fromStdString(Folder.GetNative("Pictures").string());
	const FRun Drawn = RunProgram("velmorant-editor", Folder, {Project, QStringLiteral("--script"), Script, QStringLiteral("--screenshot"), Pictures});
	ASSERT_EQ(Drawn.Status, 0) << Drawn.Errors.toStdString();
	for (const char* Name : {"/01-the-first-part.png", "/02-and-more.png"})
	{
		const QImage Picture(Pictures + QLatin1String(Name));
		EXPECT_EQ(Picture.size(), QSize(1440, 900)) << Name;
	}
	const QImage Before(Pictures + QStringLiteral("/01-the-first-part.png"));
	const QImage Panel(Pictures + QStringLiteral("/01-the-first-part-panel-developer.png"));
	ASSERT_FALSE(Panel.isNull()) << "the panel alone, as the script reads it";
	EXPECT_LT(Panel.width(), Before.width() / 2);
	EXPECT_GT(Compare(Panel, Before.copy(QRect(QPoint(Before.width() - Panel.width(), 0), Panel.size()))), 14) << "pictures of two things differ";
}
