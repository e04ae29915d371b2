// Copyright Velmorant. All Rights Reserved.

#include "Layout/SlateLayout.h"

#include <algorithm>
#include <cmath>

namespace SlateLayout
{
	/** How much of the room that is left over lies before the widget. */
	int GetSpareBefore(int Spare, bool bCentred, bool bAtEnd)
	{
		if (bAtEnd)
		{
			return Spare;
		}
		return bCentred ? Spare / 2 : 0;
	}

	int ToPixels(float Units)
	{
		return static_cast<int>(std::lround(Units));
	}

	int ToPixels(const TOptional<float>& Units)
	{
		return Units.IsSet() ? ToPixels(Units.GetValue()) : -1;
	}

	int Fit(int Length, int Least, int Most)
	{
		const int AtMost = Most >= 0 ? std::min(Length, Most) : Length;
		return Least >= 0 ? std::max(AtMost, Least) : AtMost;
	}
}

FSlotGeometry FSlotGeometry::Of(const FHostWidgetPart& Part)
{
	FSlotGeometry Slot;
	Slot.Padding = QMargins(SlateLayout::ToPixels(Part.Padding.Left), SlateLayout::ToPixels(Part.Padding.Top), SlateLayout::ToPixels(Part.Padding.Right), SlateLayout::ToPixels(Part.Padding.Bottom));
	Slot.HorizontalAlignment = Part.HorizontalAlignment;
	Slot.VerticalAlignment = Part.VerticalAlignment;
	Slot.Fill = Part.Fill.IsSet() ? static_cast<double>(Part.Fill.GetValue()) : -1.0;
	Slot.MaxSize = SlateLayout::ToPixels(Part.MaxSize);
	return Slot;
}

FSizeOverrides FSizeOverrides::Of(const FHostWidgetLook& Look)
{
	using SlateLayout::ToPixels;
	return {ToPixels(Look.Width), ToPixels(Look.Height), ToPixels(Look.MinWidth), ToPixels(Look.MinHeight), ToPixels(Look.MaxWidth), ToPixels(Look.MaxHeight)};
}

QSize FSizeOverrides::Apply(QSize Wanted) const
{
	const int X = Width >= 0 ? Width : SlateLayout::Fit(Wanted.width(), MinWidth, MaxWidth);
	const int Y = Height >= 0 ? Height : SlateLayout::Fit(Wanted.height(), MinHeight, MaxHeight);
	return QSize(X, Y);
}

FSlateLayout::FSlateLayout(Qt::Orientation InDirection, QWidget* Parent)
	: QLayout(Parent)
	, Direction(InDirection)
{
	setContentsMargins(0, 0, 0, 0);
}

FSlateLayout::~FSlateLayout()
{
	for (const FPlace& Place : Places)
	{
		delete Place.Item;
	}
}

void FSlateLayout::SetDirection(Qt::Orientation InDirection)
{
	if (Direction != InDirection)
	{
		Direction = InDirection;
		invalidate();
	}
}

void FSlateLayout::SetOverrides(const FSizeOverrides& InOverrides)
{
	if (!(Overrides == InOverrides))
	{
		Overrides = InOverrides;
		invalidate();
	}
}

void FSlateLayout::SetTile(QSize InTile)
{
	if (Tile != InTile)
	{
		Tile = InTile;
		invalidate();
	}
}

void FSlateLayout::Add(QWidget* Widget, const FSlotGeometry& Slot)
{
	addChildWidget(Widget);
	Places.push_back(FPlace{new QWidgetItem(Widget), Slot});
	invalidate();
}

void FSlateLayout::SetSlot(int Index, const FSlotGeometry& Slot)
{
	FPlace& Place = Places[static_cast<std::size_t>(Index)];
	if (!(Place.Slot == Slot))
	{
		Place.Slot = Slot;
		invalidate();
	}
}

void FSlateLayout::Replace(int Index, QWidget* Widget)
{
	addChildWidget(Widget);
	FPlace& Place = Places[static_cast<std::size_t>(Index)];
	delete Place.Item;
	Place.Item = new QWidgetItem(Widget);
	invalidate();
}

void FSlateLayout::RemoveAt(int Index)
{
	delete takeAt(Index);
}

void FSlateLayout::addItem(QLayoutItem* Item)
{
	Places.push_back(FPlace{Item, FSlotGeometry()});
}

QLayoutItem* FSlateLayout::itemAt(int Index) const
{
	return Index >= 0 && Index < count() ? Places[static_cast<std::size_t>(Index)].Item : nullptr;
}

QLayoutItem* FSlateLayout::takeAt(int Index)
{
	if (Index < 0 || Index >= count())
	{
		return nullptr;
	}
	QLayoutItem* const Item = Places[static_cast<std::size_t>(Index)].Item;
	Places.erase(Places.begin() + Index);
	invalidate();
	return Item;
}

