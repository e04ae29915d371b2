// Copyright Velmorant. All Rights Reserved.

#include "Docks/VariantManagerDock.h"

#include "AssetRegistry/AssetRegistryModule.h"
#include "Docks/Content/ContentMenus.h"
#include "HostContentBrowser.h"
#include "HostPackages.h"
#include "HostSearchWords.h"
#include "LevelVariantSets.h"
#include "Look/Icons.h"
#include "Look/Theme.h"
#include "QtText.h"
#include "Session/DesktopEditor.h"
#include "UObject/Class.h"
#include "VelmorantConfiguratorDataAsset.h"
#include "Window/WindowServices.h"

namespace VariantManagerDock
{
	enum EColumn
	{
		NameColumn,
		StateColumn,
		OriginColumn,
		NumColumns,
	};

	static const int NameWidth = 190;
	static const int StateWidth = 84;
	static const int DiffersRole = Qt::UserRole;

	struct FStateLook
	{
		EVariantState State;
		const char* Icon; // null without one
		const char* Word;
		const char* Why;
	};

	const FStateLook& GetLook(EVariantState State)
	{
		static const FStateLook Looks[] = {
			{EVariantState::Unknown, nullptr, "", "There is no configurator to compare with"},
			{EVariantState::Same, nullptr, "", "As in the configurator"},
			{EVariantState::Missing, "Mark.Missing", "missing", "The configurator has it, the level variant sets do not. The configurator's menu adds what is missing."},
			{EVariantState::New, "Mark.New", "new", "The service offers it, but the configurator asset does not know it yet. The configurator's menu updates it."},
			{EVariantState::Stale, "Mark.Stale", "stale", "The configurator does not have it (any more), or something of the same name stands before it. It is never removed by itself."},
		};
		return Looks[static_cast<std::size_t>(State)];
	}

	QStringList FindNames(UClass& Class)
	{
		TArray<FAssetData> Found;
		FAssetRegistryModule::GetRegistry().GetAssetsByClass(Class.GetClassPathName(), Found, true);
		QStringList Names;
		for (const FAssetData& Asset : Found)
		{
			Names.append(QtText::From(Asset.PackageName));
		}
		return Names;
	}

	template<typename AssetType>
	AssetType* Load(const QString& Package)
	{
		return Package.isEmpty() ? nullptr : Cast<AssetType>(HostPackages::LoadAsset(QtText::ToEditor(Package)));
	}

	bool RefersTo(const UVelmorantConfiguratorDataAsset* Configurator, const QString& Sets)
	{
		return Configurator != nullptr && QtText::From(Configurator->LevelVariantSets.GetLongPackageName()) == Sets;
	}

	QString GetShortName(const QString& Package)
	{
		return Package.mid(Package.lastIndexOf(QLatin1Char('/')) + 1);
	}

	void Dress(QTreeWidgetItem& Item, const FVariantRow& Row)
	{
		const FStateLook& Look = GetLook(Row.State);
		Item.setText(NameColumn, Row.Name);
		Item.setText(StateColumn, QObject::tr(Look.Word));
		if (Item.parent() == nullptr)
		{
			Item.setText(OriginColumn, Row.Origin); // that of its variants is the same
			QFont Bold = Item.font(NameColumn);
			Bold.setBold(true);
			Item.setFont(NameColumn, Bold);
		}
		Item.setData(NameColumn, DiffersRole, Row.State > EVariantState::Same);
		Item.setData(NameColumn, Qt::AccessibleTextRole, *Look.Word != '\0' ? QStringLiteral("%1, %2").arg(Row.Name, QObject::tr(Look.Word)) : Row.Name);
		Item.setToolTip(NameColumn, QObject::tr(Look.Why));
		Item.setToolTip(StateColumn, QObject::tr(Look.Why));
		Item.setForeground(OriginColumn, Theme::GetColors().Subtle);
		if (Look.Icon != nullptr)
		{
			Item.setIcon(StateColumn, Icons::Find(Look.Icon));
		}
		if (Row.State == EVariantState::Missing || Row.State == EVariantState::New)
		{
			QFont Font = Item.font(NameColumn);
			Font.setItalic(true);
			Item.setFont(NameColumn, Font);
			Item.setForeground(NameColumn, Theme::GetColors().Subtle);
		}
	}
}

