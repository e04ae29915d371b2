// Copyright Velmorant. All Rights Reserved.

#include "MemberParser.h"

#include "SpecifierParser.h"
#include "TextTools.h"
#include "TypeParser.h"

namespace HeaderTool
{
	namespace MemberParser
	{
		const char* AccessFlagSuffix(EAccess Access)
		{
			if (Access == EAccess::Public)
			{
				return "Public";
			}
			return Access == EAccess::Protected ? "Protected" : "Private";
		}

		void SkipInitializer(FTokenCursor& Cursor, const std::string& Name)
		{
			while (!Cursor.AtEnd() && !Cursor.Is(";"))
			{
				if (Cursor.Is(",") || Cursor.Is("}"))
				{
					throw FSyntaxError{Cursor.Peek().Place, "expected ';' after the UPROPERTY '" + Name + "'; declare one variable per UPROPERTY()."};
				}
				if (Cursor.Is("(") || Cursor.Is("{") || Cursor.Is("["))
				{
					Cursor.SkipBalanced();
				}
				else if (Cursor.Is("<"))
				{
					for (int Depth = 0; !Cursor.AtEnd() && !Cursor.Is(";");)
					{
						Depth += Cursor.Is("<") - Cursor.Is(">");
						Cursor.Next();
						if (Depth == 0)
						{
							break;
						}
					}
				}
				else
				{
					Cursor.Next();
				}
			}
		}

		/** What stands before the return type. */
		void ParseFunctionHead(FTokenCursor& Cursor, FFunction& Function)
		{
			for (;;)
			{
				SkipDecorations(Cursor);
				if (Cursor.Accept("virtual"))
				{
					Function.bVirtual = true;
				}
				else if (Cursor.Accept("static"))
				{
					Function.bStatic = true;
				}
				else if (!Cursor.Accept("inline") && !Cursor.Accept("FORCEINLINE") && !Cursor.Accept("constexpr") && !Cursor.Accept("explicit"))
				{
					return;
				}
			}
		}

		/** What stands behind the parameters, the body included. */
		void ParseFunctionTail(FTokenCursor& Cursor, FFunction& Function)
		{
			for (;;)
			{
				if (Cursor.Accept("const"))
				{
					Function.bConst = true;
				}
				else if (Cursor.Accept("override") || Cursor.Accept("final"))
				{
					Function.bVirtual = true;
				}
				else if (Cursor.Is("PURE_VIRTUAL"))
				{
					Cursor.Next();
					Cursor.SkipBalanced();
					Function.bHasBody = true;
				}
				else if (!Cursor.Accept("noexcept"))
				{
					break;
				}
			}
			if (Cursor.Is("="))
			{
				throw FSyntaxError{Cursor.Peek().Place, "the UFUNCTION '" + Function.Name + "' must have a body: reflected classes are never abstract in C++; use PURE_VIRTUAL() or an empty body."};
			}
			if (Cursor.Is("{"))
			{
				Cursor.SkipBalanced();
				Cursor.Accept(";");
				Function.bHasBody = true;
			}
			else if (!Cursor.Accept(";") && !Function.bHasBody)
			{
				Cursor.Expect(";", "after the UFUNCTION '" + Function.Name + "'");
			}
		}

		void SetFunctionFlags(FFunction& Function)
		{
			Function.Flags.Add(std::string("FUNC_") + AccessFlagSuffix(Function.Access));
			if (Function.bStatic)
			{
				Function.Flags.Add("FUNC_Static");
			}
			if (Function.bConst)
			{
				Function.Flags.Add("FUNC_Const");
			}
			if (Function.HasNativeBody())
			{
				Function.Flags.Add("FUNC_Native");
			}
			if (!Function.bVirtual && Function.Event == EFunctionEvent::None)
			{
				Function.Flags.Add("FUNC_Final");
			}
		}

		struct FDelegateMacro
		{
			bool bMulticast = false;
			bool bReturns = false;
			size_t NumParameters = 0;
		};

		FDelegateMacro ReadDelegateMacro(const FToken& Token)
		{
			std::string Rest = Token.Text.substr(std::string("DECLARE_DYNAMIC_").size());
			const auto Take = [&Rest](const std::string& Prefix) {
				const bool bFound = StartsWith(Rest, Prefix);
				Rest = bFound ? Rest.substr(Prefix.size()) : Rest;
				return bFound;
			};
			FDelegateMacro Macro;
			Macro.bMulticast = Take("MULTICAST_");
			bool bKnown = Take("DELEGATE");
			Macro.bReturns = Take("_RetVal");
			bool bCounted = Rest.empty();
			const char* Counts[] = {"_OneParam", "_TwoParams", "_ThreeParams", "_FourParams", "_FiveParams", "_SixParams", "_SevenParams", "_EightParams", "_NineParams"};
			for (size_t Index = 0; Index < std::size(Counts); ++Index)
			{
				if (Rest == Counts[Index])
				{
					Macro.NumParameters = Index + 1;
					bCounted = true;
				}
			}
			bKnown &= bCounted && !(Macro.bMulticast && Macro.bReturns);
			if (!bKnown)
			{
				throw FSyntaxError{Token.Place, "there is no macro " + Token.Text + "; use DECLARE_DYNAMIC_DELEGATE or DECLARE_DYNAMIC_MULTICAST_DELEGATE with _OneParam to _NineParams."};
			}
			return Macro;
		}
	}

