// Copyright Velmorant. All Rights Reserved.
// Casts between object types and interfaces, checked by the class of the object.

#pragma once

#include "Misc/AssertionMacros.h"
#include "UObject/Class.h"
#include "UObject/ObjectPtr.h"
#include "UObject/WeakObjectPtrTemplates.h"

#include <type_traits>

namespace ECastCheckedType
{
	enum Type
	{
		NullAllowed,
		NullChecked
	};
}

namespace UE::CoreUObject::Private
{
	template<typename T>
	concept CInterface = requires
	{
		typename T::UClassType;
	}
	&&!std::is_base_of_v<UObject, T>;

	template<typename From>
	UObject* ToObject(From* Src)
	{
		using FPlain = std::remove_const_t<From>;
		if constexpr (CInterface<FPlain>)
		{
			return Src ? const_cast<FPlain*>(Src)->_getUObject() : nullptr;
		}
		else
		{
			static_assert(std::is_base_of_v<UObject, FPlain>, "Cast works on objects and interfaces whose type is complete.");
			return const_cast<FPlain*>(Src);
		}
	}

	template<typename To, typename From>
	using TCastResult = std::conditional_t<std::is_const_v<From>, const To, To>*;
}

/** Null when Src is null or no To. For an interface, only native implementers count. */
template<typename To, typename From>
UE::CoreUObject::Private::TCastResult<To, From> Cast(From* Src)
{
	using FPlain = std::remove_const_t<To>;
	UObject* Object = UE::CoreUObject::Private::ToObject(Src);
	if (!Object)
	{
		return nullptr;
	}
	if constexpr (UE::CoreUObject::Private::CInterface<FPlain>)
	{
		return static_cast<FPlain*>(Object->GetNativeInterfaceAddress(FPlain::UClassType::StaticClass()));
	}
	else
	{
		return Object->IsA(FPlain::StaticClass()) ? static_cast<FPlain*>(Object) : nullptr;
	}
}

template<typename To, typename From>
To* Cast(const TObjectPtr<From>& Src)
{
	return Cast<To>(const_cast<std::remove_const_t<From>*>(Src.Get()));
}

template<typename To, typename From>
To* Cast(const TWeakObjectPtr<From>& Src)
{
	return Cast<To>(const_cast<std::remove_const_t<From>*>(Src.Get()));
}

/** Fatal when the cast fails; null is fatal too unless it is allowed. */
template<typename To, typename From>
UE::CoreUObject::Private::TCastResult<To, From> CastChecked(From* Src, ECastCheckedType::Type CheckType = ECastCheckedType::NullChecked)
{
	auto* Result = Cast<To>(Src);
	checkf(Result || (!Src && CheckType == ECastCheckedType::NullAllowed), TEXT("Cast of %s failed"),
		Src ? *UE::CoreUObject::Private::ToObject(Src)->GetFullName() : TEXT("nullptr"));
	return Result;
}

template<typename To, typename From>
To* CastChecked(const TObjectPtr<From>& Src, ECastCheckedType::Type CheckType = ECastCheckedType::NullChecked)
{
	return CastChecked<To>(const_cast<std::remove_const_t<From>*>(Src.Get()), CheckType);
}