FVariantManagerDock::FVariantManagerDock(IWindowServices& InServices, QWidget* Parent)
	: FDockView(Parent)
	, Services(InServices)
{
	QVBoxLayout* const Layout = new QVBoxLayout(this);
	Layout->setContentsMargins(0, 0, 0, 0);
	Layout->setSpacing(0);
	Layout->addWidget(MakeHead());
	Layout->addWidget(MakeFilters());
	MakeTree();
	Layout->addWidget(Tree, 1);
	Empty = new QLabel(this);
	Empty->setObjectName(QStringLiteral("VariantsEmpty"));
	Empty->setAlignment(Qt::AlignCenter);
	Empty->setWordWrap(true);
	Empty->setMargin(24);
	Empty->setForegroundRole(QPalette::PlaceholderText);
	Layout->addWidget(Empty, 1);
	Summary = new QLabel(this);
	Summary->setObjectName(QStringLiteral("VariantsSummary"));
	Summary->setContentsMargins(8, 4, 8, 4);
	Layout->addWidget(Summary);
}

QWidget* FVariantManagerDock::MakeHead()
{
	QWidget* const Head = new QWidget(this);
	QFormLayout* const Form = new QFormLayout(Head);
	Form->setContentsMargins(8, 8, 8, 4);
	Form->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
	Assets = new QComboBox(Head);
	Assets->setObjectName(QStringLiteral("VariantsAsset"));
	Assets->setAccessibleName(tr("Level variant sets"));
	Assets->setMinimumContentsLength(12);
	Assets->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
	Assets->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
	connect(Assets, &QComboBox::activated, this, [this](int Index) {
		Choose(Assets->itemData(Index).toString(), QString());
		Services.RequestFrame();
	});
	Form->addRow(tr("Level variant sets"), Assets);

	QHBoxLayout* const Row = new QHBoxLayout;
	Configurator = new QLabel(Head);
	Configurator->setObjectName(QStringLiteral("VariantsConfigurator"));
	Act = new QPushButton(tr("Actions"), Head);
	Act->setObjectName(QStringLiteral("VariantsActions"));
	Act->setToolTip(tr("The menu of the configurator asset"));
	ActMenu = new QMenu(Act);
	ActMenu->setToolTipsVisible(true);
	connect(ActMenu, &QMenu::aboutToShow, this, [this] { OpenConfiguratorMenu(); });
	Act->setMenu(ActMenu);
	Row->addWidget(Configurator, 1);
	Row->addWidget(Act);
	Form->addRow(tr("Made from"), Row);
	return Head;
}

QWidget* FVariantManagerDock::MakeFilters()
{
	QWidget* const Filters = new QWidget(this);
	QHBoxLayout* const Row = new QHBoxLayout(Filters);
	Row->setContentsMargins(8, 4, 8, 6);
	Search = new QLineEdit(Filters);
	Search->setObjectName(QStringLiteral("VariantsSearch"));
	Search->setPlaceholderText(tr("Search sets and variants"));
	Search->setAccessibleName(tr("Search sets and variants"));
	Search->setClearButtonEnabled(true);
	connect(Search, &QLineEdit::textChanged, this, [this] { Filter(); });
	Differences = new QCheckBox(tr("Only differences"), Filters);
	Differences->setObjectName(QStringLiteral("VariantsDifferences"));
	connect(Differences, &QCheckBox::toggled, this, [this] { Filter(); });
	Row->addWidget(Search, 1);
	Row->addWidget(Differences);
	return Filters;
}

void FVariantManagerDock::MakeTree()
{
	Tree = new QTreeWidget(this);
	Tree->setObjectName(QStringLiteral("Variants"));
	Tree->setAccessibleName(tr("Variant sets and variants"));
	Tree->setFrameShape(QFrame::NoFrame);
	Tree->setUniformRowHeights(true);
	Tree->setColumnCount(VariantManagerDock::NumColumns);
	Tree->setHeaderLabels({tr("Variant set"), tr("State"), tr("In the configurator")});
	Tree->header()->resizeSection(VariantManagerDock::NameColumn, VariantManagerDock::NameWidth);
	Tree->header()->resizeSection(VariantManagerDock::StateColumn, VariantManagerDock::StateWidth);
}

void FVariantManagerDock::Refresh()
{
	FindAssets();
	FollowSelection();
	Pair();
	const VariantComparison::FSides Sides = FindSides();
	const uint32 Now = HashCombine(VariantComparison::Fingerprint(Sides), static_cast<uint32>(qHash(SetsName) ^ (qHash(ConfiguratorName) << 1)));
	if (SeenSides.IsSet() && SeenSides.GetValue() == Now)
	{
		return;
	}
	SeenSides = Now;
	const std::vector<FVariantRow> Rows = VariantComparison::Compare(Sides);
	FitHead(Sides);
	FitTree(Rows);
	FitSummary(Rows);
	const QString Emptiness = Rows.empty() ? DescribeEmptiness(Sides) : QString();
	Empty->setText(Emptiness);
	Empty->setVisible(Rows.empty());
	Tree->setVisible(!Rows.empty());
	Filter();
}

