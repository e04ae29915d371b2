// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Model.h"

namespace HeaderTool
{
	class FTypeTable;

	/** The text of `<Name>.gen.cpp`: tables, thunks, event bodies and registrars of the types of Header. */
	std::string EmitGeneratedSource(const FHeader& Header, const FTypeTable& Types);
}
