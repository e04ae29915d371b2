// Copyright Velmorant. All Rights Reserved.

#include "Docks/ProjectSetupDock.h"

#include "HostLog.h"
#include "HostNotifications.h"
#include "HostSettings.h"
#include "ISettingsModule.h"
#include "Look/Theme.h"
#include "Modules/ModuleManager.h"
#include "QtText.h"
#include "Session/DesktopEditor.h"
#include "Window/WindowServices.h"

namespace ProjectSetupDock
{
	static const int AddressRole = Qt::UserRole; // three names; unset for the rows above pages

	void SetColor(QLabel& Label, const QColor& Color)
	{
		QPalette Colors = Label.palette();
		Colors.setColor(QPalette::WindowText, Color);
		Label.setPalette(Colors);
	}

	QLabel* MakeHeading(const QString& Text, QWidget* Parent)
	{
		QLabel* const Title = new QLabel(Text, Parent);
		QFont Font = Title->font();
		Font.setBold(true);
		Title->setFont(Font);
		return Title;
	}
}

FProjectSetupDock::FProjectSetupDock(IWindowServices& InServices, QWidget* Parent)
	: FDockView(Parent)
	, Services(InServices)
	, Pages(new QTreeWidget(this))
	, Verdict(new QLabel(this))
	, Details(new QLabel(this))
	, Check(new QPushButton(tr("Check again"), this))
	, Profiles(new QTreeWidget(this))
{
	QHBoxLayout* const Layout = new QHBoxLayout(this);
	Layout->setContentsMargins(10, 10, 10, 10);
	Layout->setSpacing(16);
	Layout->addWidget(MakePages(), 1);
	Layout->addWidget(MakeCollision(), 2);
}

QWidget* FProjectSetupDock::MakePages()
{
	QWidget* const Part = new QWidget(this);
	QVBoxLayout* const Layout = new QVBoxLayout(Part);
	Layout->setContentsMargins(0, 0, 0, 0);
	Layout->addWidget(ProjectSetupDock::MakeHeading(tr("Settings"), Part));
	Layout->addWidget(Pages, 1);
	Pages->setObjectName(QStringLiteral("SettingsPages"));
	Pages->setAccessibleName(tr("Pages of the project's settings"));
	Pages->setToolTip(tr("Enter or a click opens the page in a tab"));
	Pages->setMinimumWidth(190);
	Pages->setHeaderHidden(true);
	Pages->setFrameShape(QFrame::NoFrame);
	connect(Pages, &QTreeWidget::itemClicked, this, [this](const QTreeWidgetItem* Item) { OpenPage(*Item); });
	connect(Pages, &QTreeWidget::itemActivated, this, [this](const QTreeWidgetItem* Item) { OpenPage(*Item); });
	return Part;
}

QWidget* FProjectSetupDock::MakeCollision()
{
	QWidget* const Part = new QWidget(this);
	QVBoxLayout* const Layout = new QVBoxLayout(Part);
	Layout->setContentsMargins(0, 0, 0, 0);
	Layout->addWidget(ProjectSetupDock::MakeHeading(tr("Collision set-up for unit volumes"), Part));
	Layout->addWidget(Verdict);
	Layout->addWidget(Details);
	Layout->addWidget(Check, 0, Qt::AlignLeft);
	Layout->addWidget(Profiles, 1);
	Verdict->setObjectName(QStringLiteral("CollisionVerdict"));
	Verdict->setWordWrap(true);
	Details->setObjectName(QStringLiteral("CollisionDetails"));
	Details->setWordWrap(true);
	Details->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
	Check->setObjectName(QStringLiteral("CollisionCheck"));
	Check->setToolTip(tr("Has the toolkit look again; when something is missing, its notification offers to add it"));
	connect(Check, &QPushButton::clicked, this, [this] { CheckCollision(); });
	Profiles->setObjectName(QStringLiteral("CollisionProfiles"));
	Profiles->setAccessibleName(tr("The project's collision profiles"));
	Profiles->setHeaderLabels({tr("Profile"), tr("Object type"), tr("Responses")});
	Profiles->setRootIsDecorated(false);
	Profiles->setUniformRowHeights(true);
	Profiles->setFrameShape(QFrame::NoFrame);
	Profiles->header()->resizeSection(0, 190);
	Profiles->header()->resizeSection(1, 130);
	return Part;
}

void FProjectSetupDock::CheckCollision()
{
	Services.GetEditor().Do([] { FCollisionSetup::Check(); });
	LogSize = -1;
	Services.RequestFrame();
}

void FProjectSetupDock::OpenPage(const QTreeWidgetItem& Item)
{
	const QStringList Address = Item.data(0, ProjectSetupDock::AddressRole).toStringList();
	if (Address.size() != 3)
	{
		return;
	}
	Services.GetEditor().Do([&Address] {
		const auto Name = [&Address](qsizetype Index) { return FName(QtText::ToEditor(Address[Index])); };
		FModuleManager::LoadModuleChecked<ISettingsModule>("Settings").ShowViewer(Name(0), Name(1), Name(2));
	});
	Services.RequestFrame();
}

