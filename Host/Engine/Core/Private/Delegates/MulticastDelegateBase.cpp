// Copyright Velmorant. All Rights Reserved.

#include "Delegates/MulticastDelegateBase.h"

namespace MulticastDelegateBase
{
	/** Takes the bindings that fit out of the list, so that they can be destroyed when nothing looks at it any more. */
	template<typename PredicateType>
	TArray<IDelegateInstance*> TakeOut(TArray<IDelegateInstance*>& Invocations, const PredicateType& Predicate)
	{
		TArray<IDelegateInstance*> Taken;
		for (int32 Index = 0; Index < Invocations.Num(); ++Index)
		{
			if (Invocations[Index] && Predicate(*Invocations[Index]))
			{
				Taken.Add(Exchange(Invocations[Index], nullptr));
			}
		}
		return Taken;
	}

	void Destroy(const TArray<IDelegateInstance*>& Instances)
	{
		for (IDelegateInstance* const Instance : Instances)
		{
			delete Instance;
		}
	}
}

/** Counts a running broadcast; the last one to end tidies the list up. */
class FMulticastDelegateBase::FBroadcastScope
{
public:
	explicit FBroadcastScope(const FMulticastDelegateBase& InDelegate)
		: Delegate(InDelegate)
	{
		++Delegate.NumBroadcasts;
	}

	~FBroadcastScope()
	{
		if (--Delegate.NumBroadcasts == 0 && Delegate.bNeedsCompaction)
		{
			Delegate.Compact();
		}
	}

private:
	const FMulticastDelegateBase& Delegate;
};

FMulticastDelegateBase::FMulticastDelegateBase(const FMulticastDelegateBase& Other)
{
	*this = Other;
}

FMulticastDelegateBase::FMulticastDelegateBase(FMulticastDelegateBase&& Other) noexcept
	: Invocations(MoveTemp(Other.Invocations))
{
}

FMulticastDelegateBase::~FMulticastDelegateBase()
{
	MulticastDelegateBase::Destroy(Invocations);
}

FMulticastDelegateBase& FMulticastDelegateBase::operator=(const FMulticastDelegateBase& Other)
{
	if (this != &Other)
	{
		Clear();
		for (int32 Index = 0; Index < Other.Invocations.Num(); ++Index)
		{
			if (const IDelegateInstance* const Instance = Other.Invocations[Index])
			{
				Invocations.Add(Instance->CreateCopy());
			}
		}
	}
	return *this;
}

FMulticastDelegateBase& FMulticastDelegateBase::operator=(FMulticastDelegateBase&& Other) noexcept
{
	if (this != &Other)
	{
		Clear();
		Invocations.Append(MoveTemp(Other.Invocations));
	}
	return *this;
}

void FMulticastDelegateBase::Clear()
{
	const TArray<IDelegateInstance*> Removed = MulticastDelegateBase::TakeOut(Invocations, [](const IDelegateInstance&) { return true; });
	Compact();
	MulticastDelegateBase::Destroy(Removed);
}

bool FMulticastDelegateBase::IsBound() const
{
	return Invocations.ContainsByPredicate([](const IDelegateInstance* Instance) { return Instance && Instance->IsSafeToExecute(); });
}

bool FMulticastDelegateBase::Remove(FDelegateHandle Handle)
{
	const TArray<IDelegateInstance*> Removed = MulticastDelegateBase::TakeOut(Invocations, [Handle](const IDelegateInstance& Instance) { return Instance.GetHandle() == Handle; });
	Compact();
	MulticastDelegateBase::Destroy(Removed);
	return !Removed.IsEmpty();
}

int32 FMulticastDelegateBase::RemoveAll(const void* InUserObject)
{
	const TArray<IDelegateInstance*> Removed = MulticastDelegateBase::TakeOut(Invocations, [InUserObject](const IDelegateInstance& Instance) { return Instance.HasSameObject(InUserObject); });
	Compact();
	MulticastDelegateBase::Destroy(Removed);
	return Removed.Num();
}

FDelegateHandle FMulticastDelegateBase::AddDelegate(FDelegateBase&& Delegate)
{
	IDelegateInstance* const Instance = Delegate.ReleaseInstance();
	if (!Instance)
	{
		return FDelegateHandle();
	}
	if (Invocations.GetSlack() == 0)
	{
		Compact(); // what died may make room; a delegate that is never broadcast must not grow for ever
	}
	Invocations.Add(Instance);
	return Instance->GetHandle();
}

FDelegateHandle FMulticastDelegateBase::AddDelegate(const FDelegateBase& Delegate)
{
	FDelegateBase Copy(Delegate);
	if (Copy.Instance)
	{
		Copy.Instance->RenewHandle();
	}
	return AddDelegate(MoveTemp(Copy));
}

void FMulticastDelegateBase::BroadcastTo(void (*Call)(IDelegateInstance* Instance, void* Context), void* Context) const
{
	const FBroadcastScope Scope(*this);
	for (int32 Index = Invocations.Num() - 1; Index >= 0; --Index)
	{
		IDelegateInstance* const Instance = Invocations[Index];
		if (Instance && Instance->IsSafeToExecute())
		{
			Call(Instance, Context);
		}
		else
		{
			bNeedsCompaction = true;
		}
	}
}

void FMulticastDelegateBase::Compact() const
{
	if (NumBroadcasts > 0)
	{
		bNeedsCompaction = true;
		return;
	}
	bNeedsCompaction = false;
	const TArray<IDelegateInstance*> Dead = MulticastDelegateBase::TakeOut(Invocations, [](const IDelegateInstance& Instance) { return !Instance.IsSafeToExecute(); });
	Invocations.Remove(nullptr);
	MulticastDelegateBase::Destroy(Dead);
}
