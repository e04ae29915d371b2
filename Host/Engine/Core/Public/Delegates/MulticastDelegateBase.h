// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/Array.h"
#include "Delegates/DelegateBase.h"

/**
 * The part of a multicast delegate that does not depend on its signature: the list of bindings.
 *
 * While a broadcast runs, bindings that are removed are destroyed at once but keep their (empty) place in the list;
 * the list is compacted when the outermost broadcast ends, so that running broadcasts can go by index.
 */
class FMulticastDelegateBase
{
public:
	/** Removes every binding. */
	CORE_API void Clear();

	/** Whether any binding could be called. */
	CORE_API bool IsBound() const;

	/** Returns whether the handle was in the list. */
	CORE_API bool Remove(FDelegateHandle Handle);

	/** Removes the bindings that belong to this object (never lambdas or static functions); returns how many. */
	CORE_API int32 RemoveAll(const void* InUserObject);

protected:
	FMulticastDelegateBase() = default;
	CORE_API FMulticastDelegateBase(const FMulticastDelegateBase& Other);
	CORE_API FMulticastDelegateBase(FMulticastDelegateBase&& Other) noexcept;
	CORE_API ~FMulticastDelegateBase();
	CORE_API FMulticastDelegateBase& operator=(const FMulticastDelegateBase& Other);
	CORE_API FMulticastDelegateBase& operator=(FMulticastDelegateBase&& Other) noexcept;

	/** Takes the binding out of the delegate; an unbound delegate adds nothing and gives an invalid handle. */
	CORE_API FDelegateHandle AddDelegate(FDelegateBase&& Delegate);

	/** Adds a copy of the binding, with a handle of its own. */
	CORE_API FDelegateHandle AddDelegate(const FDelegateBase& Delegate);

	/** Hands each living binding to Call: newest first, without what is added meanwhile or removed before its turn. */
	CORE_API void BroadcastTo(void (*Call)(IDelegateInstance* Instance, void* Context), void* Context) const;

private:
	class FBroadcastScope;

	void Compact() const;

	mutable TArray<IDelegateInstance*> Invocations; // owned; null where a binding was removed during a broadcast
	mutable int32 NumBroadcasts = 0; // that are running now
	mutable bool bNeedsCompaction = false;
};
