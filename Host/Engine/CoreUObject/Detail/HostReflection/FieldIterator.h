// Copyright Velmorant. All Rights Reserved.
// Included by UnrealType.h.

#pragma once

#include "HostReflection/Property.h"
#include "UObject/Class.h"

#include <type_traits>

namespace EFieldIteratorFlags
{
	enum SuperClassFlags
	{
		ExcludeSuper = 0,
		IncludeSuper = 1
	};
}

enum class EFieldIterationFlags : uint8
{
	None = 0,
	IncludeSuper = 1,
	IncludeInterfaces = 2,
	IncludeDeprecated = 4,
	IncludeAll = IncludeSuper | IncludeInterfaces | IncludeDeprecated,
	Default = IncludeSuper | IncludeDeprecated,
};

/** Properties of one kind, or functions, of a type: its own in declaration order, then those of its super types. */
template<typename FieldType>
class TFieldIterator
{
	static constexpr bool bFunctions = std::is_same_v<std::remove_const_t<FieldType>, UFunction>;

public:
	explicit TFieldIterator(const UStruct* InStruct, EFieldIterationFlags InFlags = EFieldIterationFlags::Default)
		: Struct(InStruct)
		, bIncludeSuper((static_cast<uint8>(InFlags) & static_cast<uint8>(EFieldIterationFlags::IncludeSuper)) != 0)
	{
		FindNext();
	}
	TFieldIterator(const UStruct* InStruct, EFieldIteratorFlags::SuperClassFlags InSuperClassFlags)
		: TFieldIterator(InStruct, InSuperClassFlags == EFieldIteratorFlags::IncludeSuper ? EFieldIterationFlags::Default : EFieldIterationFlags::None)
	{
	}

	explicit operator bool() const { return Struct != nullptr; }
	TFieldIterator& operator++()
	{
		++Index;
		FindNext();
		return *this;
	}
	FieldType* operator*() const { return static_cast<FieldType*>(Fields()[Index]); }
	FieldType* operator->() const { return **this; }
	bool operator==(const TFieldIterator& Other) const { return Struct == Other.Struct && (!Struct || Index == Other.Index); }

private:
	const auto& Fields() const
	{
		if constexpr (bFunctions)
		{
			return Struct->GetOwnFunctions();
		}
		else
		{
			return Struct->GetOwnProperties();
		}
	}

	bool IsWanted() const
	{
		if constexpr (bFunctions)
		{
			return true;
		}
		else
		{
			return Fields()[Index]->template IsA<std::remove_const_t<FieldType>>();
		}
	}

	void FindNext()
	{
		while (Struct)
		{
			for (; Index < Fields().Num(); ++Index)
			{
				if (IsWanted())
				{
					return;
				}
			}
			Struct = bIncludeSuper ? Struct->GetSuperStruct() : nullptr;
			Index = 0;
		}
	}

	const UStruct* Struct; // null at the end
	int32 Index = 0;
	bool bIncludeSuper;
};

/** The same for a range-based for. */
template<typename FieldType>
class TFieldRange
{
public:
	explicit TFieldRange(const UStruct* InStruct, EFieldIterationFlags InFlags = EFieldIterationFlags::Default)
		: First(InStruct, InFlags)
	{
	}

	TFieldIterator<FieldType> begin() const { return First; }
	TFieldIterator<FieldType> end() const { return TFieldIterator<FieldType>(nullptr); }

private:
	TFieldIterator<FieldType> First;
};

/** A property by name; null struct or name: null. */
template<typename FieldType>
FieldType* FindFProperty(const UStruct* Owner, FName FieldName)
{
	return Owner ? CastField<FieldType>(Owner->FindPropertyByName(FieldName)) : nullptr;
}