void FVariantManagerDock::LetGo()
{
	SeenAssets = 0;
	SeenSides.Reset();
	Selection.Empty();
	Tree->clear();
}

void FVariantManagerDock::FindAssets()
{
	uint64 Now = HostPackages::GetStorageVersion();
	for (const FString& Name : Services.GetEditor().GetUnsaved()) // what has no file yet is among them
	{
		Now = Now * 31 + GetTypeHash(Name);
	}
	if (Now == SeenAssets)
	{
		return;
	}
	AllSets = VariantManagerDock::FindNames(*ULevelVariantSets::StaticClass());
	AllConfigurators = VariantManagerDock::FindNames(*UVelmorantConfiguratorDataAsset::StaticClass());
	SeenAssets = Now;
	SetsName = AllSets.contains(SetsName) ? SetsName : QString();
	ConfiguratorName = AllConfigurators.contains(ConfiguratorName) ? ConfiguratorName : QString();
	if (SetsName.isEmpty() && ConfiguratorName.isEmpty() && !AllSets.isEmpty())
	{
		SetsName = AllSets.first();
	}
	SeenSides.Reset();
}

void FVariantManagerDock::FollowSelection()
{
	const TArray<FAssetData>& Now = HostContentBrowser::GetSelection();
	if (Now == Selection)
	{
		return;
	}
	Selection = Now;
	const QString Name = Selection.IsEmpty() ? QString() : QtText::From(Selection[0].PackageName);
	if (AllSets.contains(Name) && Name != SetsName)
	{
		Choose(Name, QString());
	}
	else if (AllConfigurators.contains(Name) && Name != ConfiguratorName)
	{
		Choose(QString(), Name);
	}
}

void FVariantManagerDock::Choose(const QString& InSets, const QString& InConfigurator)
{
	SetsName = InSets;
	ConfiguratorName = InConfigurator;
}

/** The other side of the one that was chosen: the configurator's asset names its level variant sets. */
void FVariantManagerDock::Pair()
{
	using namespace VariantManagerDock;
	const UVelmorantConfiguratorDataAsset* const Chosen = Load<UVelmorantConfiguratorDataAsset>(ConfiguratorName);
	if (Chosen != nullptr)
	{
		const QString Named = QtText::From(Chosen->LevelVariantSets.GetLongPackageName());
		SetsName = AllSets.contains(Named) ? Named : QString();
		return;
	}
	for (const QString& Each : AllConfigurators)
	{
		if (!SetsName.isEmpty() && RefersTo(Load<UVelmorantConfiguratorDataAsset>(Each), SetsName))
		{
			ConfiguratorName = Each;
			return;
		}
	}
}

VariantComparison::FSides FVariantManagerDock::FindSides() const
{
	VariantComparison::FSides Sides;
	Sides.Sets = VariantManagerDock::Load<ULevelVariantSets>(SetsName);
	Sides.Configurator = VariantManagerDock::Load<UVelmorantConfiguratorDataAsset>(ConfiguratorName);
	Sides.Service = Sides.Configurator != nullptr ? VariantComparison::FindService(*Sides.Configurator) : nullptr;
	return Sides;
}

void FVariantManagerDock::FitHead(const VariantComparison::FSides& Sides)
{
	Assets->clear();
	for (const QString& Each : AllSets)
	{
		Assets->addItem(VariantManagerDock::GetShortName(Each), Each);
		Assets->setItemData(Assets->count() - 1, Each, Qt::ToolTipRole);
	}
	Assets->setCurrentIndex(Assets->findData(SetsName));
	Assets->setPlaceholderText(AllSets.isEmpty() ? tr("None yet") : tr("Not made yet"));
	Assets->setEnabled(!AllSets.isEmpty());
	Configurator->setText(Sides.Configurator != nullptr ? VariantManagerDock::GetShortName(ConfiguratorName) : tr("No configurator asset refers to them"));
	Configurator->setToolTip(ConfiguratorName);
	Configurator->setEnabled(Sides.Configurator != nullptr);
	Act->setEnabled(Sides.Configurator != nullptr);
}

