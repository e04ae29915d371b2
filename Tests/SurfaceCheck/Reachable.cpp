// Copyright Velmorant. All Rights Reserved.

#include "Reachable.h"

#include <algorithm>

namespace SurfaceCheck
{
	namespace Reachable
	{
		const std::string TablePrefix = "Z_Statics_"; // how the header tool calls what holds a class's tables
		const std::string ThunkPrefix = "exec"; // and the functions that scripts come in by

		bool IsVtable(const std::string& Mangled)
		{
			return Mangled.starts_with("_ZTV") || Mangled.starts_with("_ZTC");
		}

		bool RunsBeforeMain(const std::string& Mangled)
		{
			return Mangled.find("__static_initialization_and_destruction") != std::string::npos || Mangled.starts_with("_GLOBAL__sub_I");
		}

		std::string GetLastClass(const std::string& Scope)
		{
			const size_t Found = Scope.rfind("::");
			return Found == std::string::npos ? Scope : Scope.substr(Found + 2);
		}

		/** Data name functions, and properties that are read and written through functions. */
		bool IsNamed(const std::set<std::string>& DataWords, const std::string& Function)
		{
			for (const std::string Prefix : {"", "Set", "Get", "Is"})
			{
				if (Function.starts_with(Prefix) && DataWords.contains(Function.substr(Prefix.size())))
				{
					return true;
				}
			}
			return false;
		}

		bool IsThunk(const FFunctionName& Function)
		{
			return Function.Name.starts_with(ThunkPrefix) && Function.Parameters == 3;
		}
	}

	FReachable::FReachable(const std::vector<std::string>& LowerObjects, const std::vector<std::string>& OwnObjects, const std::set<std::string>& InOwnClasses)
		: OwnClasses(InOwnClasses)
	{
		for (const std::string& Path : OwnObjects)
		{
			Load(Path, true);
		}
		for (const std::string& Path : LowerObjects)
		{
			Load(Path, false);
		}
	}

	size_t FReachable::GetNode(const std::string& Mangled)
	{
		const auto [Entry, bNew] = NodesByName.try_emplace(Mangled, Nodes.size());
		if (bNew)
		{
			Nodes.emplace_back();
		}
		return Entry->second;
	}

	void FReachable::Load(const std::string& Path, bool bOwn)
	{
		const std::vector<FSection> Sections = ReadObjectFile(Path);
		std::vector<size_t> NodeOfSection;
		for (const FSection& Section : Sections)
		{
			size_t Index = Nodes.size();
			if (Section.GlobalSymbols.empty())
			{
				Nodes.emplace_back();
			}
			else
			{
				Index = GetNode(Section.GlobalSymbols.front());
			}
			for (const std::string& Symbol : Section.GlobalSymbols)
			{
				const auto [Entry, bNew] = NodesByName.try_emplace(Symbol, Index);
				if (!bNew && Entry->second != Index)
				{
					Nodes[Entry->second].Edges.push_back(Index); // somebody else's reference came first
				}
			}
			NodeOfSection.push_back(Index);
			FNode& Node = Nodes[Index];
			for (const std::vector<std::string>* Symbols : {&Section.GlobalSymbols, &Section.LocalSymbols})
			{
				for (const std::string& Symbol : *Symbols)
				{
					Describe(Node, Symbol);
					Node.bRegistration |= !bOwn && Reachable::RunsBeforeMain(Symbol);
				}
			}
			const bool bHasSymbols = !Section.GlobalSymbols.empty() || !Section.LocalSymbols.empty();
			Node.bStart |= Section.bRunsAtStart || (bOwn && bHasSymbols && !Section.bShared);
		}
		for (size_t Index = 0; Index < Sections.size(); ++Index)
		{
			for (const size_t Section : Sections[Index].Sections)
			{
				Nodes[NodeOfSection[Index]].Edges.push_back(NodeOfSection[Section]);
			}
			for (const std::string& Symbol : Sections[Index].Symbols)
			{
				const size_t To = GetNode(Symbol);
				Nodes[NodeOfSection[Index]].Edges.push_back(To);
			}
		}
	}

