// Copyright Velmorant. All Rights Reserved.

#include "Window/CommandPalette.h"

#include "HostMenus.h"
#include "HostPackages.h"
#include "HostSearchWords.h"
#include "HostSnapshot.h"
#include "QtText.h"
#include "Session/DesktopEditor.h"
#include "Window/WindowServices.h"

#include <algorithm>

namespace CommandPalette
{
	static const QSize Size(560, 400);
	static const std::size_t MostShown = 100;
	static const int PlaceRole = Qt::UserRole;

	QString Plain(QString Text)
	{
		return Text.remove(QLatin1Char('&'));
	}

	/** The entries of an open menu, sections and all, with their labels. */
	void CollectEntries(const TSharedRef<SWidget>& Menu, TArray<FHostWidgetDescription>& OutEntries)
	{
		const FHostWidgetDescription Description = FHostWidgetAccess::Describe(*Menu);
		if (!Description.bVisible)
		{
			return;
		}
		if (Description.Role == TEXT("entry") && Description.bEnabled)
		{
			OutEntries.Add(Description);
		}
		for (const TSharedRef<SWidget>& Child : FHostWidgetAccess::ChildrenOf(*Menu))
		{
			CollectEntries(Child, OutEntries);
		}
	}

	void CollectButtons(const TSharedRef<SWidget>& Toolbar, TArray<FHostWidgetDescription>& OutButtons)
	{
		const FHostWidgetDescription Description = FHostWidgetAccess::Describe(*Toolbar);
		if (Description.Role == TEXT("menu button"))
		{
			OutButtons.Add(Description);
			return;
		}
		for (const TSharedRef<SWidget>& Child : FHostWidgetAccess::ChildrenOf(*Toolbar))
		{
			CollectButtons(Child, OutButtons);
		}
	}

	/** The place stands behind the name, in the colour of what matters less. */
	class FCommandItem : public QStyledItemDelegate
	{
	public:
		using QStyledItemDelegate::QStyledItemDelegate;

		virtual void paint(QPainter* Painter, const QStyleOptionViewItem& Option, const QModelIndex& Index) const override
		{
			QStyledItemDelegate::paint(Painter, Option, Index);
			const bool bSelected = Option.state.testFlag(QStyle::State_Selected);
			Painter->setPen(Option.palette.color(bSelected ? QPalette::HighlightedText : QPalette::PlaceholderText));
			Painter->drawText(Option.rect.adjusted(0, 0, -10, 0), Qt::AlignRight | Qt::AlignVCenter, Index.data(PlaceRole).toString());
		}
		virtual QSize sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const override { return QSize(100, 26); }
	};
}

FCommandPalette::FCommandPalette(IWindowServices& InServices, QMainWindow& InWindow)
	: QDialog(&InWindow, Qt::Popup)
	, Services(InServices)
	, Window(InWindow)
	, Field(new QLineEdit(this))
	, List(new QListWidget(this))
{
	setObjectName(QStringLiteral("CommandPalette"));
	setAccessibleName(tr("Command palette"));
	setAttribute(Qt::WA_DeleteOnClose);
	resize(CommandPalette::Size);
	move(Window.mapToGlobal(QPoint((Window.width() - width()) / 2, 60)));
	QVBoxLayout* const Layout = new QVBoxLayout(this);
	Layout->setContentsMargins(8, 8, 8, 8);
	Layout->addWidget(Field);
	Layout->addWidget(List);
	Field->setPlaceholderText(tr("Search for a command, a panel or an asset"));
	Field->setAccessibleName(Field->placeholderText());
	Field->installEventFilter(this);
	List->setFocusPolicy(Qt::NoFocus);
	List->setFrameShape(QFrame::NoFrame);
	List->setItemDelegate(new CommandPalette::FCommandItem(List));
	for (QAction* const Action : Window.menuBar()->actions())
	{
		if (Action->menu() != nullptr)
		{
			CollectMenu(*Action->menu(), CommandPalette::Plain(Action->text()));
		}
	}
	Services.GetEditor().Do([this] {
		CollectToolbar();
		CollectAssets();
	});
	connect(Field, &QLineEdit::textChanged, this, [this](const QString& Text) { Search(Text); });
	connect(Field, &QLineEdit::returnPressed, this, [this] { DoCurrent(); });
	connect(List, &QListWidget::itemClicked, this, [this] { DoCurrent(); });
	Search(QString());
	Field->setFocus();
}

