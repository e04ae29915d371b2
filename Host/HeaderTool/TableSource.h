// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CodeWriter.h"
#include "Model.h"

namespace HeaderTool
{
	// Constant tables of generated sources. Each table has a name; a table without entries is not written, and referred to as null.

	/** `static constexpr … Name[] = {…};` */
	void WriteMetaData(FCodeWriter& Writer, const std::string& Name, const FMetaData& Meta);

	/** `.MetaData = …, .NumMetaData = …` of a record whose table is Name. */
	std::string MetaDataFields(const std::string& Name, const FMetaData& Meta);

	/** The table of members or parameters, and before it the metadata of each. Owner is the type whose members they are. */
	void WriteProperties(FCodeWriter& Writer, const std::string& Name, const std::string& Owner, const std::vector<FProperty>& Properties);

	/** `.Properties = Name, .NumProperties = N`, or null and 0; Field is "Properties" or the like. */
	std::string TableFields(const std::string& Field, const std::string& Name, size_t Count);

	/** The static object that announces the record of a type while the program loads. */
	void WriteRegistrar(FCodeWriter& Writer, const std::string& RegistrarType, const std::string& CppName);
}
