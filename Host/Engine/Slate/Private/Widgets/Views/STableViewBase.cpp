// Copyright Velmorant. All Rights Reserved.

#include "Widgets/Views/STableViewBase.h"

#include "Containers/Ticker.h"
#include "HostParts.h"
#include "HostWidget.h"
#include "Widgets/Views/ITableRow.h"
#include "Widgets/Views/STableRow.h"

void STableViewBase::RequestListRefresh()
{
	if (!bRefreshPending)
	{
		bRefreshPending = true;
		FTSTicker::GetCoreTicker().AddTicker(FTickerDelegate::CreateSP(this, &STableViewBase::HandleTick), 0.0f);
	}
}

bool STableViewBase::HandleTick(float)
{
	bRefreshPending = false; // first: making rows may ask for another refresh
	ReadItems();
	GenerateRows();
	return false;
}

void STableViewBase::GenerateRows()
{
	const int32 NumItems = CountItems();
	const int32 ScrollTarget = TakeScrollTarget();
	if (ScrollTarget != INDEX_NONE && (ScrollTarget < FirstItemInView || ScrollTarget >= FirstItemInView + NumRowsInView))
	{
		FirstItemInView = ScrollTarget;
	}
	FirstItemInView = FMath::Max(0, FMath::Min(FirstItemInView, NumItems - NumRowsInView));
	const int32 NumRows = FMath::Min(NumRowsInView, NumItems - FirstItemInView);

	KeepRows(FirstItemInView, NumRows);
	Rows.Empty();
	for (int32 Row = 0; Row < NumRows; ++Row)
	{
		HostParts::Add(MakeRow(FirstItemInView + Row)->AsWidget(), Rows);
	}
}

void STableViewBase::DescribeToHost(FHostWidgetDescription& OutDescription) const
{
	const int32 NumItems = bRefreshPending ? CountSourceItems() : CountItems(); // a view is asked once it has settled
	OutDescription.Role = GetHostRole();
	OutDescription.Notes.Add(FString::Printf(TEXT("%d %s"), NumItems, NumItems == 1 ? TEXT("item") : TEXT("items")));
	OutDescription.bBusy = bRefreshPending;
}

void STableViewBase::NoteTileSize(float Width, float Height, FHostWidgetDescription& OutDescription)
{
	OutDescription.Notes.Add(FString::Printf(TEXT("%s x %s each"), *FString::SanitizeFloat(Width, 0), *FString::SanitizeFloat(Height, 0)));
}

void STableViewBase::NoteTiles(float Width, float Height, FHostWidgetLook& OutLook)
{
	OutLook.bTiles = true;
	OutLook.Width = Width;
	OutLook.Height = Height;
}

int32 STableViewBase::FindItemOfRow(const SWidget& Row) const
{
	TPanelChildren<FSlotBase>& Shown = const_cast<STableViewBase*>(this)->Rows;
	for (int32 Index = 0; Index < Shown.Num(); ++Index)
	{
		if (&Shown.GetChildAt(Index).Get() == &Row)
		{
			return FirstItemInView + Index;
		}
	}
	return INDEX_NONE;
}

void STableViewBase::DescribeRowToHost(const SWidget& Row, FHostWidgetDescription& OutDescription) const
{
	const int32 ItemIndex = FindItemOfRow(Row);
	OutDescription.Role = TEXT("item");
	OutDescription.bTransparent = false;
	OutDescription.bSelected = ItemIndex != INDEX_NONE && ItemIndex < CountItems() && IsItemIndexSelected(ItemIndex);
}

FHostInputResult STableViewBase::GiveRowInput(const SWidget& Row, const FHostInput& Input)
{
	const int32 ItemIndex = FindItemOfRow(Row);
	if (Input.Kind != EHostInput::Click)
	{
		return FHostInputResult::Refused(TEXT("takes no such input"));
	}
	if (bRefreshPending || ItemIndex == INDEX_NONE || ItemIndex >= CountItems())
	{
		return FHostInputResult::Refused(TEXT("is about to be replaced: the list has changed"));
	}
	ClickItem(ItemIndex);
	return FHostInputResult::Done();
}

void STableViewBase::ListHostOptions(TArray<TSharedRef<SWidget>>& OutOptions)
{
	OutOptions = FHostWidgetAccess::ChildrenOf(*this);
}

