// Copyright Velmorant. All Rights Reserved.

#include "Docks/OutputLogDock.h"

#include "Docks/LogFilter.h"
#include "Look/Theme.h"
#include "QtText.h"

#include <algorithm>

namespace OutputLogDock
{
	static const std::size_t MostLines = 20000;
}

/** The lines that the filter lets through. */
class FLogModel : public QAbstractListModel
{
public:
	using QAbstractListModel::QAbstractListModel;

	FLogFilter Filter{OutputLogDock::MostLines};

	/** @return whether there are new categories */
	bool Update()
	{
		const FLogFilter::FChange Change = Filter.Update(HostLog::GetLines());
		if (Change.bAnew)
		{
			beginResetModel();
			NumRows = static_cast<int>(Filter.GetLines().size());
			endResetModel();
			return Change.bCategories;
		}
		if (Change.NumRemoved > 0)
		{
			beginRemoveRows(QModelIndex(), 0, static_cast<int>(Change.NumRemoved) - 1);
			NumRows -= static_cast<int>(Change.NumRemoved);
			endRemoveRows();
		}
		if (Change.NumAdded > 0)
		{
			beginInsertRows(QModelIndex(), NumRows, NumRows + static_cast<int>(Change.NumAdded) - 1);
			NumRows += static_cast<int>(Change.NumAdded);
			endInsertRows();
		}
		return Change.bCategories;
	}

	virtual int rowCount(const QModelIndex& Parent = QModelIndex()) const override { return Parent.isValid() ? 0 : NumRows; }

	virtual QVariant data(const QModelIndex& Index, int Role) const override
	{
		const std::size_t Row = static_cast<std::size_t>(Index.row());
		if (Row >= Filter.GetLines().size())
		{
			return QVariant(); // the view is being told
		}
		const FHostLogLine& Line = Filter.GetLines()[Row];
		switch (Role)
		{
			case Qt::DisplayRole:
			case Qt::ToolTipRole: return QtText::From(Line.ToString());
			case Qt::ForegroundRole: return GetColor(Line.Verbosity);
			default: return QVariant();
		}
	}

private:
	static QVariant GetColor(ELogVerbosity::Type Verbosity)
	{
		switch (Verbosity)
		{
			case ELogVerbosity::Fatal:
			case ELogVerbosity::Error: return Theme::GetColors().Bad;
			case ELogVerbosity::Warning: return Theme::GetColors().Pending;
			case ELogVerbosity::Verbose:
			case ELogVerbosity::VeryVerbose: return Theme::GetColors().Subtle;
			default: return QVariant();
		}
	}

	int NumRows = 0;
};

FOutputLogDock::FOutputLogDock(IWindowServices&, QWidget* Parent)
	: FDockView(Parent)
	, Model(new FLogModel(this))
	, Category(new QComboBox(this))
	, Verbosity(new QComboBox(this))
	, Search(new QLineEdit(this))
	, List(new QListView(this))
	, State(new QLabel(this))
{
	QVBoxLayout* const Layout = new QVBoxLayout(this);
	Layout->setContentsMargins(0, 0, 0, 4);
	Layout->setSpacing(2);
	Layout->addWidget(MakeBar());
	Layout->addWidget(List, 1);
	Layout->addWidget(State);
	List->setModel(Model);
	List->setObjectName(QStringLiteral("OutputLog"));
	List->setAccessibleName(tr("Output log"));
	List->setFrameShape(QFrame::NoFrame);
	List->setUniformItemSizes(true);
	List->setSelectionMode(QAbstractItemView::ExtendedSelection);
	List->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
	QAction* const CopyAction = new QAction(tr("Copy"), List);
	CopyAction->setShortcut(QKeySequence::Copy);
	CopyAction->setShortcutContext(Qt::WidgetShortcut);
	connect(CopyAction, &QAction::triggered, this, [this] { Copy(); });
	List->addAction(CopyAction);
	List->setContextMenuPolicy(Qt::ActionsContextMenu);
	State->setObjectName(QStringLiteral("OutputLogState"));
	State->setEnabled(false);
	State->setContentsMargins(8, 0, 8, 0);
}

