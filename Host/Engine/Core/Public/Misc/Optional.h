// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Misc/AssertionMacros.h"
#include "Templates/TypeHash.h"
#include "Templates/UnrealTemplate.h"

/** Says "no value" where an optional is expected. */
struct FNullOpt
{
	explicit constexpr FNullOpt(int) {}
};

inline constexpr FNullOpt NullOpt{0};

struct EInPlace
{
};

inline constexpr EInPlace InPlace{};

/** A value or none. */
template<typename OptionalType>
struct TOptional
{
public:
	using ElementType = OptionalType;

	constexpr TOptional()
		: Nothing(0)
	{
	}

	constexpr TOptional(FNullOpt)
		: Nothing(0)
	{
	}

	TOptional(const OptionalType& InValue)
		: Value(InValue)
		, bIsSet(true)
	{
	}

	TOptional(OptionalType&& InValue)
		: Value(MoveTempIfPossible(InValue))
		, bIsSet(true)
	{
	}

	template<typename... ArgTypes>
	explicit TOptional(EInPlace, ArgTypes&&... Args)
		: Value(Forward<ArgTypes>(Args)...)
		, bIsSet(true)
	{
	}

	TOptional(const TOptional& Other)
		: Nothing(0)
	{
		if (Other.bIsSet)
		{
			Emplace(Other.Value);
		}
	}

	TOptional(TOptional&& Other)
		: Nothing(0)
	{
		if (Other.bIsSet)
		{
			Emplace(MoveTempIfPossible(Other.Value));
		}
	}

	~TOptional()
	{
		Reset();
	}

	TOptional& operator=(const TOptional& Other)
	{
		if (this != &Other)
		{
			Reset();
			if (Other.bIsSet)
			{
				Emplace(Other.Value);
			}
		}
		return *this;
	}

	TOptional& operator=(TOptional&& Other)
	{
		if (this != &Other)
		{
			Reset();
			if (Other.bIsSet)
			{
				Emplace(MoveTempIfPossible(Other.Value));
			}
		}
		return *this;
	}

	TOptional& operator=(const OptionalType& InValue)
	{
		if (&InValue != GetPtrOrNull())
		{
			Emplace(InValue);
		}
		return *this;
	}

	TOptional& operator=(OptionalType&& InValue)
	{
		if (&InValue != GetPtrOrNull())
		{
			Emplace(MoveTempIfPossible(InValue));
		}
		return *this;
	}

	void Reset()
	{
		if (bIsSet)
		{
			bIsSet = false;
			Value.~OptionalType();
		}
	}

	template<typename... ArgTypes>
	OptionalType& Emplace(ArgTypes&&... Args)
	{
		Reset();
		new (static_cast<void*>(&Value)) OptionalType(Forward<ArgTypes>(Args)...);
		bIsSet = true;
		return Value;
	}

	bool IsSet() const { return bIsSet; }
	explicit operator bool() const { return bIsSet; }

	/** There must be a value. */
	OptionalType& GetValue()
	{
		checkf(IsSet(), TEXT("It is an error to call GetValue() on an unset TOptional. Please either check IsSet() or use Get(DefaultValue) instead."));
		return Value;
	}

	const OptionalType& GetValue() const { return const_cast<TOptional*>(this)->GetValue(); }

	OptionalType* operator->() { return &GetValue(); }
	const OptionalType* operator->() const { return &GetValue(); }
	OptionalType& operator*() { return GetValue(); }
	const OptionalType& operator*() const { return GetValue(); }

	/** The value, or DefaultValue, which must then outlive the use of the result. */
	const OptionalType& Get(const OptionalType& DefaultValue) const { return bIsSet ? Value : DefaultValue; }

	OptionalType* GetPtrOrNull() { return bIsSet ? &Value : nullptr; }
	const OptionalType* GetPtrOrNull() const { return bIsSet ? &Value : nullptr; }

	friend bool operator==(const TOptional& Lhs, const TOptional& Rhs)
	{
		return Lhs.bIsSet == Rhs.bIsSet && (!Lhs.bIsSet || Lhs.Value == Rhs.Value);
	}

	[[nodiscard]] friend uint32 GetTypeHash(const TOptional& Optional)
	{
		return Optional.bIsSet ? GetTypeHash(Optional.Value) : 0;
	}

private:
	union
	{
		OptionalType Value;
		uint8 Nothing;
	};
	bool bIsSet = false;
};
