// Copyright Velmorant. All Rights Reserved.
// The level in the window: outliner, plan and placement, beside the editor's own state.

#include "DesktopFixture.h"

#include "Docks/PlanPainter.h"
#include "Docks/PlanView.h"
#include "Editor.h"
#include "EngineUtils.h"
#include "Level/LevelActors.h"
#include "Level/LevelPlacement.h"
#include "Look/Theme.h"
#include "QtText.h"
#include "UnitVolumeActor.h"

namespace LevelDocksTest
{
	AActor* FindActor(const char* Label)
	{
		const FString Wanted = QtText::ToEditor(QString::fromUtf8(Label));
		for (AActor* const Actor : LevelActors::GetAll())
		{
			if (Actor->GetActorLabel().Equals(Wanted))
			{
				return Actor;
			}
		}
		return nullptr;
	}

	QStringList GetSelectedLabels()
	{
		QStringList Labels;
		for (const AActor* const Actor : LevelActors::GetSelected())
		{
			Labels.append(QtText::From(Actor->GetActorLabel()));
		}
		Labels.sort();
		return Labels;
	}

	int CountVolumes()
	{
		int Count = 0;
		for (TActorIterator<AUnitVolumeActor> Each(LevelActors::GetWorld()); Each; ++Each)
		{
			++Count;
		}
		return Count;
	}

	QTreeWidgetItem* FindRow(const QTreeWidget& Tree, const QString& Text)
	{
		const QList<QTreeWidgetItem*> Found = Tree.findItems(Text, Qt::MatchExactly | Qt::MatchRecursive);
		return Found.isEmpty() ? nullptr : Found.first();
	}

	QStringList GetSelectedRows(const QTreeWidget& Tree)
	{
		QStringList Rows;
		for (const QTreeWidgetItem* const Item : Tree.selectedItems())
		{
			Rows.append(Item->text(0));
		}
		Rows.sort();
		return Rows;
	}

	const FPlanShape& FindShape(const FPlanView& View, const QString& Label)
	{
		for (const FPlanShape& Shape : View.GetPlan().GetShapes())
		{
			if (Shape.Label == Label)
			{
				return Shape;
			}
		}
		throw std::runtime_error("the plan does not show " + Label.toStdString());
	}

	void Drop(FPlanView& View, const QString& Key, QPointF Point)
	{
		QMimeData Data;
		Data.setData(QLatin1String(LevelPlacement::MimeType), Key.toUtf8());
		QDragEnterEvent Enter(Point.toPoint(), Qt::CopyAction, &Data, Qt::LeftButton, Qt::NoModifier);
		QApplication::sendEvent(&View, &Enter);
		ASSERT_TRUE(Enter.isAccepted());
		QDropEvent Fall(Point, Qt::CopyAction, &Data, Qt::LeftButton, Qt::NoModifier);
		QApplication::sendEvent(&View, &Fall);
	}
}

using namespace LevelDocksTest;
using LevelDocks = FDesktopTest;

TEST_F(LevelDocks, ShareTheSelectionWithTheEditor)
{
	Open();
	QTreeWidget& Outliner = Find<QTreeWidget>("Outliner");
	FPlanView& Plan = static_cast<FPlanView&>(Find("PlanView"));
	const QString Alba = QStringLiteral("Torre Alba 1º B"); // not the first: managers stand in its middle
	const QString Brisa = QStringLiteral("Torre Brisa 1º B");

	// From the editor to both, and to the details.
	LevelActors::Select({FindActor("Torre Alba 1º B")});
	Let(0.0);
	EXPECT_EQ(GetSelectedRows(Outliner), QStringList({Alba}));
	EXPECT_TRUE(FindShape(Plan, Alba).bSelected);
	EXPECT_TRUE(TextsIn(Find("Details")).contains(QStringLiteral("Box Extent")));

	// From the outliner, with Ctrl for one more.
	QTreeWidgetItem* const Row = FindRow(Outliner, Brisa);
	ASSERT_NE(Row, nullptr);
	Outliner.scrollToItem(Row);
	QTest::mouseClick(Outliner.viewport(), Qt::LeftButton, Qt::ControlModifier, Outliner.visualItemRect(Row).center());
	Let(0.0);
	EXPECT_EQ(GetSelectedLabels(), QStringList({Alba, Brisa}));
	EXPECT_TRUE(FindShape(Plan, Brisa).bSelected);

	// From the plan: a click takes one, a click beside everything none.
	QTest::mouseClick(&Plan, Qt::LeftButton, Qt::NoModifier, Plan.ToView(FindShape(Plan, Alba).Centre).toPoint());
	Let(0.0);
	EXPECT_EQ(GetSelectedLabels(), QStringList({Alba}));
	EXPECT_EQ(GetSelectedRows(Outliner), QStringList({Alba}));
	QTest::mouseClick(&Plan, Qt::LeftButton, Qt::NoModifier, QPoint(Plan.width() - 4, 4));
	Let(0.0);
	EXPECT_EQ(GetSelectedLabels(), QStringList());

	// By keys, and back by undo.
	QTest::keyClick(&Plan, Qt::Key_Right, Qt::ControlModifier);
	Let(0.0);
	EXPECT_EQ(GetSelectedLabels().size(), 1);
	GEditor->UndoTransaction();
	Let(0.0);
	EXPECT_EQ(GetSelectedRows(Outliner), QStringList());
}

