// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CodeWriter.h"
#include "Model.h"

namespace HeaderTool
{
	/** Table, StaticEnum() and registrar of one enum. */
	void WriteEnumSource(FCodeWriter& Writer, const FEnum& Enum);
}
