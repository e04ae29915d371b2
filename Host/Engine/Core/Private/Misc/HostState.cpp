// Copyright Velmorant. All Rights Reserved.

#include "HostState.h"

#include "Containers/Array.h"

namespace HostStateImpl
{
	struct FEntry
	{
		void* Holder;
		void (*Destroy)(void* Holder);
	};

	/** In order of creation. Never destroyed: static objects may still use their values when the process ends. */
	TArray<FEntry>& Entries()
	{
		static TArray<FEntry>* const List = new TArray<FEntry>();
		return *List;
	}

	constinit FHostStateReset* LastReset = nullptr;
}

FHostStateReset::FHostStateReset(void (*InReset)())
	: Reset(InReset)
	, Next(HostStateImpl::LastReset)
{
	HostStateImpl::LastReset = this;
}

void HostState::Register(void* Holder, void (*Destroy)(void* Holder))
{
	HostStateImpl::Entries().Add({Holder, Destroy});
}

void HostState::DestroyAll()
{
	for (const FHostStateReset* Each = HostStateImpl::LastReset; Each; Each = Each->Next)
	{
		Each->Reset();
	}
	TArray<HostStateImpl::FEntry>& Entries = HostStateImpl::Entries();
	while (!Entries.IsEmpty())
	{
		const HostStateImpl::FEntry Entry = Entries.Pop();
		Entry.Destroy(Entry.Holder);
	}
}
