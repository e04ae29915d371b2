// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Templates/TypeHash.h"
#include "Templates/UnrealTemplate.h"

template<typename T>
struct TDefaultDelete
{
	TDefaultDelete() = default;

	template<typename OtherType>
	requires(std::is_convertible_v<OtherType*, T*>)
		TDefaultDelete(const TDefaultDelete<OtherType>&)
	{
	}

	void operator()(T* Ptr) const
	{
		static_assert(sizeof(T) > 0, "The type must be complete where it is deleted");
		delete Ptr;
	}
};

/** The only owner of an object, or null. */
template<typename T, typename Deleter = TDefaultDelete<T>>
class TUniquePtr : private Deleter
{
	template<typename OtherT, typename OtherDeleter>
	friend class TUniquePtr;

public:
	using ElementType = T;

	TUniquePtr() = default;
	TUniquePtr(std::nullptr_t) {}

	explicit TUniquePtr(T* InPtr)
		: Ptr(InPtr)
	{
	}

	TUniquePtr(TUniquePtr&& Other) noexcept
		: Deleter(MoveTemp(Other.GetDeleter()))
		, Ptr(Other.Release())
	{
	}

	template<typename OtherT, typename OtherDeleter>
	requires(std::is_convertible_v<OtherT*, T*>)
		TUniquePtr(TUniquePtr<OtherT, OtherDeleter>&& Other)
		: Deleter(MoveTemp(Other.GetDeleter()))
		, Ptr(Other.Release())
	{
	}

	~TUniquePtr()
	{
		Reset();
	}

	TUniquePtr& operator=(TUniquePtr&& Other) noexcept
	{
		if (this != &Other)
		{
			Reset(Other.Release());
			GetDeleter() = MoveTemp(Other.GetDeleter());
		}
		return *this;
	}

	template<typename OtherT, typename OtherDeleter>
	requires(std::is_convertible_v<OtherT*, T*>)
		TUniquePtr&
		operator=(TUniquePtr<OtherT, OtherDeleter>&& Other)
	{
		Reset(Other.Release());
		GetDeleter() = MoveTemp(Other.GetDeleter());
		return *this;
	}

	TUniquePtr& operator=(std::nullptr_t)
	{
		Reset();
		return *this;
	}

	bool IsValid() const { return Ptr != nullptr; }
	explicit operator bool() const { return Ptr != nullptr; }
	T* Get() const { return Ptr; }
	T* operator->() const { return Ptr; }
	T& operator*() const { return *Ptr; }

	/** Gives the object away without deleting it. */
	T* Release() { return Exchange(Ptr, nullptr); }

	void Reset(T* InPtr = nullptr)
	{
		if (T* const Old = Exchange(Ptr, InPtr); Old && Old != InPtr)
		{
			GetDeleter()(Old);
		}
	}

	Deleter& GetDeleter() { return static_cast<Deleter&>(*this); }
	const Deleter& GetDeleter() const { return static_cast<const Deleter&>(*this); }

	friend bool operator==(const TUniquePtr& Lhs, const TUniquePtr& Rhs) { return Lhs.Ptr == Rhs.Ptr; }
	friend bool operator==(const TUniquePtr& Lhs, std::nullptr_t) { return Lhs.Ptr == nullptr; }
	[[nodiscard]] friend uint32 GetTypeHash(const TUniquePtr& Pointer) { return PointerHash(Pointer.Ptr); }

private:
	T* Ptr = nullptr;
};

template<typename T, typename... ArgTypes>
TUniquePtr<T> MakeUnique(ArgTypes&&... Args)
{
	return TUniquePtr<T>(new T(Forward<ArgTypes>(Args)...));
}
