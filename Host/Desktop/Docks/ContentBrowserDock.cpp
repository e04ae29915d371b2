// Copyright Velmorant. All Rights Reserved.

#include "Docks/ContentBrowserDock.h"

#include "Docks/Content/ContentMenus.h"
#include "Docks/Content/ContentTile.h"
#include "HostContentBrowser.h"
#include "Look/Icons.h"
#include "Look/Theme.h"
#include "QtText.h"
#include "Session/DesktopEditor.h"
#include "Window/WindowServices.h"

#include <algorithm>

namespace ContentBrowserDock
{
	static const QString ProjectRoot = QStringLiteral("/Game");
	static const QSize Wanted(900, 320);
	static const int TreeWidth = 210;
	static const int SearchWidth = 260;

	/** The project's own folder is called as designers know it. */
	QString GetFolderName(const QString& Folder)
	{
		return Folder == ProjectRoot ? QObject::tr("Content") : Folder.mid(Folder.lastIndexOf(QLatin1Char('/')) + 1);
	}

	QString GetParent(const QString& Folder)
	{
		return Folder.left(Folder.lastIndexOf(QLatin1Char('/')));
	}
}

FContentBrowserDock::FContentBrowserDock(IWindowServices& InServices, QWidget* Parent)
	: FDockView(Parent)
	, Services(InServices)
	, Actions(InServices)
	, List(new FContentList(this))
{
	Query.Folder = ContentBrowserDock::ProjectRoot;
	Actions.OnTold = [this](const QString& Text, bool bGood) { Tell(Text, bGood); };
	List->OnRename = [this](const QString& Package, const QString& Name) {
		const FContentItem* const Item = List->GetItem(List->FindPath(Package));
		return Item != nullptr && Actions.Rename(FAssetData(Item->Data), QtText::ToEditor(Name));
	};
	QVBoxLayout* const Layout = new QVBoxLayout(this);
	Layout->setContentsMargins(0, 0, 0, 0);
	Layout->setSpacing(0);
	QSplitter* const Halves = new QSplitter(this);
	Layout->addWidget(MakeToolbar());
	Layout->addWidget(Halves, 1);
	Layout->addWidget(MakeFoot());
	Halves->addWidget(MakeTree());
	Halves->addWidget(MakeList());
	Halves->setStretchFactor(1, 1);
	Halves->setSizes({ContentBrowserDock::TreeWidth, ContentBrowserDock::Wanted.width()});
	Halves->setChildrenCollapsible(false);
	MakeActions();
	setTabOrder(Kinds, Search);
	setTabOrder(Search, Tree);
	setTabOrder(Tree, View);
}

QSize FContentBrowserDock::sizeHint() const
{
	return ContentBrowserDock::Wanted;
}

