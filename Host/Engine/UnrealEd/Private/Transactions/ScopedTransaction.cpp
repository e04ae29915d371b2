// Copyright Velmorant. All Rights Reserved.

#include "ScopedTransaction.h"

#include "Editor.h"

FScopedTransaction::FScopedTransaction(const FText& SessionName, const bool bShouldActuallyTransact)
	: Index(bShouldActuallyTransact && GEditor != nullptr ? GEditor->BeginTransaction(SessionName) : INDEX_NONE)
{
}

FScopedTransaction::~FScopedTransaction()
{
	if (Index != INDEX_NONE && GEditor != nullptr)
	{
		GEditor->EndTransaction();
	}
}
