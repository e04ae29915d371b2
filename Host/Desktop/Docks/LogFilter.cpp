// Copyright Velmorant. All Rights Reserved.

#include "Docks/LogFilter.h"

#include <algorithm>

void FLogFilter::SetCategory(FName InCategory)
{
	Category = InCategory;
	StartAnew();
}

void FLogFilter::SetVerbosity(ELogVerbosity::Type InVerbosity)
{
	Verbosity = InVerbosity;
	StartAnew();
}

void FLogFilter::SetSearch(const FString& Text)
{
	Words = FHostSearchWords(Text);
	StartAnew();
}

void FLogFilter::StartAnew()
{
	NumRead = FirstShown;
	bAnew = true;
}

FLogFilter::FChange FLogFilter::Update(const TArray<FHostLogLine>& Log)
{
	if (Log.Num() < NumRead)
	{
		Forget();
	}
	FChange Change;
	Change.bAnew = bAnew;
	if (bAnew)
	{
		Change.NumRemoved = Lines.size();
		Lines.clear();
		NumDropped = 0;
		bAnew = false;
	}
	for (; NumRead < Log.Num(); ++NumRead)
	{
		const FHostLogLine& Line = Log[NumRead];
		Change.bCategories |= AddCategory(Line.Category);
		if (IsMeant(Line))
		{
			Lines.push_back(Line);
			++Change.NumAdded;
		}
	}
	const std::size_t NumTooMany = Lines.size() > MostLines ? Lines.size() - MostLines : 0;
	Lines.erase(Lines.begin(), Lines.begin() + static_cast<std::ptrdiff_t>(NumTooMany));
	NumDropped += NumTooMany;
	const std::size_t NumOld = Lines.size() + NumTooMany - Change.NumAdded;
	Change.NumRemoved += std::min(NumOld, NumTooMany);
	Change.NumAdded = std::min(Change.NumAdded, Lines.size());
	return Change;
}

void FLogFilter::HideAll(const TArray<FHostLogLine>& Log)
{
	FirstShown = Log.Num();
	StartAnew();
}

void FLogFilter::Forget()
{
	FirstShown = 0;
	Categories.Empty();
	StartAnew();
}

bool FLogFilter::IsMeant(const FHostLogLine& Line) const
{
	return (Category.IsNone() || Line.Category == Category) && Line.Verbosity <= Verbosity && Words.AreIn(Line.ToString());
}

bool FLogFilter::AddCategory(FName InCategory)
{
	if (Categories.Contains(InCategory))
	{
		return false;
	}
	Categories.Add(InCategory);
	Categories.Sort([](const FName& Left, const FName& Right) { return Left.ToString() < Right.ToString(); });
	return true;
}
