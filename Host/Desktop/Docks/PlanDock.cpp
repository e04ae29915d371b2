// Copyright Velmorant. All Rights Reserved.

#include "Docks/PlanDock.h"

#include "HostEditor.h"
#include "Level/LevelPlacement.h"
#include "QtText.h"
#include "Session/DesktopEditor.h"
#include "Window/WindowServices.h"

#include <algorithm>

namespace PlanDock
{
	static const int MinimapWidth = 190;
	static const int RefusalMilliseconds = 8000;

	QString DescribeMissing(FMinimapState::EMissing Missing)
	{
		switch (Missing)
		{
			case FMinimapState::EMissing::Controller: return QObject::tr("This level has no minimap controller. Drag one here from the Placement tab.");
			case FMinimapState::EMissing::Configuration: return QObject::tr("The minimap controller has no configuration. Choose one in its details.");
			case FMinimapState::EMissing::Floors: return QObject::tr("The minimap's configuration has no floors. Add some in its details.");
			default: return QString();
		}
	}

	QString Pair(const FVector2D& Value)
	{
		return QStringLiteral("%1, %2").arg(Value.X).arg(Value.Y);
	}

	QString DescribeTransform(const FMinimapState& State)
	{
		if (State.Active < 0)
		{
			return QObject::tr("No floor is active. Double-click one to show it.");
		}
		return QObject::tr("Moved %1\nScaled %2\nSheared %3\nTurned %4°").arg(Pair(State.Transform.Translation), Pair(State.Transform.Scale), Pair(State.Transform.Shear)).arg(State.Transform.Angle);
	}
}

FPlanDock::FPlanDock(IWindowServices& InServices, QWidget* Parent)
	: FDockView(Parent)
	, Services(InServices)
	, View(new FPlanView(this))
	, Floors(new QComboBox(this))
	, MinimapFloors(new QListWidget(this))
	, MinimapText(new QLabel(this))
{
	QVBoxLayout* const Layout = new QVBoxLayout(this);
	Layout->setContentsMargins(0, 0, 0, 0);
	Layout->setSpacing(0);
	Layout->addWidget(MakeBar());
	QHBoxLayout* const Row = new QHBoxLayout;
	Row->setSpacing(0);
	Row->addWidget(View, 1);
	Row->addWidget(MakeMinimap());
	Layout->addLayout(Row, 1);
	View->SetEmptyText(tr("This level has no unit volumes yet.\nDrag a Unit Volume Actor here from the Placement tab, or open another level in the content browser."));
	ListenToView();
}

QWidget* FPlanDock::MakeBar()
{
	QWidget* const Bar = new QWidget(this);
	QHBoxLayout* const Layout = new QHBoxLayout(Bar);
	Layout->setContentsMargins(8, 5, 8, 5);
	Floors->setObjectName(QStringLiteral("PlanFloors"));
	Floors->setAccessibleName(tr("Floor"));
	Floors->setMinimumWidth(190);
	connect(Floors, &QComboBox::currentIndexChanged, this, [this] { View->SetFloor(Floors->currentIndex() < 0 ? FVolumePlan::AllFloors : Floors->currentData().toInt()); });
	Layout->addWidget(Floors);
	Layout->addStretch(1);
	const auto AddButton = [this, Layout](const QString& Text, const QString& Hint, const std::function<void()>& Do) {
		QToolButton* const Button = new QToolButton(this);
		Button->setText(Text);
		Button->setToolTip(Hint);
		Button->setAccessibleName(Hint);
		connect(Button, &QToolButton::clicked, this, Do);
		Layout->addWidget(Button);
		return Button;
	};
	AddButton(QStringLiteral("−"), tr("Zoom out (-)"), [this] { View->Zoom(0.8); });
	AddButton(QStringLiteral("+"), tr("Zoom in (+)"), [this] { View->Zoom(1.25); });
	AddButton(tr("Fit"), tr("Show everything (Home)"), [this] { View->Fit(); })->setObjectName(QStringLiteral("PlanFit"));
	return Bar;
}

