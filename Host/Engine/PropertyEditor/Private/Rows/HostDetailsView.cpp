// Copyright Velmorant. All Rights Reserved.

#include "HostDetailsView.h"

#include "HostParts.h"
#include "Rows/DetailsCategories.h"
#include "Rows/DetailsRowBuilder.h"
#include "Rows/DetailsSearch.h"
#include "Rows/DetailsSections.h"
#include "Rows/OpenDetailsViews.h"
#include "Values/PropertyHandleImpl.h"
#include "Values/PropertyPath.h"

FHostDetailsView::FHostDetailsView(const TArray<UObject*>& InObjects)
	: Root(FPropertyNode::MakeRoot(InObjects))
	, Categories(MakeUnique<FDetailsCategories>())
	, Sections(MakeUnique<FDetailsSections>([this](FName Section) { SetSection(Section); }))
	, Search(MakeUnique<FDetailsSearch>(*Categories))
	, Panel(SNew(SHostPartList))
{
	Panel->AddPart(Search->GetBox());
	Panel->AddPart(Sections->GetButtons());
	Panel->AddPart(Search->GetFound());
	OpenDetailsViews::Add(*this);
	Ticker = FTSTicker::GetCoreTicker().AddTicker(FTickerDelegate::CreateRaw(this, &FHostDetailsView::HandleTick));
	MakeRows();
}

FHostDetailsView::~FHostDetailsView()
{
	FTSTicker::RemoveTicker(Ticker);
	OpenDetailsViews::Remove(*this);
}

void FHostDetailsView::SetObjects(const TArray<UObject*>& InObjects)
{
	Root = FPropertyNode::MakeRoot(InObjects);
	MakeRows();
}

TArray<UObject*> FHostDetailsView::GetObjects() const
{
	return Root->GetObjects();
}

void FHostDetailsView::SetSection(FName InSection)
{
	Sections->Pick(InSection);
	MakeRows();
}

void FHostDetailsView::SetFilter(const FString& Text)
{
	Search->SetText(Text);
}

TSharedRef<SWidget> FHostDetailsView::GetWidget()
{
	Refresh();
	return Panel;
}

TArray<FString> FHostDetailsView::GetRowTitles()
{
	Refresh();
	return Categories->GetRowTitles();
}

const TArray<TSharedRef<SDetailsRow>>& FHostDetailsView::GetCategories() const
{
	return Categories->GetAll();
}

TSharedPtr<IPropertyHandle> FHostDetailsView::FindHandle(const FString& Path) const
{
	return FPropertyHandle::Make(PropertyPath::Find(Root, Path));
}

bool FHostDetailsView::HandleTick(float)
{
	Refresh();
	return true;
}

/** Objects that went, and elements that came or went. */
void FHostDetailsView::Refresh()
{
	if (Root->GetShown().HasLost())
	{
		Rebuild();
	}
	else if (Categories->FitElements())
	{
		Search->Apply();
	}
}

void FHostDetailsView::Rebuild()
{
	SetObjects(Root->GetShown().GetRemaining());
}

void FHostDetailsView::MakeRows()
{
	const TSharedRef<FPropertyNode> HeldWhileMaking = Root; // customizations may do anything
	Categories->Clear();
	for (const TSharedRef<FPropertyNode>& Node : HeldWhileMaking->GetChildren())
	{
		const FString Category = FDetailsCategories::FindCategory(*Node->GetProperty());
		if (!Sections->Show(Category, HeldWhileMaking->GetShown().FindCommonClass()))
		{
			continue;
		}
		const TArray<TSharedRef<SDetailsRow>> Rows = DetailsRowBuilder::MakeRows(Node);
		if (Root != HeldWhileMaking)
		{
			return; // a customization made the panel start anew, and that is done
		}
		for (const TSharedRef<SDetailsRow>& Row : Rows)
		{
			Categories->AddRow(Category, Row);
		}
	}
	Sections->MakeButtons(*Root);
	Search->Apply();
}