QWidget* FContentBrowserDock::MakeToolbar()
{
	QWidget* const Bar = new QWidget(this);
	QHBoxLayout* const Layout = new QHBoxLayout(Bar);
	Layout->setContentsMargins(8, 6, 8, 6);
	Layout->setSpacing(6);

	QPushButton* const Add = new QPushButton(Icons::Find("Mark.New"), tr("Add"), Bar);
	Add->setObjectName(QStringLiteral("ContentAdd"));
	Add->setToolTip(tr("Makes a new asset in this folder"));
	AddMenu = new QMenu(Add);
	connect(AddMenu, &QMenu::aboutToShow, this, [this] {
		ContentMenus::FillAdd(*AddMenu, Services, [this](const FName& Factory, const FString& Category) { Actions.Create(Factory, Category, QtText::ToEditor(Query.Folder)); });
	});
	Add->setMenu(AddMenu);
	Layout->addWidget(Add);

	SaveAll = new QPushButton(Icons::Find("Mark.Unsaved"), tr("Save all"), Bar);
	SaveAll->setObjectName(QStringLiteral("ContentSaveAll"));
	SaveAll->setToolTip(tr("Saves everything that has changes (Ctrl+S)"));
	connect(SaveAll, &QPushButton::clicked, this, [this] {
		if (QAction* const Action = window()->findChild<QAction*>(QStringLiteral("SaveAll")))
		{
			Action->trigger();
		}
	});
	Layout->addWidget(SaveAll);

	Path = new QLabel(Bar);
	Path->setObjectName(QStringLiteral("ContentPath"));
	Path->setTextInteractionFlags(Qt::TextSelectableByMouse);
	Layout->addSpacing(8);
	Layout->addWidget(Path, 1);

	Kinds = new QPushButton(Bar);
	Kinds->setObjectName(QStringLiteral("ContentKinds"));
	Kinds->setText(tr("All kinds"));
	Kinds->setToolTip(tr("Shows only some kinds of asset"));
	Kinds->setAccessibleName(tr("Kinds of asset that show"));
	QMenu* const KindMenu = new QMenu(Kinds);
	connect(KindMenu, &QMenu::aboutToShow, this, [this, KindMenu] { FillKinds(*KindMenu); });
	Kinds->setMenu(KindMenu);
	Layout->addWidget(Kinds);

	Search = new QLineEdit(Bar);
	Search->setObjectName(QStringLiteral("ContentSearch"));
	Search->setPlaceholderText(tr("Search this folder and below"));
	Search->setAccessibleName(tr("Search assets"));
	Search->setClearButtonEnabled(true);
	Search->setMaximumWidth(ContentBrowserDock::SearchWidth);
	Search->setMinimumWidth(ContentBrowserDock::SearchWidth / 2);
	connect(Search, &QLineEdit::textChanged, this, [this](const QString& Text) {
		Query.Search = Text;
		ShowList();
	});
	Search->installEventFilter(this);
	Layout->addWidget(Search, 1);
	return Bar;
}

QWidget* FContentBrowserDock::MakeTree()
{
	Tree = new QTreeWidget(this);
	Tree->setObjectName(QStringLiteral("ContentFolders"));
	Tree->setAccessibleName(tr("Folders"));
	Tree->setHeaderHidden(true);
	Tree->setFrameShape(QFrame::NoFrame);
	Tree->setUniformRowHeights(true);
	connect(Tree, &QTreeWidget::currentItemChanged, this, [this](const QTreeWidgetItem* Current) {
		if (Current != nullptr && !bFollowing)
		{
			GoTo(Current->data(0, Qt::UserRole).toString());
		}
	});
	return Tree;
}

QWidget* FContentBrowserDock::MakeList()
{
	View = new QListView(this);
	View->setObjectName(QStringLiteral("ContentItems"));
	View->setAccessibleName(tr("Assets"));
	View->setFrameShape(QFrame::NoFrame);
	View->setViewMode(QListView::IconMode);
	View->setResizeMode(QListView::Adjust);
	View->setMovement(QListView::Static);
	View->setUniformItemSizes(true);
	View->setSelectionMode(QAbstractItemView::ExtendedSelection);
	View->setEditTriggers(QAbstractItemView::NoEditTriggers);
	View->setMouseTracking(true);
	View->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
	View->setSpacing(2);
	View->setItemDelegate(new FContentTile(Services.GetBrushes(), View));
	View->setModel(List);
	View->installEventFilter(this);
	View->viewport()->installEventFilter(this);
	connect(View, &QListView::activated, this, [this](const QModelIndex& Index) { Enter(Index); });
	connect(View->selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] { TakeSelection(); });

	Empty = new QLabel(View->viewport());
	Empty->setObjectName(QStringLiteral("ContentEmpty"));
	Empty->setAlignment(Qt::AlignCenter);
	Empty->setWordWrap(true);
	Empty->setMargin(24);
	Empty->setAttribute(Qt::WA_TransparentForMouseEvents);
	Empty->setForegroundRole(QPalette::PlaceholderText);
	QVBoxLayout* const Layout = new QVBoxLayout(View->viewport());
	Layout->addWidget(Empty);
	return View;
}

