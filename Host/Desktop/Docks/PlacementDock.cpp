// Copyright Velmorant. All Rights Reserved.

#include "Docks/PlacementDock.h"

#include "HostEditor.h"
#include "HostPlacement.h"
#include "HostSearchWords.h"
#include "HostStyles.h"
#include "Level/LevelActors.h"
#include "Level/LevelPlacement.h"
#include "Look/Brushes.h"
#include "QtText.h"
#include "Session/DesktopEditor.h"
#include "Window/WindowServices.h"

namespace PlacementDock
{
	static const int KeyRole = Qt::UserRole;
	static const int IconSize = 20;

	/** Rows carry what the plan takes. */
	class FList : public QTreeWidget
	{
	public:
		using QTreeWidget::QTreeWidget;

	protected:
		virtual QMimeData* mimeData(const QList<QTreeWidgetItem*>& Items) const override
		{
			QMimeData* const Data = new QMimeData;
			if (!Items.isEmpty())
			{
				Data->setData(QLatin1String(LevelPlacement::MimeType), Items.first()->data(0, KeyRole).toString().toUtf8());
			}
			return Data;
		}
	};

	/** Where the camera looks. */
	FVector FindPlace()
	{
		for (const HostEditor::FViewport& Viewport : HostEditor::GetViewports())
		{
			if (Viewport.bActive)
			{
				return Viewport.Target;
			}
		}
		return FVector::ZeroVector;
	}

	/** In place of an icon, so that names stand below each other. */
	QIcon MakeBlank()
	{
		QPixmap Blank(IconSize, IconSize);
		Blank.fill(Qt::transparent);
		return QIcon(Blank);
	}

	/** Without a resource when there is none. */
	QString DescribeUse()
	{
		return QObject::tr("Drag into the plan, or press Enter to place it where the camera looks.");
	}

	FSlateBrush FindIcon(const FPlaceableItem& Item)
	{
		const FName Own = Item.ClassIconBrushOverride;
		const UClass* const Class = Cast<UClass>(Item.AssetData.FastGetAsset(false));
		const FSlateBrush* Known = nullptr;
		if (!Own.IsNone())
		{
			Known = HostStyles::FindBrush(Own);
		}
		else if (Class != nullptr)
		{
			Known = LevelActors::FindClassIcon(*Class);
		}
		FSlateBrush Brush;
		Brush.SetResourceName(Own); // an icon of a plugin that is not there: the window may have it
		return Known != nullptr ? *Known : Brush;
	}
}

FPlacementDock::FPlacementDock(IWindowServices& InServices, QWidget* Parent)
	: FDockView(Parent)
	, Services(InServices)
	, Search(new QLineEdit(this))
	, List(new PlacementDock::FList(this))
	, Hint(new QLabel(this))
{
	QVBoxLayout* const Layout = new QVBoxLayout(this);
	Layout->setContentsMargins(6, 6, 6, 4);
	Layout->setSpacing(4);
	Layout->addWidget(Search);
	Layout->addWidget(List, 1);
	Layout->addWidget(Hint);
	Search->setObjectName(QStringLiteral("PlacementSearch"));
	Search->setPlaceholderText(tr("Search for something to place"));
	Search->setAccessibleName(Search->placeholderText());
	Search->setClearButtonEnabled(true);
	List->setObjectName(QStringLiteral("Placement"));
	List->setAccessibleName(tr("What can be placed"));
	List->setHeaderHidden(true);
	List->setFrameShape(QFrame::NoFrame);
	List->setUniformRowHeights(true);
	List->setIconSize(QSize(PlacementDock::IconSize, PlacementDock::IconSize));
	List->setDragEnabled(true);
	List->setDragDropMode(QAbstractItemView::DragOnly);
	Hint->setObjectName(QStringLiteral("PlacementHint"));
	Hint->setWordWrap(true);
	Hint->setEnabled(false);
	Hint->setText(PlacementDock::DescribeUse());
	connect(Search, &QLineEdit::textChanged, this, [this] { Filter(); });
	connect(List, &QTreeWidget::itemActivated, this, [this](const QTreeWidgetItem* Item) { Place(Item->data(0, PlacementDock::KeyRole).toString()); });
}

void FPlacementDock::Refresh()
{
	QStringList Keys;
	for (const FName Category : HostPlacement::GetCategories())
	{
		for (const TSharedRef<FPlaceableItem>& Item : HostPlacement::GetItems(Category))
		{
			Keys.append(LevelPlacement::MakeKey(Category, *Item));
		}
	}
	if (Keys != ShownKeys)
	{
		ShownKeys = Keys;
		Fill();
	}
}

void FPlacementDock::Fill()
{
	List->clear();
	for (const FName Category : HostPlacement::GetCategories())
	{
		QTreeWidgetItem* const Group = new QTreeWidgetItem(List, {QtText::MakeTitle(QtText::From(Category))});
		Group->setFlags(Qt::ItemIsEnabled);
		for (const TSharedRef<FPlaceableItem>& Item : HostPlacement::GetItems(Category))
		{
			QTreeWidgetItem* const Row = new QTreeWidgetItem(Group, {QtText::From(Item->DisplayName)});
			Row->setData(0, PlacementDock::KeyRole, LevelPlacement::MakeKey(Category, *Item));
			Row->setToolTip(0, QtText::From(Item->NativeName));
			const QIcon Icon = Services.GetBrushes().FindIcon(PlacementDock::FindIcon(*Item));
			Row->setIcon(0, Icon.isNull() ? PlacementDock::MakeBlank() : Icon);
		}
		Group->setExpanded(true);
	}
	Filter();
}

void FPlacementDock::Filter()
{
	const FHostSearchWords Words(QtText::ToEditor(Search->text()));
	bool bAny = false;
	for (int Index = 0; Index < List->topLevelItemCount(); ++Index)
	{
		QTreeWidgetItem& Group = *List->topLevelItem(Index);
		int NumShown = 0;
		for (int Row = 0; Row < Group.childCount(); ++Row)
		{
			const bool bMeant = Words.AreIn(QtText::ToEditor(Group.child(Row)->text(0) + QLatin1Char(' ') + Group.child(Row)->toolTip(0)));
			Group.child(Row)->setHidden(!bMeant);
			NumShown += bMeant ? 1 : 0;
		}
		Group.setHidden(NumShown == 0);
		bAny |= NumShown > 0;
	}
	Hint->setText(bAny ? PlacementDock::DescribeUse() : tr("Nothing that can be placed is called like that. Clear the search to see everything."));
}

void FPlacementDock::Place(const QString& Key)
{
	if (Key.isEmpty())
	{
		return; // a category
	}
	QString Reason;
	Services.GetEditor().Do([&Key, &Reason] {
		if (AActor* const Actor = LevelPlacement::Place(Key, PlacementDock::FindPlace(), Reason))
		{
			LevelActors::LookAt({Actor});
		}
	});
	Hint->setText(Reason.isEmpty() ? tr("Placed where the camera looks. Ctrl+Z takes it back.") : tr("Not placed: %1").arg(Reason));
	Services.RequestFrame();
}

void FPlacementDock::LetGo()
{
	List->clear();
	ShownKeys.clear();
}
