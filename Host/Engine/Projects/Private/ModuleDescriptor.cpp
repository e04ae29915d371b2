// Copyright Velmorant. All Rights Reserved.

#include "ModuleDescriptor.h"

#include "Misc/CString.h"

namespace ELoadingPhase
{
	ELoadingPhase::Type FromString(const TCHAR* Text)
	{
		static constexpr const TCHAR* Names[] = {TEXT("EarliestPossible"), TEXT("PostConfigInit"), TEXT("PostSplashScreen"), TEXT("PreEarlyLoadingScreen"),
			TEXT("PreLoadingScreen"), TEXT("PreDefault"), TEXT("Default"), TEXT("PostDefault"), TEXT("PostEngineInit"), TEXT("None")};
		static_assert(sizeof(Names) / sizeof(Names[0]) == ELoadingPhase::Max);
		for (int32 Phase = 0; Phase < ELoadingPhase::Max; ++Phase)
		{
			if (FCString::Stricmp(Text, Names[Phase]) == 0)
			{
				return static_cast<ELoadingPhase::Type>(Phase);
			}
		}
		return ELoadingPhase::Max;
	}
}