void FVariantManagerDock::FitTree(const std::vector<FVariantRow>& Rows)
{
	QSet<QString> Closed;
	for (int Index = 0; Index < Tree->topLevelItemCount(); ++Index)
	{
		if (!Tree->topLevelItem(Index)->isExpanded())
		{
			Closed.insert(Tree->topLevelItem(Index)->text(VariantManagerDock::NameColumn));
		}
	}
	const int Scrolled = Tree->verticalScrollBar()->value();
	Tree->clear();
	QList<QTreeWidgetItem*> Sets;
	for (const FVariantRow& Row : Rows)
	{
		QTreeWidgetItem* const Set = new QTreeWidgetItem;
		VariantManagerDock::Dress(*Set, Row);
		for (const FVariantRow& Variant : Row.Variants)
		{
			VariantManagerDock::Dress(*new QTreeWidgetItem(Set), Variant);
		}
		Sets.append(Set);
	}
	Tree->addTopLevelItems(Sets);
	for (QTreeWidgetItem* const Set : Sets)
	{
		Set->setExpanded(!Closed.contains(Set->text(VariantManagerDock::NameColumn)));
	}
	Tree->verticalScrollBar()->setValue(Scrolled);
}

void FVariantManagerDock::FitSummary(const std::vector<FVariantRow>& Rows)
{
	QMap<EVariantState, int> Counted;
	std::size_t NumVariants = 0;
	for (const FVariantRow& Row : Rows)
	{
		++Counted[Row.State];
		NumVariants += Row.Variants.size();
		for (const FVariantRow& Variant : Row.Variants)
		{
			++Counted[Variant.State];
		}
	}
	QStringList Parts = {tr("%1 sets").arg(Rows.size()), tr("%1 variants").arg(NumVariants)};
	for (const EVariantState State : {EVariantState::Missing, EVariantState::New, EVariantState::Stale})
	{
		if (Counted.value(State) > 0)
		{
			Parts.append(tr("%1 %2").arg(Counted.value(State)).arg(tr(VariantManagerDock::GetLook(State).Word)));
		}
	}
	if (!Rows.empty() && Parts.size() == 2 && Counted.value(EVariantState::Unknown) == 0)
	{
		Parts.append(tr("as in the configurator"));
	}
	Summary->setText(Parts.join(QStringLiteral(" · ")));
	Summary->setVisible(!Rows.empty());
}

void FVariantManagerDock::Filter()
{
	const FHostSearchWords Words(QtText::ToEditor(Search->text()));
	const auto IsWanted = [this, &Words](const QTreeWidgetItem& Item, const QString& Within) {
		const bool bDiffers = Item.data(VariantManagerDock::NameColumn, VariantManagerDock::DiffersRole).toBool();
		return (bDiffers || !Differences->isChecked()) && Words.AreIn(QtText::ToEditor(Within + QLatin1Char(' ') + Item.text(VariantManagerDock::NameColumn)));
	};
	for (int Index = 0; Index < Tree->topLevelItemCount(); ++Index)
	{
		QTreeWidgetItem& Set = *Tree->topLevelItem(Index);
		bool bAny = false;
		for (int Child = 0; Child < Set.childCount(); ++Child)
		{
			const bool bShows = IsWanted(*Set.child(Child), Set.text(VariantManagerDock::NameColumn));
			Set.child(Child)->setHidden(!bShows);
			bAny |= bShows;
		}
		Set.setHidden(!bAny && !IsWanted(Set, QString()));
	}
}

QString FVariantManagerDock::DescribeEmptiness(const VariantComparison::FSides& Sides) const
{
	if (Sides.Sets != nullptr)
	{
		return tr("%1 has no variant sets yet.\nThe menu of its configurator asset fills them in.").arg(VariantManagerDock::GetShortName(SetsName));
	}
	if (Sides.Configurator != nullptr)
	{
		return tr("%1 holds no rooms yet.\nIts menu gets them from the service.").arg(VariantManagerDock::GetShortName(ConfiguratorName));
	}
	if (AllConfigurators.isEmpty())
	{
		return tr("This project has no level variant sets, and no configurator asset to make them from.\nSign in, select a project, and create an asset from one of its configurators.");
	}
	return tr("This project has no level variant sets yet.\nSelect a configurator asset in the content browser: its menu makes them.");
}

/** The menu is that of the selected asset. */
void FVariantManagerDock::OpenConfiguratorMenu()
{
	ContentMenus::Clear(*ActMenu);
	Services.GetEditor().Do([this] {
		if (UObject* const Asset = VariantManagerDock::Load<UVelmorantConfiguratorDataAsset>(ConfiguratorName))
		{
			HostContentBrowser::SetSelection({FAssetData(Asset)});
		}
	});
	ContentMenus::FillContext(*ActMenu, Services);
}