TEST_F(LevelDocks, PlaceWhatIsDroppedIntoThePlan)
{
	Open();
	FPlanView& Plan = static_cast<FPlanView&>(Find("PlanView"));
	const int NumBefore = CountVolumes();
	const QString Volume = QStringLiteral("VelmorantActors//Script/VelmorantPro.UnitVolumeActor");
	const QPointF Place(2100.0, -600.0);

	Drop(Plan, Volume, Plan.ToView(Place));
	Let(0.0);
	ASSERT_EQ(CountVolumes(), NumBefore + 1);
	ASSERT_EQ(LevelActors::GetSelected().Num(), 1);
	const AActor& Placed = *LevelActors::GetSelected()[0];
	EXPECT_NEAR(Placed.GetActorLocation().X, Place.x(), 1.0);
	EXPECT_NEAR(Placed.GetActorLocation().Y, Place.y(), 1.0);
	EXPECT_EQ(Placed.GetActorLocation().Z, 320.0) << "on the lowest floor";
	const QString Label = QtText::From(Placed.GetActorLabel());
	EXPECT_EQ(FindShape(Plan, Label).State, EVolumeState::Unassigned);

	GEditor->UndoTransaction();
	Let(0.0);
	EXPECT_EQ(CountVolumes(), NumBefore);
	EXPECT_THROW(FindShape(Plan, Label), std::runtime_error);
	EXPECT_EQ(FindRow(Find<QTreeWidget>("Outliner"), Label), nullptr);
	GEditor->RedoTransaction();
	Let(0.0);
	EXPECT_EQ(CountVolumes(), NumBefore + 1);
	EXPECT_TRUE(FindShape(Plan, Label).bSelected);

	// What is refused says so, and leaves neither an actor nor a step.
	const int NumActors = LevelActors::GetAll().Num();
	Drop(Plan, QStringLiteral("VelmorantActors/Nothing"), QPointF(50.0, 50.0));
	Let(0.0);
	EXPECT_EQ(LevelActors::GetAll().Num(), NumActors);
	EXPECT_TRUE(GetWindow().statusBar()->currentMessage().startsWith(QStringLiteral("Not placed: "))) << GetWindow().statusBar()->currentMessage().toStdString();
}

TEST_F(LevelDocks, ShowWhichVolumesAreAssignedAndDuplicated)
{
	Open();
	FPlanView& Plan = static_cast<FPlanView&>(Find("PlanView"));
	const auto GetState = [&Plan](const char* Label) { return FindShape(Plan, QString::fromUtf8(Label)).State; };
	EXPECT_EQ(GetState("Torre Alba 1º A"), EVolumeState::Assigned);
	EXPECT_EQ(GetState("Torre Brisa 1º B"), EVolumeState::Duplicated);
	EXPECT_EQ(GetState("Torre Brisa 1º C"), EVolumeState::Duplicated);

	AUnitVolumeActor* const Volume = Cast<AUnitVolumeActor>(FindActor("Torre Brisa 1º C"));
	ASSERT_NE(Volume, nullptr);
	Volume->UniqueIdentifier = FUnitVolumeUniqueIdentifier();
	Let(0.0);
	EXPECT_EQ(GetState("Torre Brisa 1º C"), EVolumeState::Unassigned);
	EXPECT_EQ(GetState("Torre Brisa 1º B"), EVolumeState::Assigned) << "nobody has the same identifier any more";
	Volume->UniqueIdentifier = FUnitVolumeUniqueIdentifier(1010, TEXT("ht-a-01a"));
	Let(0.0);
	EXPECT_EQ(GetState("Torre Alba 1º A"), EVolumeState::Duplicated) << "letter case does not count";

	// What is painted differs, in both themes.
	for (const Theme::EKind Kind : {Theme::EKind::Dark, Theme::EKind::Light})
	{
		Theme::Apply(Kind);
		EXPECT_NE(PlanColors::GetLine(EVolumeState::Assigned), PlanColors::GetLine(EVolumeState::Duplicated));
		EXPECT_NE(PlanColors::GetLine(EVolumeState::Assigned), PlanColors::GetLine(EVolumeState::Unassigned));
	}
}

