// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Delegates/IDelegateInstance.h"

/** The part of a single-cast delegate that does not depend on its signature: owns one binding or none. */
class FDelegateBase
{
public:
	/** Bound, and what it is bound to still lives. */
	bool IsBound() const { return Instance && Instance->IsSafeToExecute(); }

	CORE_API void Unbind();

protected:
	FDelegateBase() = default;

	explicit FDelegateBase(IDelegateInstance* InInstance)
		: Instance(InInstance)
	{
	}

	CORE_API FDelegateBase(const FDelegateBase& Other);
	CORE_API FDelegateBase(FDelegateBase&& Other) noexcept;
	CORE_API ~FDelegateBase();
	CORE_API FDelegateBase& operator=(const FDelegateBase& Other);
	CORE_API FDelegateBase& operator=(FDelegateBase&& Other) noexcept;

	IDelegateInstance* GetInstance() const { return Instance; }

	/** Gives the binding away. */
	CORE_API IDelegateInstance* ReleaseInstance();

private:
	friend class FMulticastDelegateBase;

	IDelegateInstance* Instance = nullptr;
};
