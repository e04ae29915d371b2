// Copyright Velmorant. All Rights Reserved.

#include "Widgets/PropertyRowView.h"

#include "Look/EditorStyle.h"
#include "Look/Theme.h"
#include "QtText.h"
#include "Widgets/TextView.h"

namespace PropertyRowView
{
	static const int Indent = 12; // for each line around
	static const int ArrowSize = 16;
	static const int LeastHeight = 28;
	static const double NameShare = 0.42;

	/** The ground of a line; that of a category is darker. */
	class FLine : public QWidget
	{
	public:
		using QWidget::QWidget;

		bool bCategory = false;
		std::function<void()> OnDoubleClicked;

		virtual QSize sizeHint() const override { return layout()->sizeHint().expandedTo(QSize(0, LeastHeight)); }
		virtual QSize minimumSizeHint() const override { return layout()->minimumSize().expandedTo(QSize(0, LeastHeight)); }

	protected:
		virtual void paintEvent(QPaintEvent*) override
		{
			QPainter Painter(this);
			if (bCategory || underMouse())
			{
				Painter.fillRect(rect(), Theme::GetColors().Header);
			}
			Painter.fillRect(0, height() - 1, width(), 1, Theme::GetColors().Line);
		}
		virtual void mouseDoubleClickEvent(QMouseEvent*) override { OnDoubleClicked(); }
		virtual void enterEvent(QEnterEvent*) override { update(); }
		virtual void leaveEvent(QEvent*) override { update(); }
	};

	/** The rows around a view's place; they hold each other's Qt widgets. */
	int DepthOf(const QWidget& Screen)
	{
		int Depth = 0;
		for (const QWidget* Around = Screen.parentWidget(); Around != nullptr; Around = Around->parentWidget())
		{
			Depth += Around->property("row").toBool() ? 1 : 0;
		}
		return Depth;
	}

	FSlotGeometry MakeSlot(double Fill, const QMargins& Padding = QMargins())
	{
		FSlotGeometry Slot;
		Slot.Fill = Fill;
		Slot.Padding = Padding;
		Slot.VerticalAlignment = VAlign_Center;
		return Slot;
	}

	/** What stands behind a value stands in its line, also when it is a list of things. */
	TArray<FHostWidgetPart> SideBySide(const FHostWidgetPart& Extension)
	{
		const bool bList = FHostWidgetAccess::Describe(*Extension.Widget).Role == TEXT("panel");
		TArray<FHostWidgetPart> Parts = bList ? FHostWidgetAccess::PartsOf(Extension.Widget) : TArray<FHostWidgetPart>{Extension};
		for (FHostWidgetPart& Part : Parts)
		{
			Part.Padding = FMargin(4.0f, 0.0f, 0.0f, 0.0f);
			Part.VerticalAlignment = VAlign_Center;
		}
		return Parts;
	}

	/** Fields take the whole column; what has a size of its own keeps it. */
	bool FillsColumn(const TSharedRef<SWidget>& Widget)
	{
		const FHostWidgetDescription Description = FHostWidgetAccess::Describe(*Widget);
		for (const TCHAR* Role : {TEXT("edit"), TEXT("search"), TEXT("combo"), TEXT("list"), TEXT("tiles"), TEXT("text")})
		{
			if (Description.Role == Role)
			{
				return true;
			}
		}
		for (const TSharedRef<SWidget>& Child : FHostWidgetAccess::ChildrenOf(*Widget))
		{
			if (FillsColumn(Child))
			{
				return true;
			}
		}
		return false;
	}
}

