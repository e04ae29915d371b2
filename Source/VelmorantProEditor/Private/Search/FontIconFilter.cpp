// Copyright Velmorant. All Rights Reserved.

#include "Search/FontIconFilter.h"

void FFontIconFilter::SetIcons(int32 NumIcons, TFunctionRef<FIcon(int32 Icon)> GetIcon)
{
	Names.SetRows(NumIcons, [&GetIcon](int32 Icon, FString& InOutText) {
		GetIcon(Icon).Name.AppendString(InOutText);
	});
	IconsByTag.Empty();
	Styles.Reset(NumIcons);
	for (int32 Index = 0; Index < NumIcons; ++Index)
	{
		const FIcon Icon = GetIcon(Index);
		for (const FString& Tag : Icon.SearchTags)
		{
			IconsByTag.FindOrAdd(Tag).Add(Index);
		}
		Styles.Add(Icon.Styles);
	}
}

TArray<int32> FFontIconFilter::Find(const FString& Text, FName Style) const
{
	const TArray<int32> Icons = Text.IsEmpty() ? FindAll() : FindByText(Text);
	return Icons.FilterByPredicate([this, Style](int32 Icon) { return Styles[Icon].Contains(Style); });
}

TArray<int32> FFontIconFilter::FindAll() const
{
	TArray<int32> Icons;
	Icons.Reserve(Styles.Num());
	for (int32 Icon = 0; Icon < Styles.Num(); ++Icon)
	{
		Icons.Add(Icon);
	}
	return Icons;
}

TArray<int32> FFontIconFilter::FindByText(const FString& Text) const
{
	const TArray<int32> Named = Names.Find(Text);
	const TArray<int32>* Tagged = IconsByTag.Find(Text);
	if (!Tagged)
	{
		return Named;
	}

	TArray<int32> Icons;
	int32 NextNamed = 0;
	for (const int32 Index : *Tagged)
	{
		while (NextNamed < Named.Num() && Named[NextNamed] <= Index)
		{
			Icons.Add(Named[NextNamed++]);
		}
		if (Icons.IsEmpty() || Icons.Last() != Index) // found by its name already
		{
			Icons.Add(Index);
		}
	}
	Icons.Append(Named.GetData() + NextNamed, Named.Num() - NextNamed);
	return Icons;
}
