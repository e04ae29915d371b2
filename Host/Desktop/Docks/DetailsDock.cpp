// Copyright Velmorant. All Rights Reserved.

#include "Docks/DetailsDock.h"

#include "Level/LevelActors.h"
#include "Widgets/WidgetRoot.h"
#include "Window/WindowServices.h"

FDetailsDock::FDetailsDock(IWindowServices& InServices, QWidget* Parent)
	: FDockView(Parent)
	, Services(InServices)
	, Empty(new QLabel(tr("Select an actor or an asset to see its properties."), this))
	, Area(new QScrollArea(this))
{
	QVBoxLayout* const Layout = new QVBoxLayout(this);
	Layout->setContentsMargins(0, 0, 0, 0);
	Area->setFrameShape(QFrame::NoFrame);
	Area->setWidgetResizable(true);
	FWidgetRoot* const Root = new FWidgetRoot(Services, [this] { return View ? TSharedPtr<SWidget>(View->GetWidget()) : TSharedPtr<SWidget>(); });
	Area->setWidget(Root);
	Empty->setAlignment(Qt::AlignCenter);
	Empty->setWordWrap(true);
	Empty->setEnabled(false);
	Layout->addWidget(Empty);
	Layout->addWidget(Area);
}

FDetailsDock::~FDetailsDock() = default;

void FDetailsDock::Inspect(const TArray<UObject*>& Objects)
{
	if (View)
	{
		View->SetObjects(Objects);
	}
	else
	{
		View = std::make_unique<FHostDetailsView>(Objects);
	}
	Services.RequestFrame();
}

/** What is selected elsewhere stays until the level's selection changes. */
void FDetailsDock::FollowSelection()
{
	const TArray<AActor*> Selected = LevelActors::GetSelected();
	std::vector<TWeakObjectPtr<AActor>> Now;
	TArray<UObject*> Objects;
	for (AActor* const Actor : Selected)
	{
		Now.push_back(Actor);
		Objects.Add(Actor);
	}
	if (Now == Followed)
	{
		return;
	}
	Followed = std::move(Now);
	Inspect(Objects);
}

void FDetailsDock::Refresh()
{
	FollowSelection();
	const bool bEmpty = !View || View->GetObjects().IsEmpty();
	Empty->setVisible(bEmpty);
	Area->setVisible(!bEmpty);
}

void FDetailsDock::LetGo()
{
	View.reset();
	Followed.clear();
}
