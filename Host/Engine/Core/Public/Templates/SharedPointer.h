// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Misc/AssertionMacros.h"
#include "Templates/SharedPointerFwd.h"
#include "Templates/SharedPointerInternals.h"
#include "Templates/TypeHash.h"
#include "Templates/UnrealTemplate.h"

/** A reference that shares ownership and is never null. */
template<class ObjectType, ESPMode InMode>
class TSharedRef
{
	template<class OtherType, ESPMode OtherMode>
	friend class TSharedRef;
	template<class OtherType, ESPMode OtherMode>
	friend class TSharedPtr;
	template<class OtherType, ESPMode OtherMode>
	friend class TWeakPtr;

public:
	using ElementType = ObjectType;
	static constexpr ESPMode Mode = InMode;

	/** Takes ownership of InObject, which must not be null. */
	template<class OtherType>
	requires(std::is_convertible_v<OtherType*, ObjectType*>) explicit TSharedRef(OtherType* InObject)
		: TSharedRef(SharedPointerInternals::TRawPtrProxy<OtherType>{InObject, nullptr})
	{
	}

	template<class OtherType, typename DeleterType>
	requires(std::is_convertible_v<OtherType*, ObjectType*>)
		TSharedRef(OtherType* InObject, DeleterType&& InDeleter)
		: TSharedRef(SharedPointerInternals::TRawPtrProxy<OtherType>{InObject, SharedPointerInternals::NewController(InObject, Forward<DeleterType>(InDeleter))})
	{
	}

	template<class OtherType>
	requires(std::is_convertible_v<OtherType*, ObjectType*>)
		TSharedRef(const SharedPointerInternals::TRawPtrProxy<OtherType>& InProxy)
		: Object(InProxy.Object)
		, Referencer(InProxy.Controller ? InProxy.Controller : SharedPointerInternals::NewController(InProxy.Object))
	{
		check(InProxy.Object != nullptr);
		Init(InProxy.Object);
	}

	TSharedRef(const TSharedRef&) = default;

	/** References are never null, so moving copies. */
	TSharedRef(TSharedRef&& InSharedRef)
		: Object(InSharedRef.Object)
		, Referencer(InSharedRef.Referencer)
	{
	}

	template<class OtherType>
	requires(std::is_convertible_v<OtherType*, ObjectType*>)
		TSharedRef(const TSharedRef<OtherType, Mode>& InSharedRef)
		: Object(InSharedRef.Object)
		, Referencer(InSharedRef.Referencer)
	{
	}

	/** Shares the ownership of another object, of which InObject is usually a part. */
	template<class OtherType>
	TSharedRef(const TSharedRef<OtherType, Mode>& InSharedRef, ObjectType* InObject)
		: Object(InObject)
		, Referencer(InSharedRef.Referencer)
	{
		check(InObject != nullptr);
	}

	template<class OtherType>
	TSharedRef(const TSharedRef<OtherType, Mode>& InSharedRef, SharedPointerInternals::FStaticCastTag)
		: Object(static_cast<ObjectType*>(InSharedRef.Object))
		, Referencer(InSharedRef.Referencer)
	{
	}

	TSharedRef& operator=(const TSharedRef& InSharedRef)
	{
		Object = InSharedRef.Object;
		Referencer = InSharedRef.Referencer; // last: releasing the old object may come back here
		return *this;
	}

	TSharedRef& operator=(TSharedRef&& InSharedRef)
	{
		return *this = static_cast<const TSharedRef&>(InSharedRef);
	}

	template<class OtherType>
	requires(std::is_convertible_v<OtherType*, ObjectType*>)
		TSharedRef&
		operator=(const SharedPointerInternals::TRawPtrProxy<OtherType>& InProxy)
	{
		return *this = TSharedRef(InProxy);
	}

	TSharedPtr<ObjectType, Mode> ToSharedPtr() const { return TSharedPtr<ObjectType, Mode>(*this); }