void FCommandPalette::CollectMenu(const QMenu& Menu, const QString& Place)
{
	Q_EMIT const_cast<QMenu&>(Menu).aboutToShow(); // some are filled only then
	for (QAction* const Action : Menu.actions())
	{
		if (Action->menu() != nullptr)
		{
			CollectMenu(*Action->menu(), CommandPalette::Plain(Action->text()));
		}
		else if (!Action->isSeparator() && Action->isEnabled())
		{
			Commands.push_back({CommandPalette::Plain(Action->text()), Place, [Held = QPointer<QAction>(Action)] {
									if (Held)
									{
										Held->trigger();
									}
								}});
		}
	}
}

/** Each menu is opened to be read, and closed again. */
void FCommandPalette::CollectToolbar()
{
	FToolbarHost& Toolbar = Services.GetEditor().GetSession().GetToolbar();
	TArray<FHostWidgetDescription> Buttons;
	CommandPalette::CollectButtons(Toolbar.GetContent(), Buttons);
	for (const FHostWidgetDescription& Button : Buttons)
	{
		FString Reason;
		const FString Name = Button.Name.ToString();
		const TSharedPtr<SWidget> Menu = Toolbar.OpenMenu(Name, Reason);
		TArray<FHostWidgetDescription> Entries;
		if (Menu.IsValid())
		{
			CommandPalette::CollectEntries(Menu.ToSharedRef(), Entries);
		}
		for (const FHostWidgetDescription& Entry : Entries)
		{
			const QString Place = QtText::From(Button.Label.IsEmpty() ? Button.ToolTip : Button.Label);
			const FString Meant = Entry.Name.IsNone() ? Entry.Label : Entry.Name.ToString();
			Commands.push_back({QtText::From(Entry.Label), Place, [&Services = Services, Name, Meant] {
									Services.GetEditor().Do([&Services, &Name, &Meant] {
										FString Why;
										const TSharedPtr<SWidget> Opened = Services.GetEditor().GetSession().GetToolbar().OpenMenu(Name, Why);
										if (Opened.IsValid())
										{
											HostSnapshot::Click(Opened.ToSharedRef(), Meant);
										}
									});
									Services.RequestFrame();
								}});
		}
		HostMenus::DismissAll();
	}
}

void FCommandPalette::CollectAssets()
{
	for (const HostPackages::FStoredAsset& Asset : HostPackages::Scan())
	{
		Commands.push_back({QtText::From(Asset.AssetName), QtText::From(Asset.PackageName), [&Services = Services, Package = Asset.PackageName.ToString()] {
								Services.GetEditor().Do([&Services, &Package] {
									if (UObject* const Object = HostPackages::LoadAsset(Package))
									{
										Services.Inspect({Object});
									}
								});
								Services.ShowDock(QStringLiteral("Details"));
							}});
	}
}

void FCommandPalette::Search(const QString& Text)
{
	const FHostSearchWords Words(QtText::ToEditor(Text));
	List->clear();
	Shown.clear();
	for (std::size_t Index = 0; Index < Commands.size() && Shown.size() < CommandPalette::MostShown; ++Index)
	{
		if (Words.AreIn(QtText::ToEditor(Commands[Index].Name + QLatin1Char(' ') + Commands[Index].Place)))
		{
			QListWidgetItem* const Item = new QListWidgetItem(Commands[Index].Name, List);
			Item->setData(CommandPalette::PlaceRole, Commands[Index].Place);
			Shown.push_back(Index);
		}
	}
	if (Shown.empty())
	{
		QListWidgetItem* const Item = new QListWidgetItem(tr("No command, panel or asset is called like that"), List);
		Item->setFlags(Qt::NoItemFlags);
	}
	List->setCurrentRow(Shown.empty() ? -1 : 0);
}

bool FCommandPalette::eventFilter(QObject* Watched, QEvent* Event)
{
	if (Event->type() == QEvent::KeyPress)
	{
		const int Key = static_cast<QKeyEvent*>(Event)->key();
		const int Step = (Key == Qt::Key_Down ? 1 : 0) - (Key == Qt::Key_Up ? 1 : 0);
		if (Step != 0 && !Shown.empty())
		{
			List->setCurrentRow(std::clamp(List->currentRow() + Step, 0, static_cast<int>(Shown.size()) - 1));
			return true;
		}
	}
	return QDialog::eventFilter(Watched, Event);
}

void FCommandPalette::DoCurrent()
{
	const int Row = List->currentRow();
	if (Row < 0 || Shown.empty())
	{
		return;
	}
	const std::function<void()> Act = Commands[Shown[static_cast<std::size_t>(Row)]].Do;
	close();
	Act();
}
