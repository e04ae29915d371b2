// Copyright Velmorant. All Rights Reserved.

#pragma once

#include <string>

namespace HeaderTool
{
	/** Collects lines of generated code, indented by tabs. */
	class FCodeWriter
	{
	public:
		void Line(const std::string& Text = "")
		{
			Code += Text.empty() ? "\n" : std::string(static_cast<size_t>(Depth), '\t') + Text + "\n";
		}

		void Open(const std::string& Head = "")
		{
			if (!Head.empty())
			{
				Line(Head);
			}
			Line("{");
			++Depth;
		}

		/** Tail follows the brace: ";" for types and tables. */
		void Close(const std::string& Tail = "")
		{
			--Depth;
			Line("}" + Tail);
		}

		void Indent() { ++Depth; }
		void Outdent() { --Depth; }

		const std::string& GetCode() const { return Code; }

	private:
		std::string Code;
		int Depth = 0;
	};
}
