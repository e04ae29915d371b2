// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/Array.h"
#include "Delegates/Delegate.h"
#include "Templates/Function.h"
#include "Templates/SharedPointer.h"

/** Called with the seconds since the last tick; returns whether it wants to be called again. */
DECLARE_DELEGATE_RetVal_OneParam(bool, FTickerDelegate, float);

/** Calls delegates at each tick, or when their delay has passed. */
class FTSTicker
{
	struct FElement
	{
		double FireTime = 0.0;
		float Delay = 0.f;
		FTickerDelegate Delegate;
		bool bRemoved = false;
	};

public:
	using FDelegateHandle = TWeakPtr<FElement>;

	/** The ticker of the running editor; the editor ticks it. */
	CORE_API static FTSTicker& GetCoreTicker();

	/**
	 * Calls InDelegate at the first tick when InDelay seconds have passed (with none: at the next tick), and then in the
	 * same rhythm until it returns false. What is added during a tick waits for the next one.
	 */
	CORE_API FDelegateHandle AddTicker(const FTickerDelegate& InDelegate, float InDelay = 0.0f);

	/** Also from inside a tick; what has been removed is not called any more. A handle that is gone does no harm. */
	CORE_API static void RemoveTicker(FDelegateHandle Handle);

	/** DeltaTime in seconds. Calls each delegate whose time has come once, in the order of adding. */
	CORE_API void Tick(float DeltaTime);

private:
	double CurrentTime = 0.0; // seconds of all ticks so far
	TArray<TSharedRef<FElement>> Elements;
};