QWidget* FContentBrowserDock::MakeFoot()
{
	QWidget* const Foot = new QWidget(this);
	QHBoxLayout* const Layout = new QHBoxLayout(Foot);
	Layout->setContentsMargins(8, 3, 8, 3);
	Counts = new QLabel(Foot);
	Counts->setObjectName(QStringLiteral("ContentCounts"));
	Message = new QLabel(Foot);
	Message->setObjectName(QStringLiteral("ContentMessage"));
	Message->setTextFormat(Qt::PlainText);
	Message->setTextInteractionFlags(Qt::TextSelectableByMouse);
	Message->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
	Message->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
	Layout->addWidget(Counts);
	Layout->addWidget(Message, 1);
	return Foot;
}

QAction* FContentBrowserDock::AddAction(const char* Name, const QString& Text, const QKeySequence& Keys, std::function<void()> Act)
{
	QAction* const Action = new QAction(Text, this);
	Action->setObjectName(QLatin1String(Name));
	Action->setShortcut(Keys);
	Action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
	connect(Action, &QAction::triggered, this, [Act = std::move(Act)] { Act(); });
	return Action;
}

void FContentBrowserDock::MakeActions()
{
	OpenAction = AddAction("ContentOpen", tr("Open"), QKeySequence(), [this] { Enter(View->currentIndex()); });
	RenameAction = AddAction("ContentRenameAction", tr("Rename"), QKeySequence(Qt::Key_F2), [this] { View->edit(View->currentIndex()); });
	SaveAction = AddAction("ContentSave", tr("Save"), QKeySequence(QStringLiteral("Ctrl+Shift+S")), [this] { Actions.Save(GetSelected()); });
	CopyAction = AddAction("ContentCopy", tr("Copy reference"), QKeySequence(QKeySequence::Copy), [this] {
		QStringList Names;
		for (const FAssetData& Asset : GetSelected())
		{
			Names.append(QtText::From(Asset.GetExportTextName()));
		}
		QApplication::clipboard()->setText(Names.join(QLatin1Char('\n')));
	});
	DeleteAction = AddAction("ContentDelete", tr("Delete…"), QKeySequence(QKeySequence::Delete), [this] { Actions.Delete(GetSelected()); });
	for (QAction* const Each : {RenameAction, SaveAction, CopyAction, DeleteAction})
	{
		View->addAction(Each); // keys of the list alone: in the search field they edit the text
	}
	SearchAgainAction = AddAction("ContentRefresh", tr("Look for changed files"), QKeySequence(Qt::Key_F5), [this] {
		Services.GetEditor().Do([this] { Catalog.SearchAgain(); });
		Services.LookOutside();
		Services.RequestFrame();
	});
	addAction(SearchAgainAction);
	addAction(AddAction("ContentUp", tr("Up"), QKeySequence(QStringLiteral("Alt+Up")), [this] { GoUp(); }));
	addAction(AddAction("ContentFind", tr("Search"), QKeySequence(QKeySequence::Find), [this] {
		Search->setFocus(Qt::ShortcutFocusReason);
		Search->selectAll();
	}));
}

void FContentBrowserDock::Refresh()
{
	if (View->viewport()->findChild<QLineEdit*>(QStringLiteral("ContentRename")) != nullptr)
	{
		return; // a name is being typed
	}
	const TArray<FString> Unsaved = Services.GetEditor().GetUnsaved();
	SaveAll->setEnabled(!Unsaved.IsEmpty());
	if (Catalog.Refresh(Unsaved))
	{
		DropGoneFromSelection();
		FitTree();
		ShowList();
	}
	FollowSelection();
}

void FContentBrowserDock::LetGo()
{
	Catalog.LetGo();
	List->Show(Catalog, Query);
	Selection.Empty();
}

