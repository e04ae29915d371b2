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
	if (ScrollTarget != INDEX_NONE && (ScrollTarget < FirstItemInView || ScrollTarget >= FirstItemInView + HostRowsInView))
	{
		FirstItemInView = ScrollTarget;
	}
	FirstItemInView = FMath::Max(0, FMath::Min(FirstItemInView, NumItems - HostRowsInView));
	const int32 NumRows = FMath::Min(HostRowsInView, NumItems - FirstItemInView);

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

void STableViewBase::ListHostOptions(TArray<FString>& OutOptions)
{
	for (const TSharedRef<SWidget>& Row : FHostWidgetAccess::ChildrenOf(*this))
	{
		OutOptions.Add(FHostWidgetAccess::TextOf(*Row));
	}
}

FHostInputResult STableViewBase::TakeHostInput(const FHostInput& Input)
{
	return Input.Kind == EHostInput::Choose ? ChooseItem(Input.Text) : SCompoundWidget::TakeHostInput(Input);
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
	for (int32 First = 0; First < CountItems(); First += HostRowsInView)
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
