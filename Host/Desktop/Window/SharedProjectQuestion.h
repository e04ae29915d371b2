// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "QtHeaders.h"

class FProjectLock;

/** What is asked before a second window opens a project. */
namespace SharedProjectQuestion
{
	/** Whether somebody wants to open a project that another window has open. @param Lock could not be taken */
	bool MayShare(const FProjectLock& Lock, const QString& Project);
}