void FContentBrowserDock::FitTree()
{
	bFollowing = true;
	QSet<QString> Closed;
	for (QTreeWidgetItemIterator It(Tree); *It != nullptr; ++It)
	{
		if ((*It)->childCount() > 0 && !(*It)->isExpanded())
		{
			Closed.insert((*It)->data(0, Qt::UserRole).toString());
		}
	}
	const bool bFirst = Tree->topLevelItemCount() == 0;
	Tree->clear();
	while (!Catalog.GetFolders().contains(Query.Folder) && Query.Folder.size() > 1)
	{
		Query.Folder = ContentBrowserDock::GetParent(Query.Folder);
	}
	if (!Catalog.GetFolders().contains(Query.Folder))
	{
		Query.Folder = ContentBrowserDock::ProjectRoot;
	}
	QHash<QString, QTreeWidgetItem*> Items;
	const QIcon Icon = Icons::Find("Folder");
	for (const QString& Folder : Catalog.GetFolders())
	{
		QTreeWidgetItem* const Owner = Items.value(ContentBrowserDock::GetParent(Folder));
		QTreeWidgetItem* const Item = Owner != nullptr ? new QTreeWidgetItem(Owner) : new QTreeWidgetItem(Tree);
		Item->setText(0, ContentBrowserDock::GetFolderName(Folder));
		Item->setIcon(0, Icon);
		Item->setToolTip(0, Folder);
		Item->setData(0, Qt::UserRole, Folder);
		Items.insert(Folder, Item);
		// The project is open at first; what plugins bring is not.
		Item->setExpanded(bFirst ? Folder.startsWith(ContentBrowserDock::ProjectRoot) : !Closed.contains(Folder));
	}
	MarkFolder();
}

void FContentBrowserDock::MarkFolder()
{
	bFollowing = true;
	for (QTreeWidgetItemIterator It(Tree); *It != nullptr; ++It)
	{
		if ((*It)->data(0, Qt::UserRole).toString() == Query.Folder)
		{
			Tree->setCurrentItem(*It);
			Tree->scrollToItem(*It);
		}
	}
	bFollowing = false;
}

void FContentBrowserDock::ShowList()
{
	const int Scrolled = View->verticalScrollBar()->value();
	const QString Current = View->currentIndex().data(FContentList::PathRole).toString();
	bFollowing = true;
	List->Show(Catalog, Query);
	QItemSelection Chosen;
	for (const FAssetData& Asset : Selection)
	{
		const QModelIndex Index = List->FindPath(QtText::From(Asset.PackageName));
		if (Index.isValid())
		{
			Chosen.select(Index, Index);
		}
	}
	const QModelIndex Again = List->FindPath(Current);
	View->selectionModel()->setCurrentIndex(Again.isValid() ? Again : List->index(0), QItemSelectionModel::NoUpdate);
	View->selectionModel()->select(Chosen, QItemSelectionModel::ClearAndSelect);
	View->verticalScrollBar()->setValue(Scrolled);
	bFollowing = false;
	Path->setText(Query.Folder);
	Empty->setText(DescribeEmptiness());
	Empty->setVisible(!Empty->text().isEmpty());
	FitFoot();
	FitActions();
}

QString FContentBrowserDock::DescribeEmptiness() const
{
	if (List->rowCount() > 0)
	{
		return QString();
	}
	if (!Query.Search.trimmed().isEmpty())
	{
		return tr("Nothing below %1 matches “%2”%3.\nEscape clears the search.").arg(Query.Folder, Query.Search.trimmed(), Query.Kinds.isEmpty() ? QString() : tr(" among the kinds that are chosen"));
	}
	if (!Query.Kinds.isEmpty())
	{
		return tr("Below %1 there is no asset of the kinds that are chosen.").arg(Query.Folder);
	}
	return tr("There are no assets in %1 yet.\n“Add” makes one here.").arg(Query.Folder);
}

