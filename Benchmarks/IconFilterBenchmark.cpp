// Copyright Velmorant. All Rights Reserved.

#include "BenchmarkEditor.h"
#include "CountOccurrences.h"
#include "Editor.h"
#include "Engine/World.h"
#include "FontPackage.h"
#include "HostDetailsView.h"
#include "HostSnapshot.h"
#include "Icons/FontIconImporter.h"
#include "VelmorantLevelActors.h"
#include "VelmorantUISubsystem.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <cstring>
#include <string>
#include <vector>

namespace IconFilterBenchmark
{
	const char* const SearchTexts[] = {"arrow", "house"};
	const TCHAR* const Style = TEXT("Solid");

	/** One icon as plain strings, in lower case. */
	struct FRow
	{
		std::string Name;
		std::vector<std::string> Tags;
		bool bInStyle = false;

		std::string Join() const
		{
			std::string Text = Name;
			for (const std::string& Tag : Tags)
			{
				Text += "\n" + Tag;
			}
			return Text;
		}

		bool Matches(const std::string& Text) const
		{
			return bInStyle && (Name.find(Text) != std::string::npos || std::find(Tags.begin(), Tags.end(), Text) != Tags.end());
		}
	};

	std::string ToUtf8(const FString& Text)
	{
		return TCHAR_TO_UTF8(*Text);
	}

	/** The downloaded icon font in the project, its icons there so many times; each copy under names of its own. */
	UDataTable* MakeTable(int64 NumCopies)
	{
		const FFontIconImportResult Result = FFontIconImporter::Import(UTF8_TO_TCHAR(FontPackage.c_str()), TEXT("Real"), TEXT("/Game/FontIcons"));
		checkf(Result.Succeeded(), TEXT("%s"), *Result.Error->ToString());
		UDataTable* Table = UVelmorantUISubsystem::Get()->GetFontIconDataByID(TEXT("Real")).IconDataTable;
		for (const FName& Name : Table->GetRowNames())
		{
			const FFontIconRow Row = *Table->FindRow<FFontIconRow>(Name, TEXT("IconFilterBenchmark"));
			for (int64 Copy = 1; Copy < NumCopies; ++Copy)
			{
				Table->AddRow(FName(FString::Printf(TEXT("%s-%d"), *Name.ToString(), static_cast<int32>(Copy))), Row);
			}
		}
		return Table;
	}

	std::vector<FRow> ReadTable(const UDataTable& Table)
	{
		std::vector<FRow> Rows;
		Table.ForeachRow<FFontIconRow>(TEXT("IconFilterBenchmark"), [&Rows](const FName& Name, const FFontIconRow& Icon) {
			FRow Row{ToUtf8(Name.ToString().ToLower()), {}, Icon.IconStyles.Contains(FName(Style))};
			for (const FString& Tag : Icon.SearchTags)
			{
				Row.Tags.push_back(ToUtf8(Tag.ToLower()));
			}
			Rows.push_back(Row);
		});
		return Rows;
	}

	/** A machine without the download has nothing to measure, and says so. */
	bool IsThere(benchmark::State& State)
	{
		if (!HasFontPackage())
		{
			State.SkipWithError("the icon font is not there: ./velmorant setup downloads it with npm");
		}
		return HasFontPackage();
	}

	void Arguments(benchmark::internal::Benchmark* Benchmark)
	{
		Benchmark->ArgName("copies")->Arg(1)->Arg(20)->Unit(benchmark::kMicrosecond)->Repetitions(5)->ReportAggregatesOnly();
	}

	/** The details panel of a spot with an icon of the font, and its search box. */
	class FPanel
	{
	public:
		explicit FPanel(int64 NumCopies)
			: Rows(ReadTable(*MakeTable(NumCopies)))
		{
			AVlmInteractiveSpot* Spot = GEditor->GetEditorWorldContext().World()->SpawnActor<AVlmInteractiveSpot>();
			Spot->Icon = FFontIconHandler("Real", Style, "anchor");
			View = MakeUnique<FHostDetailsView>(TArray<UObject*>{Spot});
			FString Reason;
			SearchBox = HostSnapshot::Find(View->GetWidget(), TEXT("Icon List/Search"), Reason);
			checkf(SearchBox.IsValid(), TEXT("%s"), *Reason);
		}

		void Type(const char* Text) const { FHostWidgetAccess::Give(SearchBox.ToSharedRef(), {EHostInput::Type, UTF8_TO_TCHAR(Text)}); }

		/** Whether the grid has as many icons as the text leaves of the table. */
		bool HasFound(const char* Text) const
		{
			const int64 Expected = std::count_if(Rows.begin(), Rows.end(), [Text](const FRow& Row) { return Row.Matches(Text); });
			return ToUtf8(HostSnapshot::Take(View->GetWidget())).find("tiles (" + std::to_string(Expected) + " items") != std::string::npos;
		}

	private:
		std::vector<FRow> Rows;
		TUniquePtr<FHostDetailsView> View;
		TSharedPtr<SWidget> SearchBox;
	};
}

/** A change of the search text until the grid has its icons; the tiles on show are made later, as many as there is room for. */
void IconFilterKeystroke(benchmark::State& State)
{
	if (!IconFilterBenchmark::IsThere(State))
	{
		return;
	}
	FBenchmarkEditor Editor;
	const IconFilterBenchmark::FPanel Panel(State.range(0));
	size_t Keystroke = 0;
	for (auto Iteration : State)
	{
		Panel.Type(IconFilterBenchmark::SearchTexts[Keystroke++ % 2]);
	}
	Editor.Tick();
	if (!Panel.HasFound(IconFilterBenchmark::SearchTexts[(Keystroke - 1) % 2]))
	{
		State.SkipWithError("the grid has other icons than the table");
	}
}
BENCHMARK(IconFilterKeystroke)->Apply(IconFilterBenchmark::Arguments);

/** For comparison: the C library over the names and search words of one icon after the other. */
void IconFilterStrcasestr(benchmark::State& State)
{
	if (!IconFilterBenchmark::IsThere(State))
	{
		return;
	}
	FBenchmarkEditor Editor;
	std::vector<std::string> Texts;
	for (const IconFilterBenchmark::FRow& Row : IconFilterBenchmark::ReadTable(*IconFilterBenchmark::MakeTable(State.range(0))))
	{
		Texts.push_back(Row.Join());
	}
	size_t Keystroke = 0;
	for (auto Iteration : State)
	{
		const char* const Wanted = IconFilterBenchmark::SearchTexts[Keystroke++ % 2];
		benchmark::DoNotOptimize(std::count_if(Texts.begin(), Texts.end(), [Wanted](const std::string& Text) { return strcasestr(Text.c_str(), Wanted) != nullptr; }));
	}
}
BENCHMARK(IconFilterStrcasestr)->Apply(IconFilterBenchmark::Arguments);

/** For comparison: the C library over all names and search words at once. */
void IconFilterMemmem(benchmark::State& State)
{
	if (!IconFilterBenchmark::IsThere(State))
	{
		return;
	}
	FBenchmarkEditor Editor;
	std::string All;
	for (const IconFilterBenchmark::FRow& Row : IconFilterBenchmark::ReadTable(*IconFilterBenchmark::MakeTable(State.range(0))))
	{
		All += Row.Join() + "\n";
	}
	size_t Keystroke = 0;
	for (auto Iteration : State)
	{
		benchmark::DoNotOptimize(CountOccurrences(All, IconFilterBenchmark::SearchTexts[Keystroke++ % 2]));
	}
}
BENCHMARK(IconFilterMemmem)->Apply(IconFilterBenchmark::Arguments);