	ObjectType& Get() const { return *Object; }
	ObjectType& operator*() const { return *Object; }
	ObjectType* operator->() const { return Object; }

	[[nodiscard]] friend uint32 GetTypeHash(const TSharedRef& InSharedRef) { return PointerHash(InSharedRef.Object); }

private:
	template<class OtherType>
	explicit TSharedRef(const TSharedPtr<OtherType, Mode>& InSharedPtr)
		: Object(InSharedPtr.Object)
		, Referencer(InSharedPtr.Referencer)
	{
		check(InSharedPtr.IsValid());
	}

	template<class OtherType>
	void Init(OtherType* InObject)
	{
		SharedPointerInternals::EnableSharedFromThis(this, static_cast<ObjectType*>(InObject), InObject);
	}

	ObjectType* Object;
	SharedPointerInternals::FSharedReferencer Referencer;
};

/** A pointer that shares ownership, or null. */
template<class ObjectType, ESPMode InMode>
class TSharedPtr
{
	template<class OtherType, ESPMode OtherMode>
	friend class TSharedRef;
	template<class OtherType, ESPMode OtherMode>
	friend class TSharedPtr;
	template<class OtherType, ESPMode OtherMode>
	friend class TWeakPtr;

public:
	using ElementType = ObjectType;
	static constexpr ESPMode Mode = InMode;

	TSharedPtr(std::nullptr_t = nullptr) {}

	/** Takes ownership of InObject; null gives a null pointer. */
	template<class OtherType>
	requires(std::is_convertible_v<OtherType*, ObjectType*>) explicit TSharedPtr(OtherType* InObject)
		: TSharedPtr(SharedPointerInternals::TRawPtrProxy<OtherType>{InObject, nullptr})
	{
	}

	template<class OtherType, typename DeleterType>
	requires(std::is_convertible_v<OtherType*, ObjectType*>)
		TSharedPtr(OtherType* InObject, DeleterType&& InDeleter)
		: TSharedPtr(SharedPointerInternals::TRawPtrProxy<OtherType>{InObject, SharedPointerInternals::NewController(InObject, Forward<DeleterType>(InDeleter))})
	{
	}

	template<class OtherType>
	requires(std::is_convertible_v<OtherType*, ObjectType*>)
		TSharedPtr(const SharedPointerInternals::TRawPtrProxy<OtherType>& InProxy)
		: Object(InProxy.Object)
		, Referencer(InProxy.Controller || !InProxy.Object ? InProxy.Controller : SharedPointerInternals::NewController(InProxy.Object))
	{
		if (InProxy.Object)
		{
			SharedPointerInternals::EnableSharedFromThis(this, Object, InProxy.Object);
		}
	}

	TSharedPtr(const TSharedPtr&) = default;

	TSharedPtr(TSharedPtr&& InSharedPtr) noexcept
		: Object(Exchange(InSharedPtr.Object, nullptr))
		, Referencer(MoveTemp(InSharedPtr.Referencer))
	{
	}

	template<class OtherType>
	requires(std::is_convertible_v<OtherType*, ObjectType*>)
		TSharedPtr(const TSharedPtr<OtherType, Mode>& InSharedPtr)
		: Object(InSharedPtr.Object)
		, Referencer(InSharedPtr.Referencer)
	{
	}

	template<class OtherType>
	requires(std::is_convertible_v<OtherType*, ObjectType*>)
		TSharedPtr(TSharedPtr<OtherType, Mode>&& InSharedPtr)
		: Object(InSharedPtr.Object)
		, Referencer(MoveTemp(InSharedPtr.Referencer))
	{
		InSharedPtr.Object = nullptr;
	}

	template<class OtherType>
	requires(std::is_convertible_v<OtherType*, ObjectType*>)
		TSharedPtr(const TSharedRef<OtherType, Mode>& InSharedRef)
		: Object(InSharedRef.Object)
		, Referencer(InSharedRef.Referencer)
	{
	}

