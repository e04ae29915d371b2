// Copyright Velmorant. All Rights Reserved.

#include "Contract/ExpectedHeader.h"

#include "HeaderParser.h"

namespace ExpectedHeader
{
	/** Structs are written as classes: only these may have reflected functions. */
	std::string BeginType(const FExpectedName& Type)
	{
		if (Type.Text.starts_with("enum"))
		{
			return "UENUM()\n" + Type.Text + "\n{\n";
		}
		const bool bStruct = Type.Text.starts_with("struct ");
		return "UCLASS()\n" + (bStruct ? "class " + Type.Text.substr(7) : Type.Text) + "\n{\nGENERATED_BODY()\npublic:\n";
	}

	std::string WriteMember(const FExpectedName& Type, const FExpectedName& Member)
	{
		if (Type.Text.starts_with("enum"))
		{
			return Member.Text + ",\n";
		}
		const bool bFunction = Member.Text.find('(') != std::string::npos;
		return (bFunction ? "UFUNCTION() " : "UPROPERTY() ") + Member.Text + ";\n";
	}

	void Parse(const std::vector<FExpectedName>& Names, HeaderTool::FHeader& OutHeader, HeaderTool::FDiagnostics& Diagnostics)
	{
		std::string Text;
		for (size_t Index = 0; Index < Names.size();)
		{
			const FExpectedName& Type = Names[Index++];
			if (Type.Text.starts_with("DECLARE_"))
			{
				Text += Type.Text.starts_with("DECLARE_DYNAMIC_") ? Type.Text + ";\n" : "";
				continue;
			}
			Text += BeginType(Type);
			for (; Index < Names.size() && !Names[Index].Member.empty(); ++Index)
			{
				Text += Names[Index].IsConstructor() ? "" : WriteMember(Type, Names[Index]);
			}
			Text += "};\n";
		}
		OutHeader.Path = "what the module expects";
		HeaderTool::ParseHeader(Text, OutHeader, Diagnostics);
	}
}
