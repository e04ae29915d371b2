// Copyright Velmorant. All Rights Reserved.

#include "HostClock.h"

#include "Containers/Ticker.h"
#include "HostState.h"
#include "Misc/AssertionMacros.h"

namespace HostClockImpl
{
	struct FTime
	{
		double Seconds = 0.0;
	};

	THostState<FTime> Time;
}

double HostClock::Now()
{
	return HostClockImpl::Time->Seconds;
}

void HostClock::Advance(double Seconds)
{
	checkf(Seconds >= 0.0, TEXT("Time cannot go back by %f seconds"), Seconds);
	HostClockImpl::Time->Seconds += Seconds;
	FTSTicker::GetCoreTicker().Tick(static_cast<float>(Seconds));
}
