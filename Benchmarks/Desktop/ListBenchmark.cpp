// Copyright Velmorant. All Rights Reserved.
// From a keystroke to the picture, for lists and tiles of the window and of Qt.

#include "QtHeaders.h"

#include "BareViewHost.h"
#include "BenchmarkEditor.h"
#include "Blueprint/UserWidget.h"
#include "Editor.h"
#include "EditorWidgets/VlmEWPanelData.h"
#include "Engine/World.h"
#include "HostDetailsView.h"
#include "IconTable.h"
#include "Look/Theme.h"
#include "PanelHost.h"
#include "VelmorantLevelActors.h"
#include "Widgets/ItemsView.h"
#include "Widgets/WidgetRoot.h"

#include <QSortFilterProxyModel>
#include <QStringListModel>
#include <algorithm>
#include <benchmark/benchmark.h>

namespace ListBenchmark
{
	static const QSize Size(420, 860);
	static const char* const Before = "penthous"; // and the last letter is the keystroke
	static const Qt::Key Keystroke = Qt::Key_E;
	static const double FrameMilliseconds = 16.0;

	/** One row in a hundred is found; all have the first letter. */
	QString MakeName(int64 Index)
	{
		return (Index % 100 == 0 ? QStringLiteral("Torre Alba penthouse %1") : QStringLiteral("Torre Alba, pool side %1")).arg(1000000 + Index);
	}