/** What was deleted is selected no longer. */
void FContentBrowserDock::DropGoneFromSelection()
{
	TArray<FAssetData> Kept = HostContentBrowser::GetSelection();
	const int32 NumGone = Kept.RemoveAll([this](const FAssetData& Asset) { return !Catalog.Holds(QtText::From(Asset.PackageName)); });
	if (NumGone > 0)
	{
		Services.GetEditor().Do([&Kept] { HostContentBrowser::SetSelection(Kept); });
	}
}

/** Others select as well: the module shows new assets, scripts choose them. */
void FContentBrowserDock::FollowSelection()
{
	const TArray<FAssetData>& Now = HostContentBrowser::GetSelection();
	if (Now == Selection)
	{
		return;
	}
	Selection = Now;
	if (!Selection.IsEmpty() && !List->FindPath(QtText::From(Selection[0].PackageName)).isValid())
	{
		const QSignalBlocker Quiet(Search);
		Search->clear();
		Query.Search.clear();
		Query.Kinds.clear();
		Query.Folder = QtText::From(Selection[0].PackagePath);
		MarkFolder();
	}
	ShowList();
	const QModelIndex First = Selection.IsEmpty() ? QModelIndex() : List->FindPath(QtText::From(Selection[0].PackageName));
	if (First.isValid())
	{
		View->selectionModel()->setCurrentIndex(First, QItemSelectionModel::NoUpdate);
		View->scrollTo(First);
	}
}

void FContentBrowserDock::TakeSelection()
{
	if (bFollowing)
	{
		return;
	}
	Selection = GetSelected();
	Services.GetEditor().Do([this] { HostContentBrowser::SetSelection(Selection); });
	FitFoot();
	FitActions();
}

TArray<FAssetData> FContentBrowserDock::GetSelected() const
{
	TArray<FAssetData> Assets;
	QModelIndexList Indices = View->selectionModel()->selectedIndexes();
	std::sort(Indices.begin(), Indices.end());
	for (const QModelIndex& Index : Indices)
	{
		if (const FContentItem* const Item = List->GetItem(Index))
		{
			Assets.Add(Item->Data);
		}
	}
	return Assets;
}

void FContentBrowserDock::FitFoot()
{
	const auto NumSelected = View->selectionModel()->selectedIndexes().size();
	const int NumShown = List->rowCount();
	const QString Shown = NumShown == 1 ? tr("1 item") : tr("%1 items").arg(NumShown);
	Counts->setText(NumSelected > 0 ? tr("%1, %2 selected").arg(Shown).arg(NumSelected) : Shown);
	Kinds->setText(Query.Kinds.isEmpty() ? tr("All kinds") : tr("%1 kinds").arg(Query.Kinds.size()));
}

void FContentBrowserDock::FitActions()
{
	const bool bAssets = !GetSelected().IsEmpty();
	OpenAction->setEnabled(View->currentIndex().isValid());
	RenameAction->setEnabled(List->GetItem(View->currentIndex()) != nullptr);
	for (QAction* const Each : {SaveAction, CopyAction, DeleteAction})
	{
		Each->setEnabled(bAssets);
	}
}

void FContentBrowserDock::GoTo(const QString& Folder)
{
	if (Folder == Query.Folder)
	{
		return;
	}
	Query.Folder = Folder;
	Message->clear();
	ShowList();
	MarkFolder();
	View->scrollToTop();
}

void FContentBrowserDock::GoUp()
{
	const QString Left = Query.Folder;
	if (Left.count(QLatin1Char('/')) > 1)
	{
		GoTo(ContentBrowserDock::GetParent(Left));
		View->setCurrentIndex(List->FindPath(Left));
	}
}

void FContentBrowserDock::Enter(const QModelIndex& Index)
{
	if (!Index.isValid())
	{
		return;
	}
	if (const FContentItem* const Item = List->GetItem(Index))
	{
		Actions.Open(FAssetData(Item->Data));
		return;
	}
	GoTo(Index.data(FContentList::PathRole).toString());
	View->setCurrentIndex(List->index(0));
}

