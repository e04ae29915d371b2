// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "HostReflection/Property.h"

#include <cstring>
#include <new>

/** One default value of a property, outside any container. */
class FScratchValue
{
public:
	explicit FScratchValue(const FProperty* InProperty)
		: Property(InProperty)
		, Memory(::operator new(static_cast<std::size_t>(InProperty->GetElementSize()), GetAlignment()))
	{
		std::memset(Memory, 0, static_cast<std::size_t>(Property->GetElementSize()));
		Property->InitializeValue(Memory);
	}
	FScratchValue(const FScratchValue&) = delete;
	FScratchValue& operator=(const FScratchValue&) = delete;
	~FScratchValue()
	{
		Property->DestroyValue(Memory);
		::operator delete(Memory, GetAlignment());
	}

	void* Get() const { return Memory; }

private:
	std::align_val_t GetAlignment() const { return std::align_val_t(static_cast<std::size_t>(Property->GetMinAlignment())); }

	const FProperty* Property;
	void* Memory;
};
