// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Templates/UnrealTemplate.h"

/** Calls a functor, a member function or "calls" a data member (which reads it). Pointers to objects are followed. */
template<typename FuncType, typename... ArgTypes>
constexpr auto Invoke(FuncType&& Func, ArgTypes&&... Args) -> decltype(Forward<FuncType>(Func)(Forward<ArgTypes>(Args)...))
{
	return Forward<FuncType>(Func)(Forward<ArgTypes>(Args)...);
}

template<typename ValueType, typename ClassType, typename TargetType>
requires(!std::is_function_v<ValueType>) constexpr auto Invoke(ValueType ClassType::*Member, TargetType&& Target) -> decltype(auto)
{
	if constexpr (std::is_base_of_v<ClassType, std::remove_cvref_t<TargetType>>)
	{
		return (Target.*Member);
	}
	else
	{
		return ((*Target).*Member);
	}
}

template<typename FunctionType, typename ClassType, typename TargetType, typename... ArgTypes>
requires(std::is_function_v<FunctionType>) constexpr auto Invoke(FunctionType ClassType::*Method, TargetType&& Target, ArgTypes&&... Args) -> decltype(auto)
{
	if constexpr (std::is_base_of_v<ClassType, std::remove_cvref_t<TargetType>>)
	{
		return (Target.*Method)(Forward<ArgTypes>(Args)...);
	}
	else
	{
		return ((*Target).*Method)(Forward<ArgTypes>(Args)...);
	}
}