TEST_F(LevelDocks, StandOnFloorsToScale)
{
	Open();
	FPlanView& Plan = static_cast<FPlanView&>(Find("PlanView"));
	const int NumFloors = static_cast<int>(Plan.GetPlan().GetFloors().size());
	AUnitVolumeActor* const Volume = Cast<AUnitVolumeActor>(FindActor("Torre Alba 1º A"));
	ASSERT_NE(Volume, nullptr);
	Volume->SetActorLocation(FVector(-3000.0, -2000.0, 620.0));
	Volume->BoxExtent = FVector(500.0, 200.0, 140.0);
	Volume->SetActorScale3D(FVector(2.0, 1.0, 1.0));
	Volume->SetActorRotation(FRotator(0.0, 90.0, 0.0));
	Let(0.0);
	const FPlanShape& Shape = FindShape(Plan, QStringLiteral("Torre Alba 1º A"));
	EXPECT_EQ(static_cast<int>(Plan.GetPlan().GetFloors().size()), NumFloors + 1);
	const QRectF Outline = Shape.MakeOutline().boundingRect();
	EXPECT_NEAR(Outline.width(), 400.0, 0.01) << "turned by a quarter";
	EXPECT_NEAR(Outline.height(), 2000.0, 0.01) << "and scaled";

	// The highest floor comes first; on it, volumes of others cannot be clicked.
	QComboBox& Floors = Find<QComboBox>("PlanFloors");
	EXPECT_EQ(Floors.count(), NumFloors + 2);
	Floors.setCurrentIndex(1);
	Let(0.0);
	QTest::mouseClick(&Plan, Qt::LeftButton, Qt::NoModifier, Plan.ToView(FindShape(Plan, QStringLiteral("Torre Brisa 1º A")).Centre).toPoint());
	Let(0.0);
	EXPECT_EQ(GetSelectedLabels(), QStringList());
	QTest::mouseClick(&Plan, Qt::LeftButton, Qt::NoModifier, Plan.ToView(Shape.Centre).toPoint());
	Let(0.0);
	EXPECT_EQ(GetSelectedLabels(), QStringList({QStringLiteral("Torre Alba 1º A")}));
}