FPropertyRowView::FPropertyRowView(IViewHost& InHost, QWidget& Parent)
	: FWidgetView(InHost, *new QWidget(&Parent))
	, Column(new FSlateLayout(Qt::Vertical, &GetScreen()))
	, Line(new PropertyRowView::FLine(&GetScreen()))
	, LineLayout(new FSlateLayout(Qt::Horizontal, Line))
	, Arrow(new QToolButton(Line))
	, Heading(new FTextLabel(Line))
	, ValueBox(new QWidget(Line))
	, ValueLayout(new FSlateLayout(Qt::Horizontal, ValueBox))
	, NameBox(new QWidget(Line))
	, NameLayout(new FSlateLayout(Qt::Horizontal, NameBox))
	, Body(new QWidget(&GetScreen()))
	, BodyLayout(new FSlateLayout(Qt::Vertical, Body))
	, Name(InHost, *NameBox, *NameLayout)
	, Value(InHost, *ValueBox, *ValueLayout)
	, Below(InHost, *Body, *BodyLayout)
{
	GetScreen().setProperty("row", true);
	const int Indent = 4 + PropertyRowView::DepthOf(GetScreen()) * PropertyRowView::Indent;
	Arrow->setAutoRaise(true);
	Arrow->setFixedSize(PropertyRowView::ArrowSize, PropertyRowView::ArrowSize);
	Arrow->setArrowType(Qt::DownArrow);
	Arrow->setAccessibleName(QStringLiteral("Close"));
	Arrow->setFocusPolicy(Qt::TabFocus);
	connect(Arrow, &QToolButton::clicked, this, [this] { SetOpen(!bOpen); });
	static_cast<PropertyRowView::FLine*>(Line)->OnDoubleClicked = [this] { SetOpen(!bOpen); };

	// The arrow stands within the column of names, so that the columns of all lines are as wide.
	FSlateLayout* const Outer = LineLayout;
	QWidget* const NameColumn = new QWidget(Line);
	FSlateLayout* const NameColumnLayout = new FSlateLayout(Qt::Horizontal, NameColumn);
	NameColumnLayout->Add(Arrow, PropertyRowView::MakeSlot(-1.0, QMargins(Indent, 0, 4, 0)));
	NameColumnLayout->Add(Heading, PropertyRowView::MakeSlot(1.0));
	NameColumnLayout->Add(NameBox, PropertyRowView::MakeSlot(1.0));
	Outer->Add(NameColumn, PropertyRowView::MakeSlot(PropertyRowView::NameShare));
	Outer->Add(ValueBox, PropertyRowView::MakeSlot(1.0 - PropertyRowView::NameShare, QMargins(4, 1, 6, 2)));
	Column->Add(Line, FSlotGeometry());
	Column->Add(Body, FSlotGeometry());
}

void FPropertyRowView::SetOpen(bool bInOpen)
{
	bOpen = bInOpen;
	Arrow->setArrowType(bOpen ? Qt::DownArrow : Qt::RightArrow);
	Arrow->setAccessibleName(bOpen ? QStringLiteral("Close") : QStringLiteral("Open"));
	Host.RequestFrame();
}

void FPropertyRowView::Refresh(FSeenWidget& Seen)
{
	FitLine(Seen);
	TArray<FHostWidgetPart> Lines;
	for (const FHostWidgetPart& Part : Seen.GetParts())
	{
		if (Part.Kind == EHostPart::RowBelow)
		{
			FHostWidgetPart Row = Part;
			Row.VerticalAlignment = VAlign_Fill;
			Lines.Add(Row);
		}
	}
	QSizePolicy Policy = Arrow->sizePolicy();
	Policy.setRetainSizeWhenHidden(true);
	Arrow->setSizePolicy(Policy);
	Arrow->setVisible(!Lines.IsEmpty());
	Body->setVisible(bOpen && !Lines.IsEmpty());
	if (bOpen)
	{
		Below.Fit(Lines);
	}
}

void FPropertyRowView::FitLine(FSeenWidget& Seen)
{
	const bool bCategory = Seen.GetDescription().Role == TEXT("category");
	static_cast<PropertyRowView::FLine*>(Line)->bCategory = bCategory;
	Heading->setVisible(bCategory);
	NameBox->setVisible(!bCategory);
	ValueBox->setVisible(!bCategory);
	if (bCategory)
	{
		QFont Bold = Heading->font();
		if (!Bold.bold())
		{
			Bold.setBold(true);
			Heading->setFont(Bold);
		}
		Heading->SetText(QtText::From(Seen.GetDescription().Label));
		return;
	}
	TArray<FHostWidgetPart> Names;
	TArray<FHostWidgetPart> Values;
	for (const FHostWidgetPart& Part : Seen.GetParts())
	{
		FHostWidgetPart Placed = Part;
		if (Part.Kind == EHostPart::RowName)
		{
			Placed.Fill = 1.0f;
			Names.Add(Placed);
		}
		else if (Part.Kind == EHostPart::RowValue)
		{
			const bool bFills = PropertyRowView::FillsColumn(Part.Widget);
			Placed.Fill = bFills ? TOptional<float>(1.0f) : TOptional<float>();
			Placed.HorizontalAlignment = bFills ? HAlign_Fill : HAlign_Left;
			Values.Add(Placed);
		}
		else if (Part.Kind == EHostPart::RowExtension)
		{
			Values.Append(PropertyRowView::SideBySide(Placed));
		}
	}
	Name.Fit(Names);
	Value.Fit(Values);
}
