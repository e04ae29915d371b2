// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "QtHeaders.h"

#include <QLockFile>
#include <memory>

/**
 * Which window has a project open, so that a second one can say so: what one saves, the other does not see before it reads again.
 *
 * It is a file in the project's Saved folder, which goes with the window. One that a window left behind when it crashed counts for nothing.
 */
class FProjectLock
{
public:
	/** @return false when another window has the project; DescribeOwner() tells which. A folder that cannot be written to is nobody's. */
	bool Take(const QString& ProjectFolder);

	/** "process 4711 on ada" */
	QString DescribeOwner() const;

private:
	std::unique_ptr<QLockFile> File;
};
