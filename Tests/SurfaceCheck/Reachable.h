// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "FunctionName.h"
#include "ObjectFile.h"
#include "SourceReader.h"

#include <map>
#include <set>
#include <string>
#include <vector>

namespace SurfaceCheck
{
	/** What the walk takes for granted. */
	struct FNeeds
	{
		std::set<std::string> CalledNames; // by somebody who is needed
		std::set<std::string> DataWords; // that data files mention
		std::set<std::string> Families; // classes below which others are looked for at run time: these are needed without being named
	};

	/**
	 * The functions that a program's own objects reach in the objects of its lower layer.
	 *
	 * All that the program's own objects define is needed, of the lower layer only what references lead to. Two kinds of
	 * references do not count by themselves: those of a vtable count for names that somebody calls, and the tables of the header
	 * tool count for names that data files mention, as do the registrations of classes.
	 */
	class FReachable
	{
	public:
		/** Objects of the lower layer are walked into, all of the others are where the walk starts. OwnClasses: those of the others. */
		FReachable(const std::vector<std::string>& LowerObjects, const std::vector<std::string>& OwnObjects, const std::set<std::string>& OwnClasses);

		void Walk(const FNeeds& InNeeds);

		/** Whether any overload with as many parameters is reached. */
		bool IsReached(const FFunctionName& Name) const;

	private:
		struct FNode
		{
			std::vector<FFunctionName> Functions;
			std::vector<size_t> Edges;
			bool bVtable = false;
			bool bOwnClass = false; // a function or vtable of a class of the program's own
			bool bStart = false;
			bool bGenerated = false; // a table of the header tool
			bool bRegistration = false; // of the lower layer, before main
			bool bReached = false;
			std::string RecordOf; // class that this table describes, with its prefix letter
		};

		void Load(const std::string& Path, bool bOwn);
		void Describe(FNode& Node, const std::string& Mangled);
		size_t GetNode(const std::string& Mangled);
		void Visit(size_t Node);
		bool Counts(const FNode& From, const FNode& To) const;
		bool IsStart(const FNode& Node) const;
		bool IsBelowFamily(const FNode& Record) const;
		const FNode* FindSuper(const FNode& Record) const;

		std::vector<FNode> Nodes;
		std::map<std::string, size_t> NodesByName;
		std::set<std::string> OwnClasses;
		const FNeeds* Needs = nullptr;
		std::set<std::pair<std::string, std::string>> ReachedNames; // scope and name, of any number of parameters
		std::set<FFunctionName> Reached;
	};
}
