// Copyright Velmorant. All Rights Reserved.

#include "Rows/DetailsSearch.h"

#include "HostParts.h"
#include "HostSearchWords.h"
#include "Rows/DetailsCategories.h"
#include "Widgets/Input/SSearchBox.h"

#define LOCTEXT_NAMESPACE "DetailsView"

FDetailsSearch::FDetailsSearch(const FDetailsCategories& InCategories)
	: Categories(InCategories)
	, Found(SNew(SHostPartList))
{
	// clang-format off
	SAssignNew(Box, SSearchBox)
		.HintText(LOCTEXT("SearchHint", "Search Details"))
		.OnTextChanged_Lambda([this](const FText&) { Apply(); });
	// clang-format on
}

TSharedRef<SWidget> FDetailsSearch::GetBox() const
{
	return Box.ToSharedRef();
}

TSharedRef<SWidget> FDetailsSearch::GetFound() const
{
	return Found;
}

void FDetailsSearch::SetText(const FString& Text)
{
	Box->SetText(FText::FromString(Text)); // tells, unless it is the same
}

void FDetailsSearch::Apply()
{
	const FHostSearchWords Words(Box->GetText().ToString());
	Found->Clear();
	for (const TSharedRef<SDetailsRow>& Category : Categories.GetAll())
	{
		if (Category->ApplySearch(Words, false))
		{
			Found->AddPart(Category);
		}
	}
}

#undef LOCTEXT_NAMESPACE