	/** Shares the ownership of another object, of which InObject is usually a part. */
	template<class OtherType>
	TSharedPtr(const TSharedPtr<OtherType, Mode>& InSharedPtr, ObjectType* InObject)
		: Object(InObject)
		, Referencer(InSharedPtr.Referencer)
	{
	}

	template<class OtherType>
	TSharedPtr(const TSharedRef<OtherType, Mode>& InSharedRef, ObjectType* InObject)
		: Object(InObject)
		, Referencer(InSharedRef.Referencer)
	{
	}

	template<class OtherType>
	TSharedPtr(const TSharedPtr<OtherType, Mode>& InSharedPtr, SharedPointerInternals::FStaticCastTag)
		: Object(static_cast<ObjectType*>(InSharedPtr.Object))
		, Referencer(InSharedPtr.Referencer)
	{
	}

	~TSharedPtr() = default;

	TSharedPtr& operator=(const TSharedPtr& InSharedPtr)
	{
		TSharedPtr Copy(InSharedPtr);
		return *this = MoveTemp(Copy);
	}

	TSharedPtr& operator=(TSharedPtr&& InSharedPtr) noexcept
	{
		if (this != &InSharedPtr)
		{
			Object = Exchange(InSharedPtr.Object, nullptr);
			Referencer = MoveTemp(InSharedPtr.Referencer);
		}
		return *this;
	}

	TSharedPtr& operator=(std::nullptr_t)
	{
		Reset();
		return *this;
	}

	template<class OtherType>
	requires(std::is_convertible_v<OtherType*, ObjectType*>)
		TSharedPtr&
		operator=(const SharedPointerInternals::TRawPtrProxy<OtherType>& InProxy)
	{
		return *this = TSharedPtr(InProxy);
	}

	bool IsValid() const { return Object != nullptr; }
	explicit operator bool() const { return Object != nullptr; }
	ObjectType* Get() const { return Object; }

	ObjectType& operator*() const
	{
		check(IsValid());
		return *Object;
	}

	ObjectType* operator->() const
	{
		check(IsValid());
		return Object;
	}

	/** The pointer must not be null. */
	TSharedRef<ObjectType, Mode> ToSharedRef() const
	{
		check(IsValid());
		return TSharedRef<ObjectType, Mode>(*this);
	}

	void Reset() { *this = TSharedPtr(); }

	/** Whether this is the only owner; weak pointers do not count. */
	bool IsUnique() const { return Referencer.IsUnique(); }

	[[nodiscard]] friend uint32 GetTypeHash(const TSharedPtr& InSharedPtr) { return PointerHash(InSharedPtr.Object); }

private:
	template<class OtherType>
	requires(std::is_convertible_v<OtherType*, ObjectType*>) explicit TSharedPtr(const TWeakPtr<OtherType, Mode>& InWeakPtr)
		: Referencer(InWeakPtr.Referencer)
	{
		if (Referencer.IsValid())
		{
			Object = InWeakPtr.Object;
		}
	}

	ObjectType* Object = nullptr;
	SharedPointerInternals::FSharedReferencer Referencer;
};

/** Knows an object without keeping it alive. */
template<class ObjectType, ESPMode InMode>
class TWeakPtr
{
	template<class OtherType, ESPMode OtherMode>
	friend class TSharedPtr;
	template<class OtherType, ESPMode OtherMode>
	friend class TWeakPtr;

public:
	using ElementType = ObjectType;
	static constexpr ESPMode Mode = InMode;

	TWeakPtr(std::nullptr_t = nullptr) {}

	template<class OtherType>
	requires(std::is_convertible_v<OtherType*, ObjectType*>)
		TWeakPtr(const TSharedRef<OtherType, Mode>& InSharedRef)
		: Object(InSharedRef.Object)
		, Referencer(InSharedRef.Referencer)
	{
	}

