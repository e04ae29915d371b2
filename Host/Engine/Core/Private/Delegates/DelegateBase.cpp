// Copyright Velmorant. All Rights Reserved.

#include "Delegates/DelegateBase.h"

#include "Templates/UnrealTemplate.h"

uint64 FDelegateHandle::GenerateNewId()
{
	static uint64 LastId = 0;
	return ++LastId;
}

FDelegateBase::FDelegateBase(const FDelegateBase& Other)
	: Instance(Other.Instance ? Other.Instance->CreateCopy() : nullptr)
{
}

FDelegateBase::FDelegateBase(FDelegateBase&& Other) noexcept
	: Instance(Other.ReleaseInstance())
{
}

FDelegateBase::~FDelegateBase()
{
	Unbind();
}

FDelegateBase& FDelegateBase::operator=(const FDelegateBase& Other)
{
	FDelegateBase Copy(Other);
	return *this = MoveTemp(Copy);
}

FDelegateBase& FDelegateBase::operator=(FDelegateBase&& Other) noexcept
{
	// The old binding goes last: destroying its payload may come back to this delegate.
	delete Exchange(Instance, Other.ReleaseInstance());
	return *this;
}

void FDelegateBase::Unbind()
{
	delete ReleaseInstance();
}

IDelegateInstance* FDelegateBase::ReleaseInstance()
{
	return Exchange(Instance, nullptr);
}
