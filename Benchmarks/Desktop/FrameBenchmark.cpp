// Copyright Velmorant. All Rights Reserved.

#include "QtHeaders.h"

#include "LargeProperty.h"
#include "Look/Theme.h"
#include "TemporaryFolder.h"
#include "Window/MainWindow.h"

#include <benchmark/benchmark.h>

/** A frame of the whole window in which nothing happens, with a level of State.range(0) unit volumes open. */
void WindowIdleFrame(benchmark::State& State)
{
	const FTemporaryFolder Folder;
	setenv("XDG_STATE_HOME", Folder.GetNative("State").c_str(), 1);
	LargeProperty::Write(Folder, State.range(0));
	Theme::Apply(Theme::EKind::Dark);
	FEditorHostOptions Options;
	Options.Project = Folder.Get("Large.uproject");
	Options.UserSettingsDir = Folder.Get("UserConfig") + TEXT("/");
	FDesktopEditor Editor(Options);
	if (!Editor.Start())
	{
		State.SkipWithError("the editor does not start");
		return;
	}
	FMainWindow Window(Editor);
	Window.resize(1440, 900);
	Window.show();
	Window.Let(1.0);
	for (auto Iteration : State)
	{
		Window.Let(0.016);
	}
}
BENCHMARK(WindowIdleFrame)->ArgName("units")->Arg(12)->Arg(20000)->Unit(benchmark::kMillisecond)->Iterations(200);