	template<class OtherType>
	requires(std::is_convertible_v<OtherType*, ObjectType*>)
		TWeakPtr(const TSharedPtr<OtherType, Mode>& InSharedPtr)
		: Object(InSharedPtr.Object)
		, Referencer(InSharedPtr.Referencer)
	{
	}

	template<class OtherType>
	requires(std::is_convertible_v<OtherType*, ObjectType*>)
		TWeakPtr(const TWeakPtr<OtherType, Mode>& InWeakPtr)
		: Object(InWeakPtr.Object)
		, Referencer(InWeakPtr.Referencer)
	{
	}

	TWeakPtr& operator=(std::nullptr_t)
	{
		Reset();
		return *this;
	}

	/** A strong pointer to the object, null when it is gone. */
	TSharedPtr<ObjectType, Mode> Pin() const { return TSharedPtr<ObjectType, Mode>(*this); }

	bool IsValid() const { return Object != nullptr && Referencer.IsValid(); }
	void Reset() { *this = TWeakPtr(); }
	bool HasSameObject(const void* InOther) const { return Pin().Get() == InOther; }

	/** By address, so that the hash outlives the object. */
	[[nodiscard]] friend uint32 GetTypeHash(const TWeakPtr& InWeakPtr) { return PointerHash(InWeakPtr.Object); }

private:
	ObjectType* Object = nullptr; // not to be followed while Referencer is not valid
	SharedPointerInternals::FWeakReferencer Referencer;
};

// Comparison is by object identity, whatever the kinds of pointers.

template<class TypeA, class TypeB, ESPMode Mode>
bool operator==(const TSharedRef<TypeA, Mode>& A, const TSharedRef<TypeB, Mode>& B)
{
	return &A.Get() == &B.Get();
}

template<class TypeA, class TypeB, ESPMode Mode>
bool operator==(const TSharedPtr<TypeA, Mode>& A, const TSharedPtr<TypeB, Mode>& B)
{
	return A.Get() == B.Get();
}

template<class TypeA, class TypeB, ESPMode Mode>
bool operator==(const TSharedPtr<TypeA, Mode>& A, const TSharedRef<TypeB, Mode>& B)
{
	return A.Get() == &B.Get();
}

template<class TypeA, ESPMode Mode>
bool operator==(const TSharedPtr<TypeA, Mode>& A, std::nullptr_t)
{
	return !A.IsValid();
}

template<class TypeA, class TypeB, ESPMode Mode>
bool operator==(const TWeakPtr<TypeA, Mode>& A, const TWeakPtr<TypeB, Mode>& B)
{
	return A.Pin().Get() == B.Pin().Get();
}

template<class TypeA, class TypeB, ESPMode Mode>
bool operator==(const TWeakPtr<TypeA, Mode>& A, const TSharedPtr<TypeB, Mode>& B)
{
	return A.Pin().Get() == B.Get();
}

template<class TypeA, class TypeB, ESPMode Mode>
bool operator==(const TWeakPtr<TypeA, Mode>& A, const TSharedRef<TypeB, Mode>& B)
{
	return A.Pin().Get() == &B.Get();
}

template<class TypeA, ESPMode Mode>
bool operator==(const TWeakPtr<TypeA, Mode>& A, std::nullptr_t)
{
	return !A.IsValid();
}

/** Base of objects that can hand out shared pointers to themselves; not in their constructor, nobody owns them yet. */
template<class ObjectType, ESPMode Mode>
class TSharedFromThis
{
public:
	/** The object must be owned by a shared pointer. */
	TSharedRef<ObjectType, Mode> AsShared()
	{
		TSharedPtr<ObjectType, Mode> SharedThis(WeakThis.Pin());
		check(SharedThis.IsValid());
		return SharedThis.ToSharedRef();
	}

