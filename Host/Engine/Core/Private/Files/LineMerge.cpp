// Copyright Velmorant. All Rights Reserved.

#include "Files/LineMerge.h"

#include <algorithm>
#include <cstddef>
#include <span>
#include <utility>

namespace LineMerge
{
	/** Lines [Begin, End) of the base text give way to Lines. */
	struct FEdit
	{
		size_t Begin = 0;
		size_t End = 0;
		std::span<const std::string_view> Lines;

		bool IsEmpty() const { return Begin == End && Lines.empty(); }
		bool IsInsertion() const { return Begin == End; }
		bool operator==(const FEdit& Other) const
		{
			return Begin == Other.Begin && End == Other.End && std::equal(Lines.begin(), Lines.end(), Other.Lines.begin(), Other.Lines.end());
		}
	};

	FEdit FindEdit(const FLines& Base, const FLines& Changed)
	{
		const size_t Shorter = std::min(Base.size(), Changed.size());
		size_t Front = 0;
		while (Front < Shorter && Base[Front] == Changed[Front])
		{
			++Front;
		}
		size_t Back = 0;
		while (Back < Shorter - Front && Base[Base.size() - 1 - Back] == Changed[Changed.size() - 1 - Back])
		{
			++Back;
		}
		return FEdit{Front, Base.size() - Back, std::span(Changed).subspan(Front, Changed.size() - Back - Front)};
	}

	void Append(std::span<const std::string_view> Lines, FLines& Out)
	{
		Out.insert(Out.end(), Lines.begin(), Lines.end());
	}

	bool Merge(const FLines& Base, const FLines& Mine, const FLines& Theirs, FLines& OutMerged)
	{
		const FEdit MyEdit = FindEdit(Base, Mine);
		const FEdit TheirEdit = FindEdit(Base, Theirs);
		if (MyEdit.IsEmpty() || MyEdit == TheirEdit)
		{
			OutMerged = Theirs;
			return true;
		}
		const bool bTheirsFirst = TheirEdit.End <= MyEdit.Begin;
		const bool bBothInsert = MyEdit.IsInsertion() && TheirEdit.IsInsertion();
		if (!bTheirsFirst && MyEdit.End > TheirEdit.Begin)
		{
			return false;
		}
		// Touching edits are in each other's way unless both only add lines: then none of them depends on what the other removed.
		const bool bTouch = (bTheirsFirst ? TheirEdit.End == MyEdit.Begin : MyEdit.End == TheirEdit.Begin);
		if (bTouch && !bBothInsert && !TheirEdit.IsEmpty())
		{
			return false;
		}
		const FEdit& First = bTheirsFirst ? TheirEdit : MyEdit;
		const FEdit& Second = bTheirsFirst ? MyEdit : TheirEdit;
		const std::span<const std::string_view> All(Base);
		FLines Merged;
		Merged.reserve(Mine.size() + Theirs.size());
		Append(All.first(First.Begin), Merged);
		Append(First.Lines, Merged);
		Append(All.subspan(First.End, Second.Begin - First.End), Merged);
		Append(Second.Lines, Merged);
		Append(All.subspan(Second.End), Merged);
		OutMerged = std::move(Merged);
		return true;
	}
}