int FSlateLayout::count() const
{
	return static_cast<int>(Places.size());
}

void FSlateLayout::invalidate()
{
	KnownHint = QSize();
	KnownLeast = QSize();
	QLayout::invalidate();
}

/** Without its padding. @param Width of the place, for texts that are higher where they are narrow; negative: unknown */
QSize FSlateLayout::WantOf(const FPlace& Place, EWant Want, int Width) const
{
	QSize Size = Want == EWant::Hint ? Place.Item->sizeHint() : Place.Item->minimumSize();
	if (Width >= 0 && Place.Item->hasHeightForWidth())
	{
		const bool bFillsWidth = Place.Slot.HorizontalAlignment == HAlign_Fill;
		Size.setHeight(Place.Item->heightForWidth(bFillsWidth ? Width : std::min(Width, Place.Item->sizeHint().width())));
	}
	if (Place.Slot.MaxSize > 0)
	{
		Size = Make(std::min(Along(Size), Place.Slot.MaxSize), Across(Size));
	}
	return Size;
}

QSize FSlateLayout::Sum(EWant Want) const
{
	int SumAlong = 0;
	int MostAcross = 0;
	for (const FPlace& Place : Places)
	{
		if (Place.Item->isEmpty())
		{
			continue;
		}
		const QSize Size = WantOf(Place, Want, -1).grownBy(Place.Slot.Padding);
		SumAlong += Along(Size);
		MostAcross = std::max(MostAcross, Across(Size));
	}
	return Overrides.Apply(Make(SumAlong, MostAcross));
}

QSize FSlateLayout::sizeHint() const
{
	if (!KnownHint.isValid())
	{
		KnownHint = Sum(EWant::Hint).grownBy(contentsMargins());
	}
	return KnownHint;
}

QSize FSlateLayout::minimumSize() const
{
	if (!KnownLeast.isValid())
	{
		KnownLeast = Sum(EWant::Least).grownBy(contentsMargins());
	}
	return KnownLeast;
}

bool FSlateLayout::hasHeightForWidth() const
{
	return Overrides.Height < 0 && std::any_of(Places.begin(), Places.end(), [](const FPlace& Place) { return !Place.Item->isEmpty() && Place.Item->hasHeightForWidth(); });
}

int FSlateLayout::heightForWidth(int Width) const
{
	return HeightFor(Width, EWant::Hint);
}

int FSlateLayout::minimumHeightForWidth(int Width) const
{
	return HeightFor(Width, EWant::Least);
}

int FSlateLayout::HeightFor(int Width, EWant Want) const
{
	const QMargins Margins = contentsMargins();
	const int Room = Width - Margins.left() - Margins.right();
	const std::vector<int> Lengths = IsRow() ? Share(Room, -1) : std::vector<int>();
	int Height = 0;
	for (std::size_t Index = 0; Index < Places.size(); ++Index)
	{
		const FPlace& Place = Places[Index];
		if (Place.Item->isEmpty())
		{
			continue;
		}
		const QMargins& Padding = Place.Slot.Padding;
		const int PlaceWidth = (IsRow() ? Lengths[Index] : Room) - Padding.left() - Padding.right();
		const int PlaceHeight = WantOf(Place, Want, PlaceWidth).height() + Padding.top() + Padding.bottom();
		Height = IsRow() ? std::max(Height, PlaceHeight) : Height + PlaceHeight;
	}
	return Overrides.Apply(QSize(Room, Height)).height() + Margins.top() + Margins.bottom();
}

