// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Model.h"

namespace HeaderTool
{
	class FTypeTable;

	/** The text of `<Name>.generated.h`: forward declarations, and one body macro for each GENERATED_BODY() of the header. */
	std::string EmitGeneratedHeader(const FHeader& Header, const FTypeTable& Types);
}