	std::string MakeService(int64 NumRows)
	{
		std::string Json = R"({"users": [{"userName": "ada", "password": "sesame-77", "projects": ["HT"]}],
			"projects": [{"keyCode": "HT", "apiKey": "api-ht", "name": "Harbor Tower", "unitGroups": [)";
		for (int64 Index = 0; Index < NumRows; ++Index)
		{
			Json += R"({"keyCode": "HT-)" + std::to_string(1000000 + Index) + R"(", "name": ")" + MakeName(Index).toStdString() + "\"},\n";
		}
		Json.resize(Json.size() - 2); // without the last comma
		return Json + "]}]}";
	}

	/** A tree of the editor's widgets as the window shows it. */
	class FShown
	{
	public:
		explicit FShown(const TSharedRef<SWidget>& Tree)
			: Root(Host, [Tree] { return TSharedPtr<SWidget>(Tree); })
			, Picture(Size, QImage::Format_ARGB32_Premultiplied)
		{
			Root.resize(Size);
			Root.show();
		}

		/** What a frame of the window does. */
		void Frame()
		{
			Root.Refresh();
			QApplication::sendPostedEvents();
			Root.render(&Picture);
		}

		FItemsArea* FindArea() { return dynamic_cast<FItemsArea*>(Root.findChild<QAbstractScrollArea*>()); }
		QLineEdit* FindField(const QString& Hint)
		{
			for (QLineEdit* const Field : Root.findChildren<QLineEdit*>())
			{
				if (Field->placeholderText().contains(Hint, Qt::CaseInsensitive))
				{
					return Field;
				}
			}
			return nullptr;
		}

	private:
		FBareViewHost Host;
		FWidgetRoot Root;
		QImage Picture;
	};

	void Press(QWidget& Widget, Qt::Key Key, const QString& Text)
	{
		QKeyEvent Down(QEvent::KeyPress, Key, Qt::NoModifier, Text);
		QApplication::sendEvent(&Widget, &Down);
	}

	/** The toolkit's list of a project with so many unit groups. */
	struct FScene
	{
		explicit FScene(int64 NumRows)
			: Editor(MakeService(NumRows))
		{
			Theme::Apply(Theme::EKind::Dark);
			Editor.SignIn(TEXT("ada"), TEXT("sesame-77"));
			Editor.SelectProject(TEXT("HT"));
			FString Reason;
			UUserWidget* const Panel = Panels.Open(TEXT("/VelmorantPro/EditorHelpers/DeveloperPanel/ListDisplayerPanel"), TEXT("List"), Reason);
			checkf(Panel != nullptr, TEXT("%s"), *Reason);
			IVlmEditorPanelInterface::Execute_ActivateDataPanel(Panel);
			Editor.Tick();
			Shown = std::make_unique<FShown>(Panels.Find(TEXT("List"))->Content.ToSharedRef());
			Frame();
			Frame();
		}

		void Frame()
		{
			Editor.Tick();
			Shown->Frame();
		}

		FBenchmarkEditor Editor;
		FPanelHost Panels;
		std::unique_ptr<FShown> Shown;
	};

	void Arguments(benchmark::internal::Benchmark* Benchmark)
	{
		Benchmark->ArgName("rows")->Arg(100000)->Unit(benchmark::kMillisecond)->Repetitions(5)->ReportAggregatesOnly();
	}
}

void WindowListKeystroke(benchmark::State& State)
{
	using namespace ListBenchmark;
	FScene Scene(State.range(0));
	QLineEdit* const Field = Scene.Shown->FindField(QStringLiteral("search"));
	FItemsArea* const Area = Scene.Shown->FindArea();
	if (Field == nullptr || Area == nullptr)
	{
		State.SkipWithError("the panel has no list with a search text");
		return;
	}
	for (auto Iteration : State)
	{
		State.PauseTiming();
		Field->setText(QLatin1String(Before));
		Scene.Frame();
		State.ResumeTiming();
		Press(*Field, Keystroke, QStringLiteral("e"));
		Scene.Frame();
	}
	State.counters["found"] = Area->GetNumItems();
	if (Area->GetNumItems() != State.range(0) / 100)
	{
		State.SkipWithError("other rows were found than there are");
	}
}
BENCHMARK(WindowListKeystroke)->Apply(ListBenchmark::Arguments);

/** For comparison: Qt's own list and filter. */
void QtListKeystroke(benchmark::State& State)
{
	using namespace ListBenchmark;
	QStringList Names;
	for (int64 Index = 0; Index < State.range(0); ++Index)
	{
		Names.append(MakeName(Index));
	}
	QStringListModel Model(Names);
	QSortFilterProxyModel Found;
	Found.setSourceModel(&Model);
	Found.setFilterCaseSensitivity(Qt::CaseInsensitive);
	QWidget Window;
	QVBoxLayout Layout(&Window);
	QLineEdit Field;
	QListView List;
	Layout.addWidget(&Field);
	Layout.addWidget(&List);
	List.setUniformItemSizes(true);
	List.setModel(&Found);
	QObject::connect(&Field, &QLineEdit::textChanged, &Found, [&Found](const QString& Text) { Found.setFilterFixedString(Text); });
	Window.resize(Size);
	Window.show();
	QImage Picture(Size, QImage::Format_ARGB32_Premultiplied);
	const auto Frame = [&Window, &Picture] {
		QApplication::sendPostedEvents();
		Window.render(&Picture);
	};
	for (auto Iteration : State)
	{
		State.PauseTiming();
		Field.setText(QLatin1String(Before));
		Frame();
		State.ResumeTiming();
		Press(Field, Keystroke, QStringLiteral("e"));
		Frame();
	}
	State.counters["found"] = Found.rowCount();
	if (Found.rowCount() != State.range(0) / 100)
	{
		State.SkipWithError("other rows were found than there are");
	}
}
BENCHMARK(QtListKeystroke)->Apply(ListBenchmark::Arguments);

/** The picker of icons, from a letter of its search text to the painted grid. */
void WindowIconGridKeystroke(benchmark::State& State)
{
	using namespace ListBenchmark;
	Theme::Apply(Theme::EKind::Dark);
	FBenchmarkEditor Editor;
	IconTable::EnterInSettings();
	IconTable::Make(State.range(0));
	AVlmInteractiveSpot* const Spot = GEditor->GetEditorWorldContext().World()->SpawnActor<AVlmInteractiveSpot>();
	Spot->Icon = FFontIconHandler(IconTable::FontID, IconTable::Styles[0], IconTable::GetIconName(1000));
	FHostDetailsView View({Spot});
	FShown Shown(View.GetWidget());
	for (int Frame = 0; Frame < 3; ++Frame)
	{
		Editor.Tick();
		Shown.Frame();
	}
	FItemsArea* const Area = Shown.FindArea();
	QLineEdit* Field = nullptr;
	for (QWidget* Around = Area; Around != nullptr && Field == nullptr; Around = Around->parentWidget())
	{
		Field = Around->findChild<QLineEdit*>();
	}
	if (Field == nullptr)
	{
		State.SkipWithError("the details have no grid of icons with a search text");
		return;
	}
	const int NumAll = Area->GetNumItems();
	const QString Name = QString::fromUtf8(TCHAR_TO_UTF8(*IconTable::GetIconName(1000).ToString()));
	for (auto Iteration : State)
	{
		State.PauseTiming();
		Field->setText(Name.chopped(1));
		Editor.Tick();
		Shown.Frame();
		State.ResumeTiming();
		Press(*Field, Qt::Key_0, Name.right(1));
		Editor.Tick();
		Shown.Frame();
	}
	State.counters["found"] = Area->GetNumItems();
	if (Area->GetNumItems() == 0 || Area->GetNumItems() >= NumAll)
	{
		State.SkipWithError("the letters narrow nothing down");
	}
}
BENCHMARK(WindowIconGridKeystroke)->ArgName("icons")->Arg(20000)->Unit(benchmark::kMillisecond)->Repetitions(5)->ReportAggregatesOnly();

/** Frames while the wheel turns, three rows each. */
void WindowListScroll(benchmark::State& State)
{
	using namespace ListBenchmark;
	FScene Scene(State.range(0));
	FItemsArea* const Area = Scene.Shown->FindArea();
	double Longest = 0.0;
	double NumLong = 0.0;
	for (auto Iteration : State)
	{
		QElapsedTimer Clock;
		Clock.start();
		QScrollBar& Bar = *Area->verticalScrollBar();
		Bar.setValue(Bar.value() >= Bar.maximum() ? 0 : Bar.value() + 3 * Area->GetRowHeight());
		Scene.Frame();
		const double Milliseconds = static_cast<double>(Clock.nsecsElapsed()) / 1e6;
		Longest = std::max(Longest, Milliseconds);
		NumLong += Milliseconds > FrameMilliseconds ? 1.0 : 0.0;
	}
	State.counters["longest_ms"] = Longest;
	State.counters["above_16_ms"] = NumLong;
}
BENCHMARK(WindowListScroll)->ArgName("rows")->Arg(100000)->Unit(benchmark::kMillisecond)->Iterations(1000);
