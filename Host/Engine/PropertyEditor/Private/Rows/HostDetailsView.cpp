// Copyright Velmorant. All Rights Reserved.

#include "HostDetailsView.h"

#include "DetailWidgetRow.h"
#include "HostParts.h"
#include "HostSearchWords.h"
#include "PropertyEditorRegistrations.h"
#include "Rows/DetailsRowBuilder.h"
#include "Rows/OpenDetailsViews.h"
#include "Values/PropertyHandleImpl.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Input/SSearchBox.h"

#define LOCTEXT_NAMESPACE "DetailsView"

namespace DetailsView
{
	/** Metadata Category; properties without one stand under their class's name. */
	static FString GetCategory(const FProperty& Property)
	{
		const FString& Category = Property.GetMetaData(TEXT("Category"));
		return Category.IsEmpty() ? Property.GetOwnerStruct()->GetName() : Category;
	}

	/** By the category's whole name, or by that of the category around it. */
	static bool HasCategory(const FPropertySection& Section, const FString& Category)
	{
		FString Outermost = Category;
		Category.Split(TEXT("|"), &Outermost, nullptr);
		return Section.HasAddedCategory(FName(*Category)) || Section.HasAddedCategory(FName(*Outermost));
	}

	static void CollectTitles(const TArray<TSharedRef<SDetailsRow>>& Rows, TArray<FString>& OutTitles)
	{
		for (const TSharedRef<SDetailsRow>& Row : Rows)
		{
			const FString Title = Row->GetTitle();
			const FString Path = Row->GetTag().IsNone() ? FString() : Row->GetTag().ToString();
			FString Text = Title.IsEmpty() ? Path : Title;
			if (!Path.IsEmpty() && !Path.Equals(Text))
			{
				Text += TEXT(" (") + Path + TEXT(")");
			}
			if (!Text.IsEmpty() && !Row->IsHeading())
			{
				OutTitles.Add(Text);
			}
			CollectTitles(Row->GetRows(), OutTitles);
		}
	}

	/** The part of a path up to the next member or element, taken from its front. */
	static FString TakePart(FString& InOutPath)
	{
		const bool bElement = InOutPath.StartsWith(TEXT("["));
		int32 End = bElement ? InOutPath.Find(TEXT("]")) + 1 : 0;
		while (!bElement && End < InOutPath.Len() && InOutPath[End] != TEXT('.') && InOutPath[End] != TEXT('['))
		{
			++End;
		}
		const FString Part = InOutPath.Left(End);
		InOutPath = InOutPath.RightChop(End);
		InOutPath.RemoveFromStart(TEXT("."));
		return Part;
	}
}

FHostDetailsView::FHostDetailsView(const TArray<UObject*>& InObjects)
	: Root(FPropertyNode::MakeRoot(InObjects))
	, Panel(SNew(SHostPartList))
	, SectionButtons(SNew(SHostPartList))
	, Body(SNew(SHostPartList))
{
	// clang-format off
	SAssignNew(SearchBox, SSearchBox)
		.HintText(LOCTEXT("SearchHint", "Search Details"))
		.OnTextChanged_Lambda([this](const FText&) { ApplySearch(); });
	// clang-format on
	Panel->AddPart(SearchBox.ToSharedRef());
	Panel->AddPart(SectionButtons);
	Panel->AddPart(Body);
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
	Section = InSection;
	MakeRows();
}

void FHostDetailsView::SetFilter(const FString& Text)
{
	SearchBox->SetText(FText::FromString(Text)); // tells, unless it is the same
}

TSharedRef<SWidget> FHostDetailsView::GetWidget()
{
	Refresh();
	return Panel;
}

TArray<FString> FHostDetailsView::GetRowTitles()
{
	Refresh();
	TArray<FString> Titles;
	for (const TSharedRef<SDetailsRow>& Category : Categories)
	{
		DetailsView::CollectTitles(Category->GetRows(), Titles);
	}
	return Titles;
}

TSharedPtr<IPropertyHandle> FHostDetailsView::FindHandle(const FString& Path) const
{
	TSharedPtr<FPropertyNode> Node = Root->HasValues() ? TSharedPtr<FPropertyNode>(Root) : nullptr;
	FString Rest = Path;
	while (Node.IsValid() && !Rest.IsEmpty())
	{
		const FString Part = DetailsView::TakePart(Rest);
		const TSharedRef<FPropertyNode>* Child = Node->GetChildren().FindByPredicate([&Part](const TSharedRef<FPropertyNode>& Each) { return Each->GetName() == Part; });
		Node = Child != nullptr ? TSharedPtr<FPropertyNode>(*Child) : nullptr;
	}
	return Node == Root ? nullptr : FPropertyHandle::Make(Node);
}

