// Copyright Velmorant. All Rights Reserved.

#include "TestHeaders.h"

#include "Containers/StringConv.h"
#include "Docks/LogFilter.h"

namespace LogFilterTest
{
	FHostLogLine Line(const TCHAR* Category, ELogVerbosity::Type Verbosity, const TCHAR* Text)
	{
		return FHostLogLine{FName(Category), Verbosity, Text};
	}

	std::vector<std::string> TextsOf(const FLogFilter& Filter)
	{
		std::vector<std::string> Texts;
		for (const FHostLogLine& Each : Filter.GetLines())
		{
			Texts.push_back(TCHAR_TO_UTF8(*Each.Text));
		}
		return Texts;
	}
}

using namespace LogFilterTest;
using testing::ElementsAre;

TEST(LogFilter, ShowsTheLinesThatAreAskedFor)
{
	const TArray<FHostLogLine> Log = {Line(TEXT("LogA"), ELogVerbosity::Log, TEXT("one")), Line(TEXT("LogB"), ELogVerbosity::Warning, TEXT("two")),
		Line(TEXT("LogA"), ELogVerbosity::Error, TEXT("three")), Line(TEXT("LogB"), ELogVerbosity::Verbose, TEXT("four"))};
	FLogFilter Filter(100);
	EXPECT_TRUE(Filter.Update(Log).bCategories);
	EXPECT_THAT(TextsOf(Filter), ElementsAre("one", "two", "three", "four"));
	EXPECT_EQ(Filter.GetCategories(), TArray<FName>({FName(TEXT("LogA")), FName(TEXT("LogB"))}));

	Filter.SetVerbosity(ELogVerbosity::Warning);
	EXPECT_TRUE(Filter.Update(Log).bAnew);
	EXPECT_THAT(TextsOf(Filter), ElementsAre("two", "three"));
	Filter.SetCategory(FName(TEXT("LogA")));
	Filter.Update(Log);
	EXPECT_THAT(TextsOf(Filter), ElementsAre("three"));
	Filter.SetCategory(FName());
	Filter.SetSearch(TEXT("WARNING logb"));
	Filter.Update(Log);
	EXPECT_THAT(TextsOf(Filter), ElementsAre("two")) << "category and verbosity are part of the line";
}

TEST(LogFilter, KeepsTheLastLinesAndStartsAnewWithTheLog)
{
	TArray<FHostLogLine> Log;
	FLogFilter Filter(3);
	Filter.Update(Log);
	for (const TCHAR* Text : {TEXT("one"), TEXT("two")})
	{
		Log.Add(Line(TEXT("LogA"), ELogVerbosity::Log, Text));
	}
	FLogFilter::FChange Change = Filter.Update(Log);
	EXPECT_EQ(Change.NumRemoved, 0u);
	EXPECT_EQ(Change.NumAdded, 2u);
	for (const TCHAR* Text : {TEXT("three"), TEXT("four")})
	{
		Log.Add(Line(TEXT("LogA"), ELogVerbosity::Log, Text));
	}
	Change = Filter.Update(Log);
	EXPECT_EQ(Change.NumRemoved, 1u);
	EXPECT_EQ(Change.NumAdded, 2u);
	EXPECT_THAT(TextsOf(Filter), ElementsAre("two", "three", "four"));
	EXPECT_EQ(Filter.GetNumDropped(), 1u);
	for (int Number = 0; Number < 5; ++Number)
	{
		Log.Add(Line(TEXT("LogA"), ELogVerbosity::Log, TEXT("more")));
	}
	Change = Filter.Update(Log);
	EXPECT_EQ(Change.NumRemoved, 3u) << "no more than were there";
	EXPECT_EQ(Change.NumAdded, 3u);

	Filter.HideAll(Log);
	Filter.Update(Log);
	EXPECT_TRUE(Filter.GetLines().empty());
	Log = {Line(TEXT("LogB"), ELogVerbosity::Log, TEXT("of another editor"))};
	Filter.Update(Log);
	EXPECT_THAT(TextsOf(Filter), ElementsAre("of another editor"));
	EXPECT_EQ(Filter.GetCategories().Num(), 1);
}