void FContentBrowserDock::OpenMenu(const QPoint& Place, bool bOnItem)
{
	QMenu* const Menu = new QMenu(View);
	Menu->setObjectName(QStringLiteral("ContentMenu"));
	Menu->setAttribute(Qt::WA_DeleteOnClose);
	Menu->setToolTipsVisible(true);
	if (bOnItem)
	{
		Menu->addAction(OpenAction);
		Menu->setDefaultAction(OpenAction);
		ContentMenus::FillContext(*Menu, Services);
		Menu->addSeparator();
		Menu->addActions({RenameAction, SaveAction, CopyAction});
		Menu->addSeparator();
		Menu->addAction(DeleteAction);
	}
	else
	{
		ContentMenus::FillAdd(*Menu->addMenu(Icons::Find("Mark.New"), tr("Add")), Services,
			[this](const FName& Factory, const FString& Category) { Actions.Create(Factory, Category, QtText::ToEditor(Query.Folder)); });
		Menu->addSeparator();
		Menu->addAction(SearchAgainAction);
	}
	Menu->popup(Place);
}

void FContentBrowserDock::FillKinds(QMenu& Menu)
{
	ContentMenus::Clear(Menu);
	QMap<QString, int> Counted;
	for (const FContentItem& Item : Catalog.GetItems())
	{
		++Counted[Item.Kind->Name];
	}
	QAction* const All = Menu.addAction(tr("All kinds"), this, [this] {
		Query.Kinds.clear();
		ShowList();
	});
	All->setEnabled(!Query.Kinds.isEmpty());
	Menu.addSeparator();
	for (auto It = Counted.constBegin(); It != Counted.constEnd(); ++It)
	{
		QAction* const Kind = Menu.addAction(tr("%1 (%2)").arg(It.key()).arg(It.value()));
		Kind->setCheckable(true);
		Kind->setChecked(Query.Kinds.contains(It.key()));
		connect(Kind, &QAction::toggled, this, [this, Name = It.key()](bool bOn) {
			Query.Kinds.removeAll(Name);
			if (bOn)
			{
				Query.Kinds.append(Name);
			}
			ShowList();
		});
	}
}

void FContentBrowserDock::Tell(const QString& Text, bool bGood)
{
	QPalette Colors = palette();
	Colors.setColor(QPalette::WindowText, bGood ? Theme::GetColors().Subtle : Theme::GetColors().Bad);
	Message->setPalette(Colors);
	Message->setText(Text);
	Message->setToolTip(Text);
}

bool FContentBrowserDock::eventFilter(QObject* Watched, QEvent* Event)
{
	if (Event->type() == QEvent::ContextMenu && Watched != Search)
	{
		const QContextMenuEvent& Menu = *static_cast<QContextMenuEvent*>(Event);
		const bool bByKey = Menu.reason() == QContextMenuEvent::Keyboard;
		const QModelIndex Index = bByKey ? View->currentIndex() : View->indexAt(View->viewport()->mapFromGlobal(Menu.globalPos()));
		const bool bOnItem = Index.isValid() && View->selectionModel()->isSelected(Index);
		OpenMenu(bByKey ? View->viewport()->mapToGlobal(View->visualRect(Index).center()) : Menu.globalPos(), bOnItem);
		return true;
	}
	if (Event->type() == QEvent::KeyPress)
	{
		const int Key = static_cast<QKeyEvent*>(Event)->key();
		if (Watched == Search && (Key == Qt::Key_Down || Key == Qt::Key_Return))
		{
			View->setFocus(Qt::TabFocusReason);
			View->setCurrentIndex(List->index(0));
			return true;
		}
		if (Watched == Search && Key == Qt::Key_Escape && !Search->text().isEmpty())
		{
			Search->clear();
			return true;
		}
		if (Watched == View && Key == Qt::Key_Backspace)
		{
			GoUp();
			return true;
		}
	}
	return FDockView::eventFilter(Watched, Event);
}
