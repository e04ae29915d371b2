// Copyright Velmorant. All Rights Reserved.
// Where work could be lost: saving that somebody cancels, restarts, and two windows on one project.

#include "DesktopFixture.h"

#include "HostPackages.h"
#include "QtText.h"
#include "Session/ProjectLock.h"
#include "UnrealEdMisc.h"
#include "Window/SharedProjectQuestion.h"

#include <QProgressDialog>

namespace WorkAtRiskTest
{
	/** A person who cancels the progress of saving once the first file is written. As quick as tests are, nobody would see it otherwise. */
	class FCanceller : public QObject
	{
	public:
		explicit FCanceller(std::function<bool()> InIsTime)
			: IsTime(std::move(InIsTime))
		{
			QApplication::instance()->installEventFilter(this);
		}

		int NumCancelled = 0;

	protected:
		virtual bool eventFilter(QObject* Watched, QEvent* Event) override
		{
			QProgressDialog* const Progress = qobject_cast<QProgressDialog*>(Watched);
			if (Progress != nullptr && Event->type() == QEvent::WindowTitleChange)
			{
				Progress->setMinimumDuration(0);
			}
			if (Progress != nullptr && Event->type() == QEvent::Show)
			{
				CancelInTime(Progress);
			}
			return false;
		}

	private:
		void CancelInTime(QPointer<QProgressDialog> Progress)
		{
			if (!Progress)
			{
				return;
			}
			if (IsTime())
			{
				++NumCancelled;
				Progress->cancel();
				return;
			}
			QTimer::singleShot(0, this, [this, Progress] { CancelInTime(Progress); });
		}

		std::function<bool()> IsTime;
	};
}

using namespace WorkAtRiskTest;

class WorkAtRisk : public FDesktopTest
{
protected:
	QString GetUnsaved() { return Find<QLabel>("StatusUnsaved").text(); }
	QAction& FindAction(const char* Name) { return *GetWindow().findChild<QAction*>(QLatin1String(Name)); }

	void ChangeThree()
	{
		for (const TCHAR* const Package : {TEXT("/Game/UI/HarborStyle"), TEXT("/Game/UI/HarborIcons"), TEXT("/Game/Minimap/HarborTowerFloors")})
		{
			HostPackages::LoadAsset(Package)->MarkPackageDirty();
		}
		Let(0.0);
		ASSERT_EQ(GetUnsaved(), QStringLiteral("3 unsaved"));
	}

	int CountUnsaved() { return GetWindow().GetEditor().GetSession().GetUnsaved().Num(); }
};

TEST_F(WorkAtRisk, CancelledSavingKeepsWhatIsWrittenAndLeavesTheRestUnsaved)
{
	Open();
	ChangeThree();
	{
		FCanceller Canceller([this] { return CountUnsaved() == 2; });
		FindAction("SaveAll").trigger();
		EXPECT_EQ(Canceller.NumCancelled, 1);
	}
	EXPECT_EQ(GetWindow().statusBar()->currentMessage(), QStringLiteral("Cancelled: 1 saved, 2 are still unsaved"));
	Let(0.0);
	EXPECT_EQ(GetUnsaved(), QStringLiteral("2 unsaved"));

	// Whoever cancels the saving before the window closes stays in it.
	{
		FCanceller Canceller([this] { return CountUnsaved() == 1; });
		Answer(QStringLiteral("Save all"), QStringLiteral("Unsaved"));
		EXPECT_FALSE(GetWindow().close());
		EXPECT_EQ(Canceller.NumCancelled, 1);
	}
	EXPECT_TRUE(GetWindow().isVisible());
	FindAction("SaveAll").trigger();
	Let(0.0);
	EXPECT_EQ(GetUnsaved(), QStringLiteral("All saved"));
	FindAction("SaveAll").trigger();
	EXPECT_EQ(GetWindow().statusBar()->currentMessage(), QStringLiteral("There is nothing to save"));
}

TEST_F(WorkAtRisk, ARestartAsksFirstAndOneOfTheToolkitListsWhatIsLost)
{
	Open();
	Change();
	Answer(QStringLiteral("Cancel"), QStringLiteral("Unsaved"));
	FindAction("Restart").trigger();
	Let(1.0);
	EXPECT_EQ(GetUnsaved(), QStringLiteral("1 unsaved")) << "nothing happened";

	Answer(QStringLiteral("Restart without saving"), QStringLiteral("Unsaved"));
	FindAction("Restart").trigger();
	Let(1.0);
	EXPECT_EQ(GetUnsaved(), QStringLiteral("All saved"));
	EXPECT_EQ(GetWindow().statusBar()->currentMessage(), QStringLiteral("The editor has restarted")) << "said without a list: somebody agreed to it";

	Change();
	QString Told;
	WhenAsked([&Told](QDialog& Dialog) {
		Told = static_cast<QMessageBox&>(Dialog).text();
		Dialog.accept();
	});
	FUnrealEdMisc::Get().RestartEditor(false);
	Let(1.0);
	EXPECT_TRUE(Told.contains(QStringLiteral("/Game/Maps/HarborTower"))) << Told.toStdString();
}

TEST_F(WorkAtRisk, ASecondWindowOnAProjectIsAskedAbout)
{
	const QString Project = QString::fromStdString(Folder.GetNative("HarborTower").string());
	std::optional<FProjectLock> First(std::in_place);
	ASSERT_TRUE(First->Take(Project));
	FProjectLock Second;
	ASSERT_FALSE(Second.Take(Project));
	const std::pair<std::function<void(QDialog&)>, bool> Answers[] = {
		{[](QDialog& Dialog) { QTest::keyClick(&Dialog, Qt::Key_Escape); }, false},
		{[](QDialog& Dialog) { QTest::keyClick(&Dialog, Qt::Key_Return); }, false}, // whoever only presses Enter harms nobody
		{[](QDialog& Dialog) {
			 EXPECT_TRUE(static_cast<QMessageBox&>(Dialog).text().contains(QString::number(QCoreApplication::applicationPid())));
			 Dialog.findChild<QPushButton*>()->click();
		 },
			true},
	};
	for (const auto& [Act, bExpected] : Answers)
	{
		WhenAsked(Act);
		EXPECT_EQ(SharedProjectQuestion::MayShare(Second, QStringLiteral("HarborTower")), bExpected);
	}
	First.reset();
	EXPECT_TRUE(Second.Take(Project)) << "once the first is closed, nobody asks";
}
