// Copyright Velmorant. All Rights Reserved.

#include "Suggestions.h"

#include <algorithm>
#include <vector>

namespace Suggestions
{
	constexpr int32 MostListed = 24;
	constexpr int32 LettersPerError = 3; // of the shorter text; more of them mistyped is another word
	constexpr int32 MinPart = 3; // letters by which a name is known that are only a part of it

	/** How many letters were left out, put in, mistaken or swapped with their neighbour; more than Most when they are more. */
	int32 CountErrors(FStringView A, FStringView B, int32 Most)
	{
		std::vector<int32> BeforeLast(static_cast<size_t>(B.Len()) + 1);
		std::vector<int32> Last(BeforeLast.size());
		std::vector<int32> Row(BeforeLast.size());
		for (int32 Column = 0; Column <= B.Len(); ++Column)
		{
			Last[static_cast<size_t>(Column)] = Column;
		}
		for (int32 Line = 1; Line <= A.Len(); ++Line)
		{
			Row[0] = Line;
			int32 Least = Line;
			for (int32 Column = 1; Column <= B.Len(); ++Column)
			{
				const size_t Place = static_cast<size_t>(Column);
				const int32 Mistaken = Last[Place - 1] + (A[Line - 1] == B[Column - 1] ? 0 : 1);
				Row[Place] = std::min({Last[Place] + 1, Row[Place - 1] + 1, Mistaken});
				if (Line > 1 && Column > 1 && A[Line - 1] == B[Column - 2] && A[Line - 2] == B[Column - 1])
				{
					Row[Place] = std::min(Row[Place], BeforeLast[Place - 2] + 1);
				}
				Least = std::min(Least, Row[Place]);
			}
			if (Least > Most)
			{
				return Least;
			}
			std::swap(BeforeLast, Last);
			std::swap(Last, Row);
		}
		return Last.back();
	}

	/** The lower, the more alike; INDEX_NONE for another word. */
	int32 Compare(const FString& Text, const FString& Name)
	{
		const int32 Shorter = std::min(Text.Len(), Name.Len());
		const int32 Allowed = std::max(1, Shorter / LettersPerError);
		const bool bNear = Shorter > 1 && std::max(Text.Len(), Name.Len()) - Shorter <= Allowed;
		const int32 Errors = bNear ? CountErrors(Text.ToLower(), Name.ToLower(), Allowed) : Allowed + 1;
		if (Errors <= Allowed)
		{
			return Errors;
		}
		const bool bPart = Text.Len() >= MinPart && Name.Contains(Text);
		return bPart ? Name.Len() : INDEX_NONE; // a part is worth less than a slip
	}

	const FString* FindClosest(const FString& Text, const TArray<FString>& Names)
	{
		const FString* Closest = nullptr;
		int32 Least = INDEX_NONE;
		for (const FString& Name : Names)
		{
			const int32 Distance = Compare(Text, Name);
			if (Distance != INDEX_NONE && (Closest == nullptr || Distance < Least))
			{
				Closest = &Name;
				Least = Distance;
			}
		}
		return Closest;
	}

	FString Append(const FString& Message, const FString& Text, const TArray<FString>& Names, EList List)
	{
		const FString* Closest = FindClosest(Text, Names);
		FString Help;
		if (Closest != nullptr)
		{
			Help = FString::Printf(TEXT(" Did you mean \"%s\"?"), **Closest);
		}
		if (List == EList::Yes && !Names.IsEmpty())
		{
			const int32 NumListed = std::min(Names.Num(), MostListed);
			Help += TEXT(" There are: ") + FString::Join(TArray<FString>(Names.GetData(), NumListed), TEXT(", "));
			Help += NumListed < Names.Num() ? FString::Printf(TEXT(" and %d more"), Names.Num() - NumListed) : FString();
		}
		const bool bSentence = Help.IsEmpty() || Message.EndsWith(TEXT("."));
		return Message + (bSentence ? TEXT("") : TEXT(".")) + Help;
	}
}