	FProperty ParseProperty(FTokenCursor& Cursor, const std::string& Path, EAccess Access, FDiagnostics& Diagnostics)
	{
		FProperty Property;
		Property.Access = Access;
		ApplyPropertySpecifiers(ParseSpecifiers(Cursor, Path), Property, Diagnostics);
		Property.Flags.Add(std::string("CPF_NativeAccessSpecifier") + MemberParser::AccessFlagSuffix(Access));
		SkipDecorations(Cursor);
		Property.Place = Cursor.Peek().Place;
		if (Cursor.Is("static"))
		{
			throw FSyntaxError{Property.Place, "a static variable cannot be a UPROPERTY; remove 'static' or the UPROPERTY()."};
		}
		Cursor.Accept("mutable");
		Property.Type = ParseType(Cursor);
		Property.Place = Cursor.Peek().Place;
		Property.Name = Cursor.ExpectIdentifier("the name of a variable after UPROPERTY()");
		if (Cursor.Is("("))
		{
			throw FSyntaxError{Property.Place, "'" + Property.Name + "' is a function; use UFUNCTION() instead of UPROPERTY()."};
		}
		if (Cursor.Is("["))
		{
			throw FSyntaxError{Property.Place, "UPROPERTY '" + Property.Name + "' is a C array, which is not supported here; use TArray<" + Property.Type.Spell() + ">."};
		}
		if (Cursor.Is(":"))
		{
			throw FSyntaxError{Property.Place, "UPROPERTY '" + Property.Name + "' is a bit field, which is not supported here; use bool."};
		}
		MemberParser::SkipInitializer(Cursor, Property.Name);
		Cursor.Expect(";", "after the UPROPERTY '" + Property.Name + "'");
		return Property;
	}

	FFunction ParseFunction(FTokenCursor& Cursor, const std::string& Path, EAccess Access, FDiagnostics& Diagnostics)
	{
		FFunction Function;
		Function.Access = Access;
		ApplyFunctionSpecifiers(ParseSpecifiers(Cursor, Path), Function, Diagnostics);
		MemberParser::ParseFunctionHead(Cursor, Function);
		Function.Place = Cursor.Peek().Place;
		if (Cursor.Is("UPARAM"))
		{
			throw FSyntaxError{Function.Place, "UPARAM() before a result is known to the engine, not supported here; remove it."};
		}
		if (Cursor.Is("~") || Cursor.Peek(1).Is("("))
		{
			throw FSyntaxError{Function.Place, "'" + Cursor.Peek().Text + "' after UFUNCTION() has no return type; constructors and destructors cannot be reflected."};
		}
		Function.Return = ParseType(Cursor);
		SkipDecorations(Cursor);
		Function.Place = Cursor.Peek().Place;
		Function.Name = Cursor.ExpectIdentifier("the name of a function after UFUNCTION()");
		if (!Cursor.Is("("))
		{
			throw FSyntaxError{Function.Place, "expected a function after UFUNCTION(), but '" + Function.Name + "' is none; use UPROPERTY() for a variable."};
		}
		Function.Parameters = ParseParameters(Cursor, Path, Diagnostics);
		MemberParser::ParseFunctionTail(Cursor, Function);
		MemberParser::SetFunctionFlags(Function);
		return Function;
	}

	bool IsDelegateMacro(const FToken& Token)
	{
		return Token.IsIdentifier() && StartsWith(Token.Text, "DECLARE_DYNAMIC_") && Token.Text.find("DELEGATE") != std::string::npos;
	}

	FDelegateType ParseDelegate(FTokenCursor& Cursor)
	{
		FDelegateType Delegate;
		const FToken& MacroToken = Cursor.Next();
		const std::string& MacroName = MacroToken.Text;
		const MemberParser::FDelegateMacro Macro = MemberParser::ReadDelegateMacro(MacroToken);
		Delegate.bMulticast = Macro.bMulticast;
		Delegate.Return.Name = "void";
		Cursor.Expect("(", "after " + MacroName);
		if (Macro.bReturns)
		{
			Delegate.Return = ParseType(Cursor);
			Cursor.Expect(",", "after the return type of " + MacroName);
		}
		Delegate.Place = Cursor.Peek().Place;
		Delegate.Name = Cursor.ExpectIdentifier("the name of the delegate in " + MacroName);
		while (Cursor.Accept(","))
		{
			FProperty Parameter;
			Parameter.Type = ParseType(Cursor);
			Cursor.Expect(",", "between type and name of a parameter of " + Delegate.Name);
			Parameter.Place = Cursor.Peek().Place;
			Parameter.Name = Cursor.ExpectIdentifier("the name of a parameter of " + Delegate.Name);
			Delegate.Parameters.push_back(Parameter);
		}
		Cursor.Expect(")", "at the end of " + MacroName);
		Cursor.Accept(";");
		if (Delegate.Parameters.size() != Macro.NumParameters)
		{
			throw FSyntaxError{MacroToken.Place, MacroName + " declares " + std::to_string(Macro.NumParameters) + " parameter(s), but '" + Delegate.Name + "' has " + std::to_string(Delegate.Parameters.size()) + "; use the macro for that number."};
		}
		return Delegate;
	}
}
