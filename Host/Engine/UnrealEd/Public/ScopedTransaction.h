// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"

/**
 * One step of undo, for the length of a scope: what is announced with UObject::Modify() meanwhile is taken back together.
 *
 * Within another one it joins that one, whose title counts. Without an editor, or while it is undoing, it does nothing. A step in
 * which nothing changed leaves no trace.
 */
class UNREALED_API FScopedTransaction : private FNoncopyable
{
public:
	/** @param bShouldActuallyTransact false makes it do nothing */
	[[nodiscard]] FScopedTransaction(const FText& SessionName, const bool bShouldActuallyTransact = true);
	~FScopedTransaction();

private:
	int32 Index; // INDEX_NONE: nothing was begun
};
