// Copyright Velmorant. All Rights Reserved.

#include "Surface.h"

#include "Reachable.h"

#include <algorithm>
#include <map>

namespace SurfaceCheck
{
	namespace Surface
	{
		using FOverloads = std::vector<const FSourceFunction*>;

		/** All declarations and definitions of the lower layer, by name and number of parameters. */
		std::map<FFunctionName, FOverloads> GroupByName(const std::vector<FSource>& Sources)
		{
			std::map<FFunctionName, FOverloads> Result;
			for (const FSource& Source : Sources)
			{
				for (const FSourceFunction& Function : Source.Functions)
				{
					Result[Function.Name].push_back(&Function);
				}
			}
			return Result;
		}

		class FSearch
		{
		public:
			explicit FSearch(const FSurfaceInput& InInput)
				: Input(InInput)
				, Functions(GroupByName(InInput.LowerSources))
				, Reachable(InInput.LowerObjects, InInput.OwnObjects, GetOwnClasses(InInput))
			{
				Needs.DataWords = InInput.DataWords;
				TakeOwn();
				while (WalkAgain())
				{
				}
			}

			void Report(std::vector<FFinding>& Findings) const
			{
				for (const auto& [Name, Overloads] : Functions)
				{
					if (!IsNeeded(Name, Overloads))
					{
						Findings.push_back(MakeFinding(Name, Overloads));
					}
				}
			}

		private:
			static std::set<std::string> GetOwnClasses(const FSurfaceInput& Input)
			{
				std::set<std::string> Result;
				for (const FSource& Source : Input.OwnSources)
				{
					Result.insert(Source.Classes.begin(), Source.Classes.end());
				}
				return Result;
			}

			void TakeOwn()
			{
				for (const std::vector<FSource>* Sources : {&Input.OwnSources, &Input.LowerSources})
				{
					for (const FSource& Source : *Sources)
					{
						Needs.CalledNames.insert(Source.Calls.begin(), Source.Calls.end());
						Words.insert(Source.Words.begin(), Source.Words.end());
						Needs.DataWords.insert(Source.ScriptNames.begin(), Source.ScriptNames.end());
					}
				}
				for (const FSource& Source : Input.OwnSources)
				{
					for (const FSourceFunction& Function : Source.Functions)
					{
						TakeBody(Function, false);
						if (Function.bVirtual)
						{
							Needs.CalledNames.insert(Function.Name.Name);
						}
					}
				}
			}

			/** @param bPassesOn a virtual function: one that calls its own name keeps nothing alive by that, it passes on what it was called for */
			void TakeBody(const FSourceFunction& Function, bool bPassesOn)
			{
				const bool bEraseCall = bPassesOn && !Needs.CalledNames.contains(Function.Name.Name);
				const bool bEraseWord = bPassesOn && !Words.contains(Function.Name.Name);
				Needs.CalledNames.insert(Function.Calls.begin(), Function.Calls.end());
				Words.insert(Function.Words.begin(), Function.Words.end());
				Needs.Families.insert(Function.Families.begin(), Function.Families.end());
				if (bEraseCall)
				{
					Needs.CalledNames.erase(Function.Name.Name);
				}
				if (bEraseWord)
				{
					Words.erase(Function.Name.Name);
				}
			}

			static bool IsVirtual(const FOverloads& Overloads)
			{
				return std::any_of(Overloads.begin(), Overloads.end(), [](const FSourceFunction* Function) { return Function->bVirtual; });
			}

			/** Walks, and takes what the bodies that were reached call. Whether that was anything new. */
			bool WalkAgain()
			{
				Reachable.Walk(Needs);
				const size_t Before = CountTaken();
				for (const auto& [Name, Overloads] : Functions)
				{
					if (IsNeeded(Name, Overloads) && Taken.insert(&Overloads).second)
					{
						for (const FSourceFunction* Function : Overloads)
						{
							TakeBody(*Function, IsVirtual(Overloads));
						}
					}
				}
				return CountTaken() != Before;
			}

