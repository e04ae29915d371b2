// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/Array.h"
#include "HostLog.h"
#include "HostSearchWords.h"

#include <deque>

/**
 * Which lines of the log are to be seen: of a category, at least so important, with the words that were searched for.
 *
 * Keeps copies, and of them the last ones only: the log itself grows, and is cleared when another editor starts.
 */
class FLogFilter
{
public:
	explicit FLogFilter(std::size_t InMostLines)
		: MostLines(InMostLines)
	{
	}

	/** None stands for every category. */
	void SetCategory(FName InCategory);

	/** The least important ones that are still shown. */
	void SetVerbosity(ELogVerbosity::Type InVerbosity);

	void SetSearch(const FString& Text);

	struct FChange
	{
		std::size_t NumRemoved = 0; // from the front; all of them when the lines were chosen anew
		std::size_t NumAdded = 0; // at the end, after that
		bool bAnew = false; // nothing stayed where it was
		bool bCategories = false; // there are new ones
	};

	/** Takes in what was logged since the last call. */
	FChange Update(const TArray<FHostLogLine>& Log);

	/** Leaves out everything that was logged until now. */
	void HideAll(const TArray<FHostLogLine>& Log);

	/** The log is no longer what it was: the next Update() reads it from its beginning. */
	void Forget();

	const std::deque<FHostLogLine>& GetLines() const { return Lines; }

	/** Of all lines that were read, in alphabetical order. */
	const TArray<FName>& GetCategories() const { return Categories; }

	/** How many lines were read, shown or not, and how many that are meant were left out for want of room. */
	int32 GetNumRead() const { return NumRead; }
	std::size_t GetNumDropped() const { return NumDropped; }

private:
	bool IsMeant(const FHostLogLine& Line) const;
	bool AddCategory(FName Category);
	void StartAnew();

	const std::size_t MostLines;
	FName Category;
	ELogVerbosity::Type Verbosity = ELogVerbosity::All;
	FHostSearchWords Words{FString()};
	std::deque<FHostLogLine> Lines;
	TArray<FName> Categories;
	int32 FirstShown = 0; // into the log; what is before was hidden
	int32 NumRead = 0;
	std::size_t NumDropped = 0;
	bool bAnew = true;
};
