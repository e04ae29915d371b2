// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreTypes.h"

/**
 * State that belongs to one running editor.
 *
 * One process runs several editors one after another. What the engine keeps in process-wide singletons is kept here instead:
 * made on first use and destroyed when the editor goes down, so that the next editor starts fresh.
 */
namespace HostState
{
	/** Runs the resets, then destroys all values, the one made last first. The last act of an editor that goes down. */
	CORE_API void DestroyAll();

	/** Remembers a value for DestroyAll(), which calls Destroy(Holder) once. */
	CORE_API void Register(void* Holder, void (*Destroy)(void* Holder));
}

/**
 * A value of a running editor; a static object.
 *
 * When the constructor of T uses other values, those are destroyed after it. A value that is used again after it was
 * destroyed (by a destructor that runs later, say) is made anew, and destroyed with the rest.
 */
template<typename T>
class THostState
{
public:
	constexpr THostState() = default;
	THostState(const THostState&) = delete;
	THostState& operator=(const THostState&) = delete;

	T& Get()
	{
		if (!Value)
		{
			T* const NewValue = new T();
			HostState::Register(this, &Destroy); // after the constructor, hence after what that used
			Value = NewValue;
		}
		return *Value;
	}

	T* operator->() { return &Get(); }

	/** Whether it has been made; asking does not make it. */
	bool IsSet() const { return Value != nullptr; }

private:
	static void Destroy(void* Holder)
	{
		THostState& Self = *static_cast<THostState*>(Holder);
		T* const OldValue = Self.Value;
		Self.Value = nullptr;
		delete OldValue;
	}

	T* Value = nullptr;
};

/**
 * Runs a function each time an editor goes down, before any value of it is destroyed: for what has to be a plain static, such
 * as a static delegate. A static object at file scope.
 */
class CORE_API FHostStateReset
{
public:
	explicit FHostStateReset(void (*InReset)());
	FHostStateReset(const FHostStateReset&) = delete;
	FHostStateReset& operator=(const FHostStateReset&) = delete;

private:
	friend void HostState::DestroyAll();

	void (*Reset)();
	FHostStateReset* Next; // registered before this one
};
