// Copyright Velmorant. All Rights Reserved.

#include "QtHeaders.h"

#include "BareWindow.h"
#include "HostLocale.h"

#include <benchmark/benchmark.h>
#include <cstring>

int main(int Count, char** Values)
{
	qputenv("QT_QPA_PLATFORM", "offscreen");
	qputenv("VELMORANT_NO_KEYRING", "1");
	QApplication Application(Count, Values);
	if (Count == 2 && std::strcmp(Values[1], BareWindow::Argument) == 0)
	{
		return BareWindow::Run();
	}
	HostLocale::UseUnicodeCharacterClasses();
	benchmark::Initialize(&Count, Values);
	benchmark::RunSpecifiedBenchmarks();
	return 0;
}
