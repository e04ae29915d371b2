// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Templates/TypeHash.h"

/** Names one binding; unique for the life of the process. Default constructed it names none. */
class FDelegateHandle
{
public:
	enum EGenerateNewHandleType
	{
		GenerateNewHandle
	};

	FDelegateHandle() = default;

	explicit FDelegateHandle(EGenerateNewHandleType)
		: Id(GenerateNewId())
	{
	}

	bool operator==(const FDelegateHandle& Other) const = default;
	[[nodiscard]] friend uint32 GetTypeHash(const FDelegateHandle& Handle) { return GetTypeHash(Handle.Id); }

private:
	CORE_API static uint64 GenerateNewId();

	uint64 Id = 0;
};

/** One binding: what to call, with which object and payload. */
class IDelegateInstance
{
public:
	virtual ~IDelegateInstance() = default;

	virtual IDelegateInstance* CreateCopy() const = 0;

	/** False once the object of a weak binding is gone. */
	virtual bool IsSafeToExecute() const = 0;

	/** Whether the binding belongs to this object. Lambdas and static functions belong to none. */
	virtual bool HasSameObject(const void* InUserObject) const = 0;

	FDelegateHandle GetHandle() const { return Handle; }
	void RenewHandle() { Handle = FDelegateHandle(FDelegateHandle::GenerateNewHandle); }

private:
	FDelegateHandle Handle{FDelegateHandle::GenerateNewHandle};
};