QWidget* FPlanDock::MakeMinimap()
{
	QWidget* const Panel = new QWidget(this);
	Panel->setFixedWidth(PlanDock::MinimapWidth);
	QVBoxLayout* const Layout = new QVBoxLayout(Panel);
	Layout->setContentsMargins(8, 4, 8, 8);
	QToolButton* const Title = new QToolButton(Panel);
	Title->setText(tr("Minimap"));
	Title->setToolTip(tr("Select the minimap controller"));
	Title->setAutoRaise(true);
	connect(Title, &QToolButton::clicked, this, [this] { Act([] { FMinimapState::SelectController(); }); });
	MinimapFloors->setObjectName(QStringLiteral("MinimapFloors"));
	MinimapFloors->setAccessibleName(tr("Floors of the minimap"));
	MinimapFloors->setFrameShape(QFrame::NoFrame);
	connect(MinimapFloors, &QListWidget::itemActivated, this, [this](const QListWidgetItem* Item) {
		const int Floor = Item->data(Qt::UserRole).toInt();
		Act([Floor] { FMinimapState::Activate(Floor); });
	});
	MinimapText->setObjectName(QStringLiteral("MinimapText"));
	MinimapText->setWordWrap(true);
	MinimapText->setTextInteractionFlags(Qt::TextSelectableByMouse);
	Layout->addWidget(Title);
	Layout->addWidget(MinimapFloors, 1);
	Layout->addWidget(MinimapText);
	return Panel;
}

void FPlanDock::ListenToView()
{
	View->OnSelect = [this](const FPlanShape& Shape, FPlanView::ESelect How) { Select(Shape, How); };
	View->OnSelectNone = [this] { Act([] { LevelActors::Select({}); }); };
	View->OnDrop = [this](const QString& Key, QPointF Where) { Place(Key, Where); };
	View->OnOpen = [this](const FPlanShape& Shape) {
		Act([Actor = Shape.Actor] {
			if (Actor.IsValid())
			{
				LevelActors::LookAt({Actor.Get()});
			}
		});
		Services.ShowDock(QStringLiteral("Details"));
	};
	View->OnDelete = [this] { Act([] { LevelActors::Delete(LevelActors::GetSelected()); }); };
}

void FPlanDock::Act(const std::function<void()>& What)
{
	Services.GetEditor().Do(What);
	Services.RequestFrame();
}

void FPlanDock::Select(const FPlanShape& Shape, FPlanView::ESelect How)
{
	Act([Held = Shape.Actor, How] {
		AActor* const Actor = Held.Get();
		if (Actor == nullptr)
		{
			return;
		}
		TArray<AActor*> Selected = How == FPlanView::ESelect::Toggle ? LevelActors::GetSelected() : TArray<AActor*>();
		if (Selected.Remove(Actor) == 0)
		{
			Selected.Add(Actor);
		}
		LevelActors::Select(Selected);
	});
}

/** On the floor that shows; on the lowest one while all do. */
void FPlanDock::Place(const QString& Key, QPointF Where)
{
	const std::vector<FPlanFloor>& Known = View->GetPlan().GetFloors();
	const std::size_t Floor = static_cast<std::size_t>(std::max(0, View->GetFloor()));
	const double Height = Floor < Known.size() ? Known[Floor].Middle : 0.0;
	QString Reason;
	Act([&Key, &Where, &Reason, Height] { LevelPlacement::Place(Key, FVector(Where.x(), Where.y(), Height), Reason); });
	QMainWindow* const Window = qobject_cast<QMainWindow*>(&Services.GetContext());
	if (!Reason.isEmpty() && Window != nullptr)
	{
		Window->statusBar()->showMessage(tr("Not placed: %1").arg(Reason), PlanDock::RefusalMilliseconds);
	}
}

void FPlanDock::Refresh()
{
	if (Watch.HasChanged())
	{
		ReadLevel();
	}
	ReadMinimap();
	FollowCamera();
}

void FPlanDock::ReadLevel()
{
	FVolumePlan Plan;
	Plan.Read(LevelActors::GetAll());
	View->SetPlan(std::move(Plan));
	FillFloors();
}

