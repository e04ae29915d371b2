// Copyright Velmorant. All Rights Reserved.
// Headers with reflection macros: generated from, or refused with file and place.

#include "Diagnostics.h"
#include "FuzzTarget.h"
#include "GeneratedHeader.h"
#include "GeneratedSource.h"
#include "HeaderParser.h"
#include "TypeTable.h"
#include "Validator.h"

void FuzzTargets::CheckHeader(std::string_view Input)
{
	using namespace HeaderTool;
	FHeader Header;
	Header.Path = "Fuzz.h";
	Header.IncludePath = "Fuzz.h";
	Header.Module = "Fuzz";
	Header.bOwn = true;
	FDiagnostics Diagnostics;
	ParseHeader(std::string(Input), Header, Diagnostics);
	FTypeTable Types;
	Types.Add(Header, Diagnostics);
	ValidateHeader(Header, Types, Diagnostics);
	for (const FDiagnostic& Error : Diagnostics.GetErrors())
	{
		Promise(Error.Path == Header.Path && !Error.Message.empty(), "a message says where and what");
	}
	if (!Diagnostics.HasErrors())
	{
		Promise(EmitGeneratedHeader(Header, Types) == EmitGeneratedHeader(Header, Types), "the same header gives the same code");
		Promise(!EmitGeneratedSource(Header, Types).empty(), "a header that is accepted is generated from");
	}
}