			size_t CountTaken() const { return Needs.CalledNames.size() + Words.size() + Needs.Families.size() + Taken.size(); }

			bool IsNeeded(const FFunctionName& Name, const FOverloads& Overloads) const
			{
				if (Name.IsDestructor() || Reachable.IsReached(Name))
				{
					return true;
				}
				bool bBody = false;
				bool bConstant = false;
				for (const FSourceFunction* Function : Overloads)
				{
					if (Function->bNothingToCall)
					{
						return true;
					}
					bBody |= Function->bBody;
					bConstant |= Function->bConstant;
				}
				if (IsVirtual(Overloads) && !bBody)
				{
					return IsCalled(Needs.CalledNames, Name.Name);
				}
				// The compiler may have evaluated it, or only looked at its type: then there is nothing to see in the objects.
				return (!bBody || bConstant) && (Name.Name.starts_with("operator") || Words.contains(Name.Name));
			}

			static FFinding MakeFinding(const FFunctionName& Name, const FOverloads& Overloads)
			{
				FFinding Finding;
				const std::string Count = Name.Parameters == FFunctionName::AnyNumber ? "..." : std::to_string(Name.Parameters);
				Finding.Name = Name.GetQualified() + "(" + Count + ")";
				for (const FSourceFunction* Function : Overloads)
				{
					Finding.Places.push_back({Function->Path, Function->Line, Function->LastLine});
				}
				std::stable_partition(Finding.Places.begin(), Finding.Places.end(), [](const FPlace& Place) { return Place.Path.ends_with(".h"); });
				return Finding;
			}

			const FSurfaceInput& Input;
			std::map<FFunctionName, FOverloads> Functions;
			FReachable Reachable;
			FNeeds Needs;
			std::set<std::string> Words; // names that somebody who is needed mentions
			std::set<const FOverloads*> Taken;
		};

		bool EndsWithPath(const std::string& Path, const std::string& End)
		{
			return Path == End || Path.ends_with("/" + End);
		}

		void ReportHeaders(const FSurfaceInput& Input, std::vector<FFinding>& Findings)
		{
			std::set<std::string> Includes = Input.GeneratedIncludes;
			for (const std::vector<FSource>* Sources : {&Input.OwnSources, &Input.LowerSources})
			{
				for (const FSource& Source : *Sources)
				{
					for (const std::string& Include : Source.Includes)
					{
						Includes.insert(Include.substr(Include.starts_with("../") ? Include.rfind("../") + 3 : 0));
					}
				}
			}
			for (const FSource& Source : Input.LowerSources)
			{
				const bool bIncluded = std::any_of(Includes.begin(), Includes.end(), [&Source](const std::string& Include) { return EndsWithPath(Source.Path, Include); });
				if (Source.Path.ends_with(".h") && !bIncluded)
				{
					Findings.push_back({Source.Path, {{Source.Path, 1, 1}}});
				}
			}
		}
	}

	int FFinding::CountLines() const
	{
		int Count = 0;
		for (const FPlace& Place : Places)
		{
			Count += Place.LastLine - Place.Line + 1;
		}
		return Count;
	}

	std::string FFinding::GetText() const
	{
		const FPlace& Place = Places.front();
		return Name == Place.Path ? Name + ": nobody includes this header" : Place.Path + "(" + std::to_string(Place.Line) + "): nobody reaches " + Name;
	}

	std::vector<FFinding> FindUnneeded(const FSurfaceInput& Input)
	{
		std::vector<FFinding> Findings;
		Surface::FSearch(Input).Report(Findings);
		Surface::ReportHeaders(Input, Findings);
		std::sort(Findings.begin(), Findings.end(), [](const FFinding& A, const FFinding& B) { return A.Places < B.Places; });
		return Findings;
	}
}