FHostInputResult STableViewBase::TakeHostInput(const FHostInput& Input)
{
	if (Input.Kind == EHostInput::Scroll)
	{
		Scroll(Input.Index, Input.Count);
		return FHostInputResult::Done();
	}
	if (Input.Kind == EHostInput::Move)
	{
		return MoveSelection(Input.Index);
	}
	return Input.Kind == EHostInput::Choose ? ChooseItem(Input.Text) : SCompoundWidget::TakeHostInput(Input);
}

/** A list that is about to be refreshed keeps the place for it. */
void STableViewBase::Scroll(int32 FirstItem, int32 NumItems)
{
	const int32 NumRows = FMath::Max(1, NumItems);
	if (FirstItem != FirstItemInView || NumRows != NumRowsInView)
	{
		FirstItemInView = FMath::Max(0, FirstItem);
		NumRowsInView = NumRows;
		if (!bRefreshPending)
		{
			GenerateRows();
		}
	}
}

/** Ends at the first and the last item, and scrolls to what is selected then. */
FHostInputResult STableViewBase::MoveSelection(int32 NumItems)
{
	if (bRefreshPending || CountItems() == 0)
	{
		return FHostInputResult::Refused(TEXT("has no items to move to"));
	}
	int32 Selected = 0;
	while (Selected < CountItems() && !IsItemIndexSelected(Selected))
	{
		++Selected;
	}
	const bool bNone = Selected == CountItems();
	const int32 Beside = NumItems > 0 ? FirstItemInView - 1 : FirstItemInView + 1; // one step selects the first that is seen
	const int32 Target = FMath::Clamp((bNone ? Beside : Selected) + NumItems, 0, CountItems() - 1);
	if (Target < FirstItemInView || Target >= FirstItemInView + NumRowsInView)
	{
		FirstItemInView = Target;
		GenerateRows();
	}
	if (bNone || Target != Selected)
	{
		MoveToItem(Target);
	}
	return FHostInputResult::Done();
}

void STableViewBase::DescribeLookToHost(FHostWidgetLook& OutLook) const
{
	OutLook.NumItems = CountItems();
	OutLook.FirstItem = FirstItemInView;
}

FHostInputResult STableViewBase::ChooseItem(const FString& Shown)
{
	if (bRefreshPending)
	{
		ReadItems(); // as the tick will: a person is not that fast
	}
	const auto IsWholeRow = [&Shown](SWidget& Row) { return FHostWidgetAccess::TextOf(Row).Equals(Shown) || FHostWidgetAccess::Describe(Row).ToolTip.Equals(Shown); };
	const auto IsPartOfRow = [&Shown](SWidget& Row) { return FHostWidgetAccess::ShowsText(Row, Shown); };
	if (ClickFirst(IsWholeRow) || ClickFirst(IsPartOfRow))
	{
		return FHostInputResult::Done();
	}
	return FHostInputResult::Refused(FString::Printf(TEXT("has no item \"%s\""), *Shown));
}

/** Scrolls through the items as a person would, a view at a time, to the first row that is meant. */
bool STableViewBase::ClickFirst(TFunctionRef<bool(SWidget&)> IsMeant)
{
	for (int32 First = 0; First < CountItems(); First += NumRowsInView)
	{
		FirstItemInView = First;
		GenerateRows();
		for (int32 Row = 0; Row < Rows.Num(); ++Row)
		{
			if (IsMeant(*Rows.GetChildAt(Row)))
			{
				ClickItem(FirstItemInView + Row);
				return true;
			}
		}
	}
	return false;
}

void STableRowBorder::DescribeToHost(FHostWidgetDescription& OutDescription) const
{
	if (const TSharedPtr<STableViewBase> Owner = OwnerTable.Pin())
	{
		Owner->DescribeRowToHost(*this, OutDescription);
	}
}

FHostInputResult STableRowBorder::TakeHostInput(const FHostInput& Input)
{
	const TSharedPtr<STableViewBase> Owner = OwnerTable.Pin();
	return Owner ? Owner->GiveRowInput(*this, Input) : FHostInputResult::Refused(TEXT("belongs to a list that is gone"));
}
