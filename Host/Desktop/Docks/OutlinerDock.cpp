// Copyright Velmorant. All Rights Reserved.

#include "Docks/OutlinerDock.h"

#include "HostSearchWords.h"
#include "Look/Brushes.h"
#include "Look/Icons.h"
#include "QtText.h"
#include "Session/DesktopEditor.h"
#include "Window/WindowServices.h"

namespace OutlinerDock
{
	static const int ActorRole = Qt::UserRole; // index into Actors; unset for the row of a class
}

FOutlinerDock::FOutlinerDock(IWindowServices& InServices, QWidget* Parent)
	: FDockView(Parent)
	, Services(InServices)
	, Search(new QLineEdit(this))
	, Tree(new QTreeWidget(this))
	, Empty(new QLabel(this))
	, Count(new QLabel(this))
{
	QVBoxLayout* const Layout = new QVBoxLayout(this);
	Layout->setContentsMargins(6, 6, 6, 4);
	Layout->setSpacing(4);
	Layout->addWidget(Search);
	Layout->addWidget(Tree, 1);
	Layout->addWidget(Empty, 1);
	Layout->addWidget(Count);
	Search->setObjectName(QStringLiteral("OutlinerSearch"));
	Search->setPlaceholderText(tr("Search for actors by name or class"));
	Search->setAccessibleName(Search->placeholderText());
	Search->setClearButtonEnabled(true);
	Search->installEventFilter(this);
	Tree->setObjectName(QStringLiteral("Outliner"));
	Tree->setAccessibleName(tr("Actors of the level"));
	Tree->setHeaderHidden(true);
	Tree->setFrameShape(QFrame::NoFrame);
	Tree->setSelectionMode(QAbstractItemView::ExtendedSelection);
	Tree->setEditTriggers(QAbstractItemView::EditKeyPressed);
	Tree->setUniformRowHeights(true);
	Tree->setContextMenuPolicy(Qt::CustomContextMenu);
	Tree->setIconSize(QSize(16, 16));
	Tree->installEventFilter(this);
	Empty->setAlignment(Qt::AlignCenter);
	Empty->setWordWrap(true);
	Empty->setEnabled(false);
	Count->setEnabled(false);
	Count->setObjectName(QStringLiteral("OutlinerCount"));
	Empty->setObjectName(QStringLiteral("OutlinerEmpty"));
	connect(Search, &QLineEdit::textChanged, this, [this] { Act([this] { Fill(); }); });
	connect(Tree, &QTreeWidget::itemSelectionChanged, this, [this] { SelectMarked(); });
	connect(Tree, &QTreeWidget::itemChanged, this, [this](QTreeWidgetItem* Item) { Rename(*Item); });
	connect(Tree, &QTreeWidget::itemDoubleClicked, this, [this] { LookAtSelected(); });
	connect(Tree, &QWidget::customContextMenuRequested, this, [this](const QPoint& Place) { OpenMenu(Place); });
}

void FOutlinerDock::Act(const std::function<void()>& What)
{
	Services.GetEditor().Do(What);
	Services.RequestFrame();
}

void FOutlinerDock::Refresh()
{
	if (!IsRenaming() && Watch.HasChanged())
	{
		Fill();
	}
}

bool FOutlinerDock::IsRenaming() const
{
	const QLineEdit* const Field = Tree->viewport()->findChild<QLineEdit*>();
	return Field != nullptr && Field->isVisible();
}

/** Rows stay while only the selection changes, and with them what is folded and where the list stands. */
void FOutlinerDock::Fill()
{
	const FHostSearchWords Words(QtText::ToEditor(Search->text()));
	FActors All;
	QStringList Rows;
	std::vector<std::size_t> Shown;
	for (AActor* const Actor : LevelActors::GetAll())
	{
		const QString Label = QtText::From(Actor->GetActorLabel());
		const QString Class = LevelActors::GetClassTitle(*Actor->GetClass());
		if (Words.AreIn(QtText::ToEditor(Label + QLatin1Char(' ') + Class)))
		{
			Rows.append(Class + QLatin1Char('\n') + Label);
			Shown.push_back(All.size());
		}
		All.push_back(Actor);
	}
	const bool bWasFilling = bFilling;
	bFilling = true;
	if (Rows != ShownRows || All != Actors)
	{
		QSet<QString> Folded;
		for (auto Group = Groups.cbegin(); Group != Groups.cend(); ++Group)
		{
			if (!Group.value()->isExpanded())
			{
				Folded.insert(Group.key());
			}
		}
		Actors = std::move(All);
		ShownRows = Rows;
		Tree->clear();
		Groups.clear();
		for (const std::size_t Index : Shown)
		{
			AActor& Actor = *Actors[Index].Get();
			QTreeWidgetItem* const Item = new QTreeWidgetItem(FindGroup(Actor), {QtText::From(Actor.GetActorLabel())});
			Item->setData(0, OutlinerDock::ActorRole, static_cast<int>(Index));
			Item->setFlags(Item->flags() | Qt::ItemIsEditable);
			Item->setIcon(0, Item->parent()->icon(0));
		}
		for (auto Group = Groups.cbegin(); Group != Groups.cend(); ++Group)
		{
			Group.value()->setText(0, QStringLiteral("%1 (%2)").arg(Group.key()).arg(Group.value()->childCount()));
			Group.value()->setExpanded(!Folded.contains(Group.key()) || !Search->text().isEmpty());
		}
		Tree->sortItems(0, Qt::AscendingOrder);
	}
	ShowSelection();
	ShowCount(static_cast<int>(Shown.size()));
	bFilling = bWasFilling;
}