QWidget* FOutputLogDock::MakeBar()
{
	QWidget* const Bar = new QWidget(this);
	QHBoxLayout* const Layout = new QHBoxLayout(Bar);
	Layout->setContentsMargins(6, 5, 6, 3);
	Search->setObjectName(QStringLiteral("OutputLogSearch"));
	Search->setPlaceholderText(tr("Search the log"));
	Search->setAccessibleName(Search->placeholderText());
	Search->setClearButtonEnabled(true);
	Category->setObjectName(QStringLiteral("OutputLogCategory"));
	Category->setAccessibleName(tr("Category"));
	Category->setMinimumWidth(110);
	Search->setMinimumWidth(90);
	Category->addItem(tr("All categories"));
	Verbosity->setObjectName(QStringLiteral("OutputLogVerbosity"));
	Verbosity->setAccessibleName(tr("Verbosity"));
	Verbosity->addItem(tr("Everything"), static_cast<int>(ELogVerbosity::All));
	Verbosity->addItem(tr("Without details"), static_cast<int>(ELogVerbosity::Log));
	Verbosity->addItem(tr("Warnings and errors"), static_cast<int>(ELogVerbosity::Warning));
	Verbosity->addItem(tr("Errors"), static_cast<int>(ELogVerbosity::Error));
	QPushButton* const CopyButton = new QPushButton(tr("Copy"), Bar);
	CopyButton->setToolTip(tr("Copy the selected lines, or all that show (Ctrl+C)"));
	CopyButton->setObjectName(QStringLiteral("OutputLogCopy"));
	QPushButton* const Clear = new QPushButton(tr("Clear"), Bar);
	Clear->setToolTip(tr("Hide what was logged until now"));
	Clear->setObjectName(QStringLiteral("OutputLogClear"));
	Layout->addWidget(Search, 1);
	for (QWidget* const Each : std::initializer_list<QWidget*>{Category, Verbosity, CopyButton, Clear})
	{
		Layout->addWidget(Each);
	}
	connect(Search, &QLineEdit::textChanged, this, [this](const QString& Text) {
		Model->Filter.SetSearch(QtText::ToEditor(Text));
		Refresh();
	});
	connect(Category, &QComboBox::currentIndexChanged, this, [this](int Index) {
		Model->Filter.SetCategory(Index <= 0 ? FName() : FName(QtText::ToEditor(Category->itemText(Index))));
		Refresh();
	});
	connect(Verbosity, &QComboBox::currentIndexChanged, this, [this] {
		Model->Filter.SetVerbosity(static_cast<ELogVerbosity::Type>(Verbosity->currentData().toInt()));
		Refresh();
	});
	connect(CopyButton, &QPushButton::clicked, this, [this] { Copy(); });
	connect(Clear, &QPushButton::clicked, this, [this] {
		Model->Filter.HideAll(HostLog::GetLines());
		Refresh();
	});
	return Bar;
}

/** Who looks at the end goes on seeing it. */
void FOutputLogDock::Refresh()
{
	const QScrollBar& Bar = *List->verticalScrollBar();
	const bool bAtEnd = Bar.value() == Bar.maximum();
	const int NumBefore = Model->rowCount();
	if (Model->Update())
	{
		FillCategories();
	}
	if (bAtEnd && Model->rowCount() != NumBefore)
	{
		List->scrollToBottom();
	}
	ShowState();
}

void FOutputLogDock::FillCategories()
{
	const QString Chosen = Category->currentIndex() > 0 ? Category->currentText() : QString();
	const QSignalBlocker Blocker(Category);
	Category->clear();
	Category->addItem(tr("All categories"));
	for (const FName Each : Model->Filter.GetCategories())
	{
		Category->addItem(QtText::From(Each));
	}
	if (!Chosen.isEmpty() && Category->findText(Chosen) < 0)
	{
		Category->addItem(Chosen); // of the editor before; more may come
	}
	Category->setCurrentIndex(Chosen.isEmpty() ? 0 : Category->findText(Chosen));
}

void FOutputLogDock::ShowState()
{
	const FLogFilter& Filter = Model->Filter;
	QString Text = tr("%1 of %2 lines").arg(Filter.GetLines().size()).arg(Filter.GetNumRead());
	if (Filter.GetNumDropped() > 0)
	{
		Text += tr("; %1 earlier ones are not kept").arg(Filter.GetNumDropped());
	}
	if (Filter.GetLines().empty())
	{
		Text = Filter.GetNumRead() == 0 ? tr("Nothing was logged yet.") : tr("No line is like that. Clear the search, or choose other categories and verbosities.");
	}
	if (State->text() != Text)
	{
		State->setText(Text);
	}
}

void FOutputLogDock::Copy()
{
	QModelIndexList Chosen = List->selectionModel()->selectedIndexes();
	std::sort(Chosen.begin(), Chosen.end());
	QStringList Lines;
	for (const QModelIndex& Index : Chosen)
	{
		Lines.append(Index.data().toString());
	}
	for (int Row = 0; Chosen.isEmpty() && Row < Model->rowCount(); ++Row)
	{
		Lines.append(Model->index(Row).data().toString());
	}
	QGuiApplication::clipboard()->setText(Lines.join(QLatin1Char('\n')));
}

void FOutputLogDock::LetGo()
{
	Model->Filter.Forget();
}