	TSharedRef<const ObjectType, Mode> AsShared() const
	{
		TSharedPtr<const ObjectType, Mode> SharedThis(WeakThis.Pin());
		check(SharedThis.IsValid());
		return SharedThis.ToSharedRef();
	}

	/** For the shared pointer that takes the object over. */
	template<class SharedType>
	void UpdateWeakReferenceInternal(const TSharedRef<SharedType, Mode>* InSharedRef, ObjectType* InObject) const
	{
		if (!WeakThis.IsValid())
		{
			WeakThis = TSharedRef<ObjectType, Mode>(*InSharedRef, InObject);
		}
	}

	template<class SharedType>
	void UpdateWeakReferenceInternal(const TSharedPtr<SharedType, Mode>* InSharedPtr, ObjectType* InObject) const
	{
		if (!WeakThis.IsValid())
		{
			WeakThis = TSharedPtr<ObjectType, Mode>(*InSharedPtr, InObject);
		}
	}

protected:
	TSharedFromThis() = default;
	TSharedFromThis(const TSharedFromThis&) {} // a copy is another object, with owners of its own
	TSharedFromThis& operator=(const TSharedFromThis&) { return *this; }
	~TSharedFromThis() = default;

private:
	mutable TWeakPtr<ObjectType, Mode> WeakThis;
};

namespace SharedPointerInternals
{
	template<class SharedType, class OtherType, ESPMode Mode>
	void EnableSharedFromThis(const TSharedRef<SharedType, Mode>* InSharedRef, SharedType*, const TSharedFromThis<OtherType, Mode>* Shareable)
	{
		Shareable->UpdateWeakReferenceInternal(InSharedRef, static_cast<OtherType*>(const_cast<TSharedFromThis<OtherType, Mode>*>(Shareable)));
	}

	template<class SharedType, class OtherType, ESPMode Mode>
	void EnableSharedFromThis(const TSharedPtr<SharedType, Mode>* InSharedPtr, SharedType*, const TSharedFromThis<OtherType, Mode>* Shareable)
	{
		Shareable->UpdateWeakReferenceInternal(InSharedPtr, static_cast<OtherType*>(const_cast<TSharedFromThis<OtherType, Mode>*>(Shareable)));
	}
}

// Making

/** One allocation for the object and its counts. The constructor must be public. */
template<class ObjectType, ESPMode Mode = ESPMode::ThreadSafe, typename... ArgTypes>
[[nodiscard]] TSharedRef<ObjectType, Mode> MakeShared(ArgTypes&&... Args)
{
	using FController = SharedPointerInternals::TIntrusiveReferenceController<ObjectType>;
	FController* const Controller = new FController(0, Forward<ArgTypes>(Args)...);
	return TSharedRef<ObjectType, Mode>(SharedPointerInternals::TRawPtrProxy<ObjectType>{Controller->GetObjectPtr(), Controller});
}

/** Wraps an object made with new, for a shared pointer or reference to take over. */
template<class ObjectType>
[[nodiscard]] SharedPointerInternals::TRawPtrProxy<ObjectType> MakeShareable(ObjectType* InObject)
{
	return {InObject, nullptr};
}

// Casting; the caller knows that the object has the type

template<class CastToType, class CastFromType, ESPMode Mode>
[[nodiscard]] TSharedRef<CastToType, Mode> StaticCastSharedRef(const TSharedRef<CastFromType, Mode>& InSharedRef)
{
	return TSharedRef<CastToType, Mode>(InSharedRef, SharedPointerInternals::FStaticCastTag());
}

template<class CastToType, class CastFromType, ESPMode Mode>
[[nodiscard]] TSharedPtr<CastToType, Mode> StaticCastSharedPtr(const TSharedPtr<CastFromType, Mode>& InSharedPtr)
{
	return TSharedPtr<CastToType, Mode>(InSharedPtr, SharedPointerInternals::FStaticCastTag());
}