QTreeWidgetItem* FOutlinerDock::FindGroup(AActor& Actor)
{
	const QString Class = LevelActors::GetClassTitle(*Actor.GetClass());
	QTreeWidgetItem*& Group = Groups[Class];
	if (Group == nullptr)
	{
		Group = new QTreeWidgetItem(Tree, {Class});
		Group->setFlags(Qt::ItemIsEnabled);
		const FSlateBrush* const Icon = LevelActors::FindClassIcon(*Actor.GetClass());
		Group->setIcon(0, Icon != nullptr ? Services.GetBrushes().FindIcon(*Icon) : Icons::Find("Class.Blueprint"));
	}
	return Group;
}

/** Brings what was selected elsewhere into view. */
void FOutlinerDock::ShowSelection()
{
	QTreeWidgetItem* FirstNew = nullptr;
	for (QTreeWidgetItemIterator Each(Tree); *Each != nullptr; ++Each)
	{
		const AActor* const Actor = FindActor(**Each).Get();
		const bool bSelected = Actor != nullptr && Actor->IsSelected();
		if ((*Each)->isSelected() != bSelected)
		{
			(*Each)->setSelected(bSelected);
			FirstNew = FirstNew == nullptr && bSelected ? *Each : FirstNew;
		}
	}
	if (FirstNew != nullptr)
	{
		Tree->scrollToItem(FirstNew);
		Tree->setCurrentItem(FirstNew, 0, QItemSelectionModel::NoUpdate);
	}
}

void FOutlinerDock::ShowCount(int NumShown)
{
	const int NumAll = static_cast<int>(Actors.size());
	Tree->setVisible(NumShown > 0);
	Empty->setVisible(NumShown == 0);
	Empty->setText(NumAll == 0 ? tr("Nothing stands in this level yet.\nPlace something from the Placement tab, or open a level in the content browser.")
							   : tr("No actor is called like that.\nEscape shows all %1 again.").arg(NumAll));
	const qsizetype NumSelected = Tree->selectedItems().size();
	const QString Total = NumShown == NumAll ? tr("%1 actors").arg(NumAll) : tr("%1 of %2 actors").arg(NumShown).arg(NumAll);
	Count->setText(NumSelected > 0 ? tr("%1, %2 selected").arg(Total).arg(NumSelected) : Total);
}

void FOutlinerDock::SelectMarked()
{
	if (bFilling)
	{
		return;
	}
	Act([this] {
		TArray<AActor*> Marked;
		for (const QTreeWidgetItem* const Item : Tree->selectedItems())
		{
			if (AActor* const Actor = FindActor(*Item).Get())
			{
				Marked.Add(Actor);
			}
		}
		LevelActors::Select(Marked);
	});
}

void FOutlinerDock::Rename(QTreeWidgetItem& Item)
{
	if (!bFilling)
	{
		Act([Actor = FindActor(Item), Label = Item.text(0)] {
			if (Actor.IsValid())
			{
				LevelActors::Rename(*Actor.Get(), Label);
			}
		});
		ShownRows.clear(); // what was typed may not be what it became
		Watch.Forget();
	}
}

TWeakObjectPtr<AActor> FOutlinerDock::FindActor(const QTreeWidgetItem& Item) const
{
	const QVariant Index = Item.data(0, OutlinerDock::ActorRole);
	return Index.isValid() ? Actors[Index.value<std::size_t>()] : nullptr;
}

void FOutlinerDock::LookAtSelected()
{
	Act([] { LevelActors::LookAt(LevelActors::GetSelected()); });
}

void FOutlinerDock::DeleteSelected()
{
	Act([] { LevelActors::Delete(LevelActors::GetSelected()); });
}

void FOutlinerDock::OpenMenu(const QPoint& Place)
{
	QTreeWidgetItem* const Item = Tree->itemAt(Place);
	if (Item == nullptr || !FindActor(*Item).IsValid())
	{
		return;
	}
	QMenu* const Menu = new QMenu(this);
	Menu->setAttribute(Qt::WA_DeleteOnClose);
	Menu->addAction(tr("Go there"), QKeySequence(Qt::Key_F), this, [this] { LookAtSelected(); });
	Menu->addAction(tr("Rename"), QKeySequence(Qt::Key_F2), this, [this] { Tree->editItem(Tree->currentItem()); });
	Menu->addAction(tr("Delete"), QKeySequence(Qt::Key_Delete), this, [this] { DeleteSelected(); });
	Menu->popup(Tree->viewport()->mapToGlobal(Place));
}

bool FOutlinerDock::eventFilter(QObject* Watched, QEvent* Event)
{
	if (Event->type() != QEvent::KeyPress || IsRenaming())
	{
		return FDockView::eventFilter(Watched, Event);
	}
	const int Key = static_cast<QKeyEvent*>(Event)->key();
	if (Watched == Search && Key == Qt::Key_Escape)
	{
		Search->clear();
		return true;
	}
	if (Watched == Search && Key == Qt::Key_Down)
	{
		Tree->setFocus();
		return true;
	}
	if (Watched == Tree && Key == Qt::Key_Delete)
	{
		DeleteSelected();
		return true;
	}
	if (Watched == Tree && (Key == Qt::Key_F || Key == Qt::Key_Return || Key == Qt::Key_Enter))
	{
		LookAtSelected();
		return true;
	}
	return FDockView::eventFilter(Watched, Event);
}

void FOutlinerDock::LetGo()
{
	bFilling = true;
	Tree->clear();
	bFilling = false;
	Groups.clear();
	Actors.clear();
	ShownRows.clear();
	Watch.Forget();
}
