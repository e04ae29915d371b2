// Copyright Velmorant. All Rights Reserved.

#pragma once

class UObject;

/** A step of undo that is being recorded; GUndo while there is one. */
class ITransaction
{
public:
	virtual ~ITransaction() = default;

	/** The object is about to change. Only what it is at the first call counts. */
	virtual void SaveObject(UObject* Object) = 0;
};