void FProjectSetupDock::Refresh()
{
	FillPages();
	const int Size = HostLog::GetLines().Num();
	const int Standing = HostNotifications::GetStanding().Num();
	if (Size != LogSize || Standing != NumStanding)
	{
		LogSize = Size;
		NumStanding = Standing;
		ShowCollision();
	}
}

void FProjectSetupDock::FillPages()
{
	const TArray<HostSettings::FPageAddress> All = HostSettings::GetAllPages();
	QString Known;
	for (const HostSettings::FPageAddress& Page : All)
	{
		Known += QtText::From(Page.ToString()) + QLatin1Char('\n');
	}
	if (Known == ShownPages)
	{
		return;
	}
	ShownPages = Known;
	Pages->clear();
	QHash<QString, QTreeWidgetItem*> Groups;
	for (const HostSettings::FPageAddress& Page : All)
	{
		const QString Place = QStringLiteral("%1 – %2").arg(QtText::From(Page.Container), QtText::From(Page.Category));
		QTreeWidgetItem*& Group = Groups[Place];
		if (Group == nullptr)
		{
			Group = new QTreeWidgetItem(Pages, {Place});
			Group->setFlags(Qt::ItemIsEnabled);
			Group->setExpanded(true);
		}
		QTreeWidgetItem* const Item = new QTreeWidgetItem(Group, {QtText::MakeTitle(QtText::From(Page.Section))});
		Item->setData(0, ProjectSetupDock::AddressRole, QStringList({QtText::From(Page.Container), QtText::From(Page.Category), QtText::From(Page.Section)}));
	}
}

void FProjectSetupDock::ShowCollision()
{
	const FCollisionSetup Setup = FCollisionSetup::Read();
	ShowVerdict(Setup);
	ShowProfiles(Setup);
}

void FProjectSetupDock::ShowVerdict(const FCollisionSetup& Setup)
{
	const Theme::FColors& Colors = Theme::GetColors();
	QStringList Lines;
	switch (Setup.Verdict)
	{
		case EToolkitVerdict::Sound:
			Verdict->setText(tr("✓ The project has the profile and the channel that unit volumes need."));
			ProjectSetupDock::SetColor(*Verdict, Colors.Good);
			break;
		case EToolkitVerdict::Missing:
			Verdict->setText(tr("✗ The profile or the channel that unit volumes need is missing."));
			ProjectSetupDock::SetColor(*Verdict, Colors.Bad);
			Lines.append(tr("Answer the notification in the lower right corner: it adds both to Config/DefaultEngine.ini, and restarts the editor to read them."));
			break;
		case EToolkitVerdict::None:
			Verdict->setText(tr("The check's question was put off, or waits for a restart."));
			ProjectSetupDock::SetColor(*Verdict, Colors.Pending);
			Lines.append(tr("Check again to be asked once more, or restart the editor when the lines were added."));
			break;
	}
	for (const FSpoiler& Spoiler : Setup.Spoilers)
	{
		Lines.append(tr("%1:%2 takes the %3 away: %4").arg(QtText::From(Spoiler.File)).arg(Spoiler.Line).arg(QtText::From(Spoiler.What), QtText::From(Spoiler.Text)));
	}
	Details->setText(Lines.join(QLatin1Char('\n')));
	Details->setVisible(!Lines.isEmpty());
}

void FProjectSetupDock::ShowProfiles(const FCollisionSetup& Setup)
{
	Profiles->clear();
	if (!Setup.bHasProfile)
	{
		QTreeWidgetItem* const Missing = new QTreeWidgetItem(Profiles, {tr("UnitVolume"), QString(), tr("missing; unit volumes need it")});
		for (int Column = 0; Column < 3; ++Column)
		{
			Missing->setForeground(Column, Theme::GetColors().Bad);
		}
	}
	for (const FCollisionSetup::FProfile& Profile : Setup.Profiles)
	{
		QTreeWidgetItem* const Item = new QTreeWidgetItem(QStringList({Profile.Name, Profile.ObjectType, Profile.Responses}));
		Item->setToolTip(2, Profile.Responses);
		if (Profile.bOfUnitVolumes)
		{
			QFont Bold = Profiles->font();
			Bold.setBold(true);
			Item->setFont(0, Bold);
			Item->setForeground(0, Theme::GetColors().Good);
			Profiles->insertTopLevelItem(0, Item);
		}
		else
		{
			Profiles->addTopLevelItem(Item);
		}
	}
}

void FProjectSetupDock::LetGo()
{
	Pages->clear();
	ShownPages.clear();
	Profiles->clear();
	LogSize = -1;
	NumStanding = -1;
}
