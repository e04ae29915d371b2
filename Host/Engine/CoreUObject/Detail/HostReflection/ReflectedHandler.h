// Copyright Velmorant. All Rights Reserved.

#pragma once

#include <type_traits>

namespace UE::Reflection
{
	template<typename TMethod>
	struct TMethodClass;
	template<typename TResult, typename TClass, typename... TParams>
	struct TMethodClass<TResult (TClass::*)(TParams...)>
	{
		using Type = TClass;
	};
	template<typename TResult, typename TClass, typename... TParams>
	struct TMethodClass<TResult (TClass::*)(TParams...) const>
	{
		using Type = TClass;
	};

	constexpr bool SameText(const char* A, const char* B)
	{
		while (*A && *A == *B)
		{
			++A;
			++B;
		}
		return *A == *B;
	}

	/** Whether Name is a reflected function of TClass or of a class above it. */
	template<typename TClass>
	constexpr bool IsReflectedFunction(const char* Name)
	{
		for (const char* const* Function = TClass::ReflectedFunctionNames; *Function; ++Function)
		{
			if (SameText(*Function, Name))
			{
				return true;
			}
		}
		if constexpr (!std::is_same_v<typename TClass::Super, TClass>)
		{
			return IsReflectedFunction<typename TClass::Super>(Name);
		}
		return false;
	}

	/** Not a constant expression: calling it is what makes the compiler stop, with its name in the message. */
	inline void TheHandlerOfADynamicDelegateMustBeAUFunction()
	{
	}

	/** The name after the last "::" of the source text of a method pointer. */
	template<typename TMethod>
	consteval const char* HandlerName(const char* Text)
	{
		const char* Name = Text;
		for (const char* Character = Text; *Character; ++Character)
		{
			if (*Character == ':' || *Character == '&' || *Character == ' ')
			{
				Name = Character + 1;
			}
		}
		if (!IsReflectedFunction<typename TMethodClass<TMethod>::Type>(Name))
		{
			TheHandlerOfADynamicDelegateMustBeAUFunction();
		}
		return Name;
	}
}
