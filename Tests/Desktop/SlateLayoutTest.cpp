// Copyright Velmorant. All Rights Reserved.

#include "TestHeaders.h"

#include "Layout/SlateLayout.h"

namespace SlateLayoutTest
{
	/** Wants a size, and can do with half of it. */
	class FBlock : public QWidget
	{
	public:
		explicit FBlock(QSize InWanted)
			: Wanted(InWanted)
		{
		}
		virtual QSize sizeHint() const override { return Wanted; }
		virtual QSize minimumSizeHint() const override { return Wanted / 2; }

	private:
		QSize Wanted;
	};

	struct FPlace
	{
		QSize Wanted;
		FSlotGeometry Slot;
		bool bHidden = false;
	};

	FSlotGeometry Auto(EHorizontalAlignment Horizontal = HAlign_Fill, EVerticalAlignment Vertical = VAlign_Fill)
	{
		FSlotGeometry Slot;
		Slot.HorizontalAlignment = Horizontal;
		Slot.VerticalAlignment = Vertical;
		return Slot;
	}

	FSlotGeometry Fill(double Share)
	{
		FSlotGeometry Slot;
		Slot.Fill = Share;
		return Slot;
	}

	FSlotGeometry Padded(int Left, int Top, int Right, int Bottom)
	{
		FSlotGeometry Slot;
		Slot.Padding = QMargins(Left, Top, Right, Bottom);
		return Slot;
	}

	FSlotGeometry AtMost(int Size)
	{
		FSlotGeometry Slot;
		Slot.MaxSize = Size;
		return Slot;
	}
}

TEST(SlateLayout, PutsWidgetsWhereTheBoxPanelWould)
{
	using namespace SlateLayoutTest;
	struct FCase
	{
		const char* Behaviour;
		Qt::Orientation Direction;
		QSize Room;
		std::vector<FPlace> Places;
		std::vector<QRect> Expected; // of those that show
	};
	const QSize Block(40, 20);
	const FCase Cases[] = {
		{"what asks for its size gets it, and the rest stays free", Qt::Horizontal, {200, 30}, {{Block, Auto()}, {Block, Auto()}}, {{0, 0, 40, 30}, {40, 0, 40, 30}}},
		{"what fills shares by its coefficient", Qt::Horizontal, {200, 20}, {{Block, Auto()}, {Block, Fill(1.0)}, {Block, Fill(3.0)}}, {{0, 0, 40, 20}, {40, 0, 40, 20}, {80, 0, 120, 20}}},
		{"none gets less than it needs, at the others' cost", Qt::Horizontal, {100, 20}, {{{80, 20}, Fill(1.0)}, {{20, 20}, Fill(9.0)}}, {{0, 0, 40, 20}, {40, 0, 60, 20}}},
		{"padding is around the widget", Qt::Vertical, {100, 100}, {{Block, Padded(5, 6, 7, 8)}, {Block, Auto()}}, {{5, 6, 88, 20}, {0, 34, 100, 20}}},
		{"alignment places it within its room", Qt::Vertical, {100, 40}, {{Block, Auto(HAlign_Right)}, {Block, Auto(HAlign_Center)}}, {{60, 0, 40, 20}, {30, 20, 40, 20}}},
		{"also across a row", Qt::Horizontal, {100, 60}, {{Block, Auto(HAlign_Fill, VAlign_Bottom)}, {Block, Auto(HAlign_Fill, VAlign_Center)}}, {{0, 40, 40, 20}, {40, 20, 40, 20}}},
		{"a limit holds along the box", Qt::Vertical, {100, 100}, {{{40, 80}, AtMost(50)}, {Block, Auto()}}, {{0, 0, 100, 50}, {0, 50, 100, 20}}},
		{"what does not show takes no room", Qt::Horizontal, {100, 20}, {{Block, Auto(), true}, {Block, Auto()}}, {{0, 0, 40, 20}}},
		{"with too little room, each gives up a part", Qt::Horizontal, {60, 20}, {{Block, Auto()}, {Block, Auto()}}, {{0, 0, 30, 20}, {30, 0, 30, 20}}},
	};
	for (const FCase& Case : Cases)
	{
		SCOPED_TRACE(Case.Behaviour);
		QWidget Box;
		FSlateLayout* const Layout = new FSlateLayout(Case.Direction, &Box);
		std::vector<QWidget*> Shown;
		for (const FPlace& Place : Case.Places)
		{
			QWidget* const Widget = new FBlock(Place.Wanted);
			Layout->Add(Widget, Place.Slot);
			Widget->setVisible(!Place.bHidden);
			if (!Place.bHidden)
			{
				Shown.push_back(Widget);
			}
		}
		Layout->setGeometry(QRect(QPoint(), Case.Room));
		for (std::size_t Index = 0; Index < Shown.size(); ++Index)
		{
			EXPECT_EQ(Shown[Index]->geometry(), Case.Expected[Index]) << Index;
		}
	}
}

TEST(SlateLayout, AsksForWhatItsWidgetsAndTheSizeBoxAskFor)
{
	using namespace SlateLayoutTest;
	QWidget Box;
	FSlateLayout* const Layout = new FSlateLayout(Qt::Vertical, &Box);
	Layout->Add(new FBlock(QSize(40, 20)), Padded(1, 2, 3, 4));
	Layout->Add(new FBlock(QSize(60, 30)), Fill(1.0));
	EXPECT_EQ(Layout->sizeHint(), QSize(60, 56));

	FSizeOverrides Overrides;
	Overrides.Width = 25;
	Overrides.MaxHeight = 50;
	Layout->SetOverrides(Overrides);
	EXPECT_EQ(Layout->sizeHint(), QSize(25, 50));
	EXPECT_EQ(Layout->minimumSize(), QSize(25, 31)) << "half of each, and the padding";
}
