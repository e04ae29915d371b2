// Copyright Velmorant. All Rights Reserved.

#include "EnumParser.h"

#include "Brackets.h"
#include "SpecifierParser.h"
#include "TypeParser.h"

namespace HeaderTool
{
	namespace EnumParser
	{
		/** What stands behind `=`, up to what ends the enumerator. */
		std::string ParseValue(FTokenCursor& Cursor)
		{
			std::string Value;
			while (!Cursor.AtEnd() && !Cursor.Is(",") && !Cursor.Is("}") && !Cursor.Is("UMETA"))
			{
				if (Cursor.Is("(") || Cursor.Is("{"))
				{
					const std::string Open = Cursor.Peek().Text;
					Value += Open + Cursor.SkipBalanced() + PartnerOf(Open);
				}
				else
				{
					AppendToken(Value, Cursor.Next());
				}
			}
			return Value;
		}

		FEnumerator ParseEnumerator(FTokenCursor& Cursor, const std::string& Path, FDiagnostics& Diagnostics)
		{
			FEnumerator Enumerator;
			FSpecifierList List;
			List.Path = Path;
			const std::string Comment = Cursor.Peek().Comment;
			Enumerator.Place = Cursor.Peek().Place;
			Enumerator.Name = Cursor.ExpectIdentifier("the name of an enumerator");
			SkipDecorations(Cursor);
			if (Cursor.Is("UMETA"))
			{
				List = ParseSpecifiers(Cursor, Path);
			}
			if (Cursor.Accept("="))
			{
				Enumerator.ValueText = ParseValue(Cursor);
				if (Cursor.Is("UMETA"))
				{
					List = ParseSpecifiers(Cursor, Path);
				}
			}
			List.Comment = Comment;
			ApplyEnumeratorSpecifiers(List, Enumerator, Diagnostics);
			return Enumerator;
		}

		/** As it is written, whether it can be reflected or not. */
		void ParseUnderlying(FTokenCursor& Cursor, FEnum& Enum)
		{
			if (Cursor.Accept(":"))
			{
				Enum.UnderlyingPlace = Cursor.Peek().Place;
				Enum.Underlying = Cursor.ExpectIdentifier("the underlying type of '" + Enum.Name + "'");
				while (!Cursor.AtEnd() && !Cursor.Is("{") && !Cursor.Is(";"))
				{
					AppendToken(Enum.Underlying, Cursor.Next());
				}
			}
		}

		void ParseEnumerators(FTokenCursor& Cursor, const std::string& Path, FEnum& Enum, FDiagnostics& Diagnostics)
		{
			Cursor.Expect("{", "to begin the enumerators of '" + Enum.Name + "'");
			while (!Cursor.Is("}"))
			{
				Enum.Enumerators.push_back(ParseEnumerator(Cursor, Path, Diagnostics));
				if (!Cursor.Is("}"))
				{
					Cursor.Expect(",", "between the enumerators of '" + Enum.Name + "'");
				}
			}
			Cursor.Next();
			Cursor.Accept(";");
		}
	}

	FEnum ParseEnum(FTokenCursor& Cursor, const FSpecifierList& List, FDiagnostics& Diagnostics)
	{
		FEnum Enum;
		ApplyEnumSpecifiers(List, Enum, Diagnostics);
		SkipDecorations(Cursor);
		if (Cursor.Accept("namespace"))
		{
			Enum.Form = EEnumForm::Namespaced;
			Enum.Place = Cursor.Peek().Place;
			Enum.Name = Cursor.ExpectIdentifier("the name of the namespace after UENUM()");
			Cursor.Expect("{", "after 'namespace " + Enum.Name + "'");
			Cursor.Expect("enum", "in the namespace '" + Enum.Name + "' after UENUM()");
			Enum.InnerName = Cursor.ExpectIdentifier("the name of the enum in '" + Enum.Name + "'");
			EnumParser::ParseUnderlying(Cursor, Enum);
			EnumParser::ParseEnumerators(Cursor, List.Path, Enum, Diagnostics);
			// Helpers may follow the enum in its namespace.
			while (!Cursor.AtEnd() && !Cursor.Is("}"))
			{
				if (Cursor.Is("{") || Cursor.Is("("))
				{
					Cursor.SkipBalanced();
				}
				else
				{
					Cursor.Next();
				}
			}
			Cursor.Next();
			Cursor.Accept(";");
			return Enum;
		}
		Cursor.Expect("enum", "after UENUM()");
		Enum.Form = Cursor.Accept("class") || Cursor.Accept("struct") ? EEnumForm::Scoped : EEnumForm::Plain;
		SkipDecorations(Cursor);
		Enum.Place = Cursor.Peek().Place;
		Enum.Name = Cursor.ExpectIdentifier("the name of the enum after UENUM()");
		EnumParser::ParseUnderlying(Cursor, Enum);
		EnumParser::ParseEnumerators(Cursor, List.Path, Enum, Diagnostics);
		return Enum;
	}
}