bool FHostDetailsView::HandleTick(float)
{
	Refresh();
	return true;
}

/** Objects that went, and elements that came or went. */
void FHostDetailsView::Refresh()
{
	if (Root->HasLostObjects())
	{
		SetObjects(Root->GetRemainingObjects());
		return;
	}
	bool bChanged = false;
	for (const TSharedRef<SDetailsRow>& Category : Categories)
	{
		bChanged |= Category->FitElements();
	}
	if (bChanged)
	{
		ApplySearch();
	}
}

void FHostDetailsView::Rebuild()
{
	SetObjects(Root->GetRemainingObjects());
}

void FHostDetailsView::MakeRows()
{
	const TSharedRef<FPropertyNode> HeldWhileMaking = Root; // customizations may do anything
	Categories.Empty();
	CategoriesByPath.Empty();
	for (const TSharedRef<FPropertyNode>& Node : HeldWhileMaking->GetChildren())
	{
		const FString Category = DetailsView::GetCategory(*Node->GetProperty());
		if (!Section.IsNone() && !IsInSection(Category, *HeldWhileMaking->GetClass()))
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
			AddToCategory(Category, Row);
		}
	}
	MakeSectionButtons();
	ApplySearch();
}

/** Makes the category, and those around it, when it is not there yet. */
void FHostDetailsView::AddToCategory(const FString& Category, const TSharedRef<SDetailsRow>& Row)
{
	if (const TSharedRef<SDetailsRow>* Known = CategoriesByPath.Find(Category))
	{
		(*Known)->AddRow(Row);
		return;
	}
	FString Outer;
	FString Title = Category;
	const bool bInner = Category.Split(TEXT("|"), &Outer, &Title, ESearchCase::IgnoreCase, ESearchDir::FromEnd);
	const TSharedRef<SDetailsRow> Heading = SNew(SDetailsRow, FDetailWidgetRow()).Heading(FText::FromString(Title.TrimStartAndEnd()));
	Heading->AddRow(Row);
	CategoriesByPath.Add(Category, Heading);
	if (bInner)
	{
		AddToCategory(Outer, Heading);
	}
	else
	{
		Categories.Add(Heading);
	}
}

bool FHostDetailsView::IsInSection(const FString& Category, const UClass& Class) const
{
	return FPropertyEditorRegistrations().FindSections(&Class).ContainsByPredicate([&](const TSharedRef<FPropertySection>& Each) {
		return Each->GetName() == Section && DetailsView::HasCategory(*Each, Category);
	});
}

/** One for each section of the objects' classes that has something of theirs, and one for all categories; nothing without such a section. */
void FHostDetailsView::MakeSectionButtons()
{
	SectionButtons->Clear();
	bool bAny = false;
	for (const TSharedRef<FPropertySection>& Each : FPropertyEditorRegistrations().FindSections(Root->GetClass()))
	{
		const bool bHasRows = Root->GetChildren().ContainsByPredicate([&Each](const TSharedRef<FPropertyNode>& Node) {
			return DetailsView::HasCategory(*Each, DetailsView::GetCategory(*Node->GetProperty()));
		});
		if (bHasRows)
		{
			AddSectionButton(Each->GetName(), Each->GetDisplayName());
			bAny = true;
		}
	}
	if (bAny)
	{
		AddSectionButton(FName(), LOCTEXT("AllSections", "All"));
	}
}

void FHostDetailsView::AddSectionButton(FName Name, const FText& Label)
{
	// clang-format off
	SectionButtons->AddPart(
		SNew(SButton)
		.Tag(Name) // a section may be labelled like the category it shows
		.Text(Label)
		.OnClicked_Lambda([this, Name]()
		{
			SetSection(Name);
			return FReply::Handled();
		}));
	// clang-format on
}

void FHostDetailsView::ApplySearch()
{
	const FHostSearchWords Words(SearchBox->GetText().ToString());
	Body->Clear();
	for (const TSharedRef<SDetailsRow>& Category : Categories)
	{
		if (Category->ApplySearch(Words, false))
		{
			Body->AddPart(Category);
		}
	}
}

#undef LOCTEXT_NAMESPACE