/** The highest first, as buildings are. */
void FPlanDock::FillFloors()
{
	QStringList Texts = {tr("All floors")};
	std::vector<int> Numbers = {FVolumePlan::AllFloors};
	const std::vector<FPlanFloor>& Known = View->GetPlan().GetFloors();
	for (int Floor = static_cast<int>(Known.size()) - 1; Floor >= 0; --Floor)
	{
		const FPlanFloor& Each = Known[static_cast<std::size_t>(Floor)];
		Texts.append(tr("Floor %1, at %2 m (%3 volumes)").arg(Floor + 1).arg(Each.Middle / 100.0).arg(Each.NumVolumes));
		Numbers.push_back(Floor);
	}
	QStringList Shown;
	for (int Index = 0; Index < Floors->count(); ++Index)
	{
		Shown.append(Floors->itemText(Index));
	}
	if (Shown == Texts)
	{
		return;
	}
	const int Chosen = View->GetFloor();
	const QSignalBlocker Blocker(Floors);
	Floors->clear();
	for (int Index = 0; Index < Texts.size(); ++Index)
	{
		Floors->addItem(Texts[Index], Numbers[static_cast<std::size_t>(Index)]);
	}
	Floors->setCurrentIndex(std::max(0, Floors->findData(Chosen)));
	View->SetFloor(Floors->currentData().toInt());
}

void FPlanDock::ReadMinimap()
{
	FMinimapState State = FMinimapState::Read();
	if (bMinimapRead && State == Minimap)
	{
		return;
	}
	Minimap = std::move(State);
	bMinimapRead = true;
	MinimapFloors->clear();
	for (int Floor = static_cast<int>(Minimap.Floors.size()) - 1; Floor >= 0; --Floor)
	{
		const bool bActive = Floor == Minimap.Active;
		QListWidgetItem* const Item = new QListWidgetItem(bActive ? tr("● %1 (active)").arg(Minimap.Floors[Floor]) : QStringLiteral("○ %1").arg(Minimap.Floors[Floor]), MinimapFloors);
		Item->setData(Qt::UserRole, Floor);
		QFont Font = MinimapFloors->font();
		Font.setBold(bActive);
		Item->setFont(Font);
	}
	MinimapFloors->setVisible(Minimap.Missing == FMinimapState::EMissing::Nothing);
	MinimapText->setText(Minimap.Missing == FMinimapState::EMissing::Nothing ? PlanDock::DescribeTransform(Minimap) : PlanDock::DescribeMissing(Minimap.Missing));
	MinimapText->setAlignment(Qt::AlignLeft | Qt::AlignTop);
}

/** The toolkit moves the viewports' cameras to what it placed: the plan goes there, too. */
void FPlanDock::FollowCamera()
{
	int NumMoves = 0;
	const HostEditor::FViewport* Active = nullptr;
	for (const HostEditor::FViewport& Viewport : HostEditor::GetViewports())
	{
		NumMoves += Viewport.NumMoves;
		Active = Viewport.bActive ? &Viewport : Active;
	}
	if (NumCameraMoves >= 0 && NumMoves != NumCameraMoves && Active != nullptr)
	{
		View->PanTo(QPointF(Active->Target.X, Active->Target.Y));
		ShowFloorOf(Active->FocusedActors);
	}
	NumCameraMoves = NumMoves;
}

/** What stands on another floor would not be seen. */
void FPlanDock::ShowFloorOf(const TArray<FString>& Labels)
{
	const std::vector<FPlanShape>& Shapes = View->GetPlan().GetShapes();
	const bool bHidden = std::any_of(Shapes.begin(), Shapes.end(), [this, &Labels](const FPlanShape& Shape) {
		return !FVolumePlan::IsOn(Shape, View->GetFloor()) && Labels.Contains(QtText::ToEditor(Shape.Label));
	});
	if (bHidden)
	{
		Floors->setCurrentIndex(0);
	}
}

void FPlanDock::LetGo()
{
	Watch.Forget();
	View->SetPlan(FVolumePlan());
	View->ForgetMark();
	bMinimapRead = false;
	NumCameraMoves = -1;
}
