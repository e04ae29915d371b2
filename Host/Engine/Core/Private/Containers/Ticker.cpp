// Copyright Velmorant. All Rights Reserved.

#include "Containers/Ticker.h"

#include "HostState.h"

namespace Ticker
{
	THostState<FTSTicker> CoreTicker;
}

FTSTicker& FTSTicker::GetCoreTicker()
{
	return Ticker::CoreTicker.Get();
}

FTSTicker::FDelegateHandle FTSTicker::AddTicker(const FTickerDelegate& InDelegate, float InDelay)
{
	TSharedRef<FElement> Element = MakeShared<FElement>();
	Element->FireTime = CurrentTime + InDelay;
	Element->Delay = InDelay;
	Element->Delegate = InDelegate;
	Elements.Add(Element);
	return Element;
}

void FTSTicker::RemoveTicker(FDelegateHandle Handle)
{
	if (const TSharedPtr<FElement> Element = Handle.Pin())
	{
		// The ticker drops it at its next tick; the delegate itself may be running right now.
		Element->bRemoved = true;
	}
}

void FTSTicker::Tick(float DeltaTime)
{
	CurrentTime += DeltaTime;
	const TArray<TSharedRef<FElement>> Due = Elements; // whatever is added meanwhile waits
	for (const TSharedRef<FElement>& Element : Due)
	{
		if (Element->bRemoved || CurrentTime < Element->FireTime)
		{
			continue;
		}
		Element->FireTime = CurrentTime + Element->Delay;
		if (!Element->Delegate.IsBound() || !Element->Delegate.Execute(DeltaTime))
		{
			Element->bRemoved = true;
		}
	}
	Elements.RemoveAll([](const TSharedRef<FElement>& Element) { return Element->bRemoved; });
}
