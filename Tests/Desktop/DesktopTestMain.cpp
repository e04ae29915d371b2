// Copyright Velmorant. All Rights Reserved.

#include "TestHeaders.h"

#include "HostLocale.h"

int main(int Count, char** Values)
{
	if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
	{
		qputenv("QT_QPA_PLATFORM", "offscreen");
	}
	HostLocale::UseUnicodeCharacterClasses();
	testing::InitGoogleMock(&Count, Values);
	QApplication Application(Count, Values);
	return RUN_ALL_TESTS();
}