TEST_F(LevelDocks, FollowTheCameraAndKeepWhatIsUnderTheWheel)
{
	Open();
	FPlanView& Plan = static_cast<FPlanView&>(Find("PlanView"));
	const QPointF Point(30.0, 40.0);
	const QPointF Kept = Plan.ToLevel(Point);
	QWheelEvent Turn(Point, Plan.mapToGlobal(Point), QPoint(), QPoint(0, 240), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
	QApplication::sendEvent(&Plan, &Turn);
	EXPECT_NEAR((Plan.ToLevel(Point) - Kept).manhattanLength(), 0.0, 0.1);

	LevelActors::LookAt({FindActor("Torre Coral 1º B")});
	Let(0.0);
	const QPointF Middle(Plan.width() / 2.0, Plan.height() / 2.0);
	EXPECT_NEAR((Plan.ToLevel(Middle) - QPointF(8400.0, 950.0)).manhattanLength(), 0.0, 1.0);
	Click("PlanFit");
	EXPECT_TRUE(Plan.rect().contains(Plan.ToView(QPointF(0.0, 0.0)).toPoint()));
}

TEST_F(LevelDocks, SearchRenameAndDelete)
{
	Open();
	QTreeWidget& Outliner = Find<QTreeWidget>("Outliner");
	QLineEdit& Search = Find<QLineEdit>("OutlinerSearch");
	QTest::keyClicks(&Search, QStringLiteral("brisa volume"));
	Let(0.0);
	EXPECT_NE(FindRow(Outliner, QStringLiteral("Torre Brisa 1º A")), nullptr);
	EXPECT_EQ(FindRow(Outliner, QStringLiteral("Torre Alba 1º A")), nullptr);
	EXPECT_TRUE(Find<QLabel>("OutlinerCount").text().startsWith(QStringLiteral("4 of "))) << Find<QLabel>("OutlinerCount").text().toStdString();
	QTest::keyClick(&Search, Qt::Key_Escape);
	Let(0.0);

	QTreeWidgetItem* const Row = FindRow(Outliner, QStringLiteral("Torre Alba 1º A"));
	ASSERT_NE(Row, nullptr);
	Outliner.setCurrentItem(Row);
	Outliner.setFocus();
	QTest::keyClick(&Outliner, Qt::Key_F2);
	QLineEdit* const Field = Outliner.viewport()->findChild<QLineEdit*>();
	ASSERT_NE(Field, nullptr);
	Field->setText(QStringLiteral("  Show flat "));
	QTest::keyClick(Field, Qt::Key_Return);
	QApplication::processEvents(); // the field goes later
	Let(0.0);
	EXPECT_NE(FindActor("Show flat"), nullptr);
	ASSERT_NE(FindRow(Outliner, QStringLiteral("Show flat")), nullptr);

	const int NumBefore = CountVolumes();
	LevelActors::Select({FindActor("Show flat")});
	Let(0.0);
	QTest::keyClick(&Outliner, Qt::Key_Delete);
	Let(0.0);
	EXPECT_EQ(CountVolumes(), NumBefore - 1);
	GEditor->UndoTransaction();
	Let(0.0);
	EXPECT_EQ(CountVolumes(), NumBefore);
	EXPECT_NE(FindRow(Outliner, QStringLiteral("Show flat")), nullptr);
}

TEST_F(LevelDocks, TellTheFloorsOfTheMinimap)
{
	Open();
	QListWidget& Floors = Find<QListWidget>("MinimapFloors");
	ASSERT_EQ(Floors.count(), 3);
	EXPECT_TRUE(Floors.item(0)->text().contains(QStringLiteral("Penthouse"))) << "the highest first";
	Floors.setCurrentRow(1);
	QTest::keyClick(&Floors, Qt::Key_Return);
	Let(0.0);
	EXPECT_TRUE(Find<QListWidget>("MinimapFloors").item(1)->text().contains(QStringLiteral("active")));
	EXPECT_TRUE(Find<QLabel>("MinimapText").text().contains(QStringLiteral("Scaled 1, 1")));
	GEditor->UndoTransaction();
	Let(0.0);
	EXPECT_TRUE(Find<QLabel>("MinimapText").text().startsWith(QStringLiteral("No floor is active")));
}

TEST_F(LevelDocks, WelcomeIsDismissedAndOpenedAgain)
{
	Open();
	QAction* const Again = GetWindow().findChild<QAction*>(QStringLiteral("HelpWelcome"));
	ASSERT_NE(Again, nullptr);
	Again->trigger();
	Let(0.0);
	Click("WelcomeClose");
	EXPECT_EQ(FindShown("WelcomeClose"), nullptr);
	Again->trigger();
	Let(0.0);
	EXPECT_NE(FindShown("WelcomeClose"), nullptr);
}

TEST_F(LevelDocks, TellTheCollisionSetUpAsTheCheckDoes)
{
	Open();
	for (QDockWidget* const Dock : GetWindow().findChildren<QDockWidget*>(QStringLiteral("ProjectSetup")))
	{
		Dock->show();
		Dock->raise();
	}
	Let(1.0);
	const QLabel& Verdict = Find<QLabel>("CollisionVerdict");
	EXPECT_TRUE(Verdict.text().contains(QStringLiteral("is missing"))) << Verdict.text().toStdString();
	Click(FindButton(QStringLiteral("Skip")));
	Let(1.0);
	EXPECT_TRUE(Verdict.text().contains(QStringLiteral("put off"))) << Verdict.text().toStdString();
	Click("CollisionCheck");
	Let(1.0);
	EXPECT_TRUE(Verdict.text().contains(QStringLiteral("is missing"))) << "asked once more";
	Click(FindButton(QStringLiteral("Add to Project Config")));
	Let(1.0);
	Click(FindButton(QStringLiteral("Restart Editor")));
	Let(6.0);
	EXPECT_TRUE(Find<QLabel>("CollisionVerdict").text().contains(QStringLiteral("that unit volumes need"))) << Verdict.text().toStdString();
	EXPECT_EQ(Find<QTreeWidget>("CollisionProfiles").topLevelItem(0)->text(0), QStringLiteral("UnitVolume"));

	// A page of the settings opens in a tab of its own.
	QTreeWidget& Pages = Find<QTreeWidget>("SettingsPages");
	QTreeWidgetItem* const Page = FindRow(Pages, QStringLiteral("Velmorant SDK Settings"));
	ASSERT_NE(Page, nullptr);
	Pages.setCurrentItem(Page);
	QTest::keyClick(&Pages, Qt::Key_Return);
	Let(0.0);
	EXPECT_NE(GetWindow().findChild<QDockWidget*>(QStringLiteral("Settings")), nullptr);
}