std::vector<int> FSlateLayout::Share(int Room, int Width) const
{
	std::vector<int> Lengths(Places.size(), 0);
	std::vector<int> Least(Places.size(), 0);
	int Taken = 0;
	double Shares = 0.0;
	for (std::size_t Index = 0; Index < Places.size(); ++Index)
	{
		const FPlace& Place = Places[Index];
		if (Place.Item->isEmpty())
		{
			continue;
		}
		const QMargins& Padding = Place.Slot.Padding;
		const int Around = IsRow() ? Padding.left() + Padding.right() : Padding.top() + Padding.bottom();
		const int PlaceWidth = Width < 0 ? -1 : Width - Padding.left() - Padding.right();
		Least[Index] = Along(WantOf(Place, EWant::Least, PlaceWidth)) + Around;
		Lengths[Index] = Place.Slot.Fills() ? Least[Index] : Along(WantOf(Place, EWant::Hint, PlaceWidth)) + Around;
		Taken += Lengths[Index];
		Shares += Place.Slot.Fills() ? Place.Slot.Fill : 0.0;
	}
	if (Taken > Room)
	{
		// Too little for all: each gives up a part of what it can spare.
		int Spare = 0;
		for (std::size_t Index = 0; Index < Lengths.size(); ++Index)
		{
			Spare += std::max(0, Lengths[Index] - Least[Index]);
		}
		const double Part = Spare > 0 ? std::min(1.0, static_cast<double>(Taken - Room) / Spare) : 0.0;
		for (std::size_t Index = 0; Index < Lengths.size(); ++Index)
		{
			Lengths[Index] -= static_cast<int>(std::lround(std::max(0, Lengths[Index] - Least[Index]) * Part));
		}
		return Lengths;
	}
	// What fills shares all that the others leave, but none gets less than it needs.
	int Left = Room - Taken;
	for (std::size_t Index = 0; Index < Places.size(); ++Index)
	{
		if (!Places[Index].Item->isEmpty() && Places[Index].Slot.Fills())
		{
			Left += Least[Index];
		}
	}
	double SharesLeft = Shares;
	for (bool bSettled = false; !bSettled;)
	{
		bSettled = true;
		for (std::size_t Index = 0; Index < Places.size(); ++Index)
		{
			const FSlotGeometry& Slot = Places[Index].Slot;
			const bool bOpen = !Places[Index].Item->isEmpty() && Slot.Fills() && Lengths[Index] >= 0 && SharesLeft > 0.0;
			if (bOpen && Left * Slot.Fill / SharesLeft < Least[Index])
			{
				Left -= Least[Index];
				SharesLeft -= Slot.Fill;
				Lengths[Index] = -1 - Least[Index]; // settled: marked by its sign until the end
				bSettled = false;
			}
		}
	}
	for (std::size_t Index = 0; Index < Places.size(); ++Index)
	{
		const FSlotGeometry& Slot = Places[Index].Slot;
		if (Places[Index].Item->isEmpty() || !Slot.Fills())
		{
			continue;
		}
		if (Lengths[Index] < 0)
		{
			Lengths[Index] = -1 - Lengths[Index];
		}
		else if (SharesLeft > 0.0)
		{
			const int Length = static_cast<int>(std::lround(Left * Slot.Fill / SharesLeft));
			Left -= Length;
			SharesLeft -= Slot.Fill;
			Lengths[Index] = Length;
		}
	}
	return Lengths;
}

void FSlateLayout::setGeometry(const QRect& Rect)
{
	QLayout::setGeometry(Rect);
	const QRect Inner = Rect.marginsRemoved(contentsMargins());
	if (Tile.isValid())
	{
		const int Columns = std::max(1, Inner.width() / std::max(1, Tile.width()));
		for (int Index = 0; Index < count(); ++Index)
		{
			const QPoint Corner(Inner.left() + Index % Columns * Tile.width(), Inner.top() + Index / Columns * Tile.height());
			PutInto(Places[static_cast<std::size_t>(Index)], QRect(Corner, Tile));
		}
		return;
	}
	const std::vector<int> Lengths = Share(Along(Inner.size()), IsRow() ? -1 : Inner.width());
	int Begin = IsRow() ? Inner.left() : Inner.top();
	for (std::size_t Index = 0; Index < Places.size(); ++Index)
	{
		if (Places[Index].Item->isEmpty())
		{
			continue;
		}
		const QPoint Corner = IsRow() ? QPoint(Begin, Inner.top()) : QPoint(Inner.left(), Begin);
		PutInto(Places[Index], QRect(Corner, Make(Lengths[Index], Across(Inner.size()))));
		Begin += Lengths[Index];
	}
}

void FSlateLayout::PutInto(const FPlace& Place, const QRect& Rect) const
{
	const FSlotGeometry& Slot = Place.Slot;
	const QRect Room = Rect.marginsRemoved(Slot.Padding);
	const QSize Wanted = WantOf(Place, EWant::Hint, Room.width());
	QSize Size = Room.size();
	QPoint Corner = Room.topLeft();
	if (Slot.HorizontalAlignment != HAlign_Fill)
	{
		Size.setWidth(std::min(Size.width(), Wanted.width()));
		const int Spare = Room.width() - Size.width();
		Corner.rx() += SlateLayout::GetSpareBefore(Spare, Slot.HorizontalAlignment == HAlign_Center, Slot.HorizontalAlignment == HAlign_Right);
	}
	if (Slot.VerticalAlignment != VAlign_Fill)
	{
		Size.setHeight(std::min(Size.height(), Wanted.height()));
		const int Spare = Room.height() - Size.height();
		Corner.ry() += SlateLayout::GetSpareBefore(Spare, Slot.VerticalAlignment == VAlign_Center, Slot.VerticalAlignment == VAlign_Bottom);
	}
	Place.Item->setGeometry(QRect(Corner, Size));
}
