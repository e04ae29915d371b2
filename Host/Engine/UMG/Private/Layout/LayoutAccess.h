// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "UObject/UnrealType.h"

/** What of reflected classes is open to the graph of a Blueprint, and so to a layout. */
namespace LayoutAccess
{
	/** Events that are not BlueprintCallable can be answered, but not called. */
	inline bool CanCall(const UFunction& Function)
	{
		return Function.HasAnyFunctionFlags(FUNC_BlueprintCallable);
	}

	inline bool CanRead(const FProperty& Property)
	{
		return Property.HasAnyPropertyFlags(CPF_BlueprintVisible);
	}

	inline bool CanWrite(const FProperty& Property)
	{
		return CanRead(Property) && !Property.HasAnyPropertyFlags(CPF_BlueprintReadOnly);
	}

	/** In the designer, where the tree is put together, what can be edited can be set as well. */
	inline bool CanDesign(const FProperty& Property)
	{
		return CanWrite(Property) || (Property.HasAnyPropertyFlags(CPF_Edit) && !Property.HasAnyPropertyFlags(CPF_EditConst));
	}

	inline bool CanListen(const FMulticastDelegateProperty& Event)
	{
		return Event.HasAnyPropertyFlags(CPF_BlueprintAssignable);
	}
}
