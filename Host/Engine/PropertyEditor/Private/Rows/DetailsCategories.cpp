// Copyright Velmorant. All Rights Reserved.

#include "Rows/DetailsCategories.h"

#include "DetailWidgetRow.h"
#include "UObject/UnrealType.h"

namespace DetailsCategories
{
	FString GetRowTitle(const SDetailsRow& Row)
	{
		const FString Title = Row.GetTitle();
		const FString Path = Row.GetTag().IsNone() ? FString() : Row.GetTag().ToString();
		const FString Text = Title.IsEmpty() ? Path : Title;
		return Path.IsEmpty() || Path.Equals(Text) ? Text : Text + TEXT(" (") + Path + TEXT(")");
	}

	void CollectTitles(const TArray<TSharedRef<SDetailsRow>>& Rows, TArray<FString>& OutTitles)
	{
		for (const TSharedRef<SDetailsRow>& Row : Rows)
		{
			const FString Title = GetRowTitle(*Row);
			if (!Title.IsEmpty() && !Row->IsHeading())
			{
				OutTitles.Add(Title);
			}
			CollectTitles(Row->GetRows(), OutTitles);
		}
	}
}

FString FDetailsCategories::FindCategory(const FProperty& Property)
{
	const FString& Category = Property.GetMetaData(TEXT("Category"));
	return Category.IsEmpty() ? Property.GetOwnerStruct()->GetName() : Category;
}

void FDetailsCategories::Clear()
{
	Categories.Empty();
	CategoriesByPath.Empty();
}

void FDetailsCategories::AddRow(const FString& Category, const TSharedRef<SDetailsRow>& Row)
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
		AddRow(Outer, Heading);
	}
	else
	{
		Categories.Add(Heading);
	}
}

bool FDetailsCategories::FitElements()
{
	bool bChanged = false;
	for (const TSharedRef<SDetailsRow>& Category : Categories)
	{
		bChanged |= Category->FitElements();
	}
	return bChanged;
}

TArray<FString> FDetailsCategories::GetRowTitles() const
{
	TArray<FString> Titles;
	for (const TSharedRef<SDetailsRow>& Category : Categories)
	{
		DetailsCategories::CollectTitles(Category->GetRows(), Titles);
	}
	return Titles;
}