	void FReachable::Describe(FNode& Node, const std::string& Mangled)
	{
		const std::string Text = Demangle(Mangled);
		const size_t Table = Mangled.find(Reachable::TablePrefix);
		if (Table != std::string::npos)
		{
			Node.bGenerated = true;
			const size_t Found = Text.find(Reachable::TablePrefix) + Reachable::TablePrefix.size();
			if (Text.ends_with("::Z_Record"))
			{
				Node.RecordOf = Text.substr(Found, Text.find(':', Found) - Found);
			}
		}
		if (Reachable::IsVtable(Mangled))
		{
			Node.bVtable = true;
			FFunctionName Class = ParseDemangled(Text.substr(std::min(Text.size(), Text.find(" for ") + 5)) + "::X()");
			Node.bOwnClass = OwnClasses.contains(Reachable::GetLastClass(Class.Scope));
			return;
		}
		FFunctionName Function = ParseDemangled(Text);
		if (!Function.Name.empty())
		{
			Node.bOwnClass = OwnClasses.contains(Reachable::GetLastClass(Function.Scope));
			Node.Functions.push_back(std::move(Function));
		}
	}

	bool FReachable::Counts(const FNode& From, const FNode& To) const
	{
		if (To.Functions.empty())
		{
			return !(From.bRegistration && To.bGenerated);
		}
		const FFunctionName& Function = To.Functions.front();
		if (From.bVtable)
		{
			return Function.IsDestructor() || To.bOwnClass || IsCalled(Needs->CalledNames, Function.Name);
		}
		if (From.bGenerated && Reachable::IsThunk(Function))
		{
			return To.bOwnClass || Reachable::IsNamed(Needs->DataWords, Function.Name.substr(Reachable::ThunkPrefix.size()));
		}
		return true;
	}

	/** The table that the function leads to which a table names as the one of the class above. */
	const FReachable::FNode* FReachable::FindSuper(const FNode& Record) const
	{
		for (const size_t Function : Record.Edges)
		{
			for (const size_t Table : Nodes[Function].Edges)
			{
				if (!Nodes[Function].Functions.empty() && Nodes[Function].Functions.front().Name == "ClassOf" && !Nodes[Table].RecordOf.empty())
				{
					return &Nodes[Table];
				}
			}
		}
		return nullptr;
	}

	bool FReachable::IsBelowFamily(const FNode& Record) const
	{
		for (const FNode* Super = FindSuper(Record); Super; Super = FindSuper(*Super))
		{
			if (Needs->Families.contains(Super->RecordOf))
			{
				return true;
			}
		}
		return false;
	}

	bool FReachable::IsStart(const FNode& Node) const
	{
		const bool bNamed = !Node.RecordOf.empty() && (Needs->DataWords.contains(Node.RecordOf.substr(1)) || IsBelowFamily(Node));
		return Node.bStart || bNamed;
	}

	void FReachable::Walk(const FNeeds& InNeeds)
	{
		Needs = &InNeeds;
		for (FNode& Node : Nodes)
		{
			Node.bReached = false;
		}
		for (size_t Node = 0; Node < Nodes.size(); ++Node)
		{
			if (IsStart(Nodes[Node]))
			{
				Visit(Node);
			}
		}
	}

	void FReachable::Visit(size_t First)
	{
		std::vector<size_t> Waiting = {First};
		while (!Waiting.empty())
		{
			FNode& Node = Nodes[Waiting.back()];
			Waiting.pop_back();
			if (Node.bReached)
			{
				continue;
			}
			Node.bReached = true;
			for (const FFunctionName& Function : Node.Functions)
			{
				Reached.insert(Function);
				ReachedNames.emplace(Function.Scope, Function.Name);
			}
			for (const size_t To : Node.Edges)
			{
				if (!Nodes[To].bReached && Counts(Node, Nodes[To]))
				{
					Waiting.push_back(To);
				}
			}
		}
	}

	bool FReachable::IsReached(const FFunctionName& Name) const
	{
		return Name.Parameters == FFunctionName::AnyNumber ? ReachedNames.contains({Name.Scope, Name.Name}) : Reached.contains(Name);
	}
}
