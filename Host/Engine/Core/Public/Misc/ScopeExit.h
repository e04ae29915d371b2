// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "HAL/PreprocessorHelpers.h"
#include "Templates/UnrealTemplate.h"

namespace ScopeExitSupport
{
	template<typename FuncType>
	class TScopeGuard : private FNoncopyable
	{
	public:
		explicit TScopeGuard(FuncType&& InFunc)
			: Func(MoveTemp(InFunc))
		{
		}

		~TScopeGuard()
		{
			Func();
		}

	private:
		FuncType Func;
	};

	struct FScopeGuardSyntaxSupport
	{
		template<typename FuncType>
		TScopeGuard<FuncType> operator+(FuncType&& InFunc)
		{
			return TScopeGuard<FuncType>(Forward<FuncType>(InFunc));
		}
	};
}

/** ON_SCOPE_EXIT { statements }; runs the statements when the scope is left, whichever way. */
#define ON_SCOPE_EXIT const auto PREPROCESSOR_JOIN(ScopeGuard_, __LINE__) = ::ScopeExitSupport::FScopeGuardSyntaxSupport() + [&]()
