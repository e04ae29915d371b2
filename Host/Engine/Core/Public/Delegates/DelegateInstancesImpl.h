// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Delegates/IDelegateInstance.h"
#include "Misc/AssertionMacros.h"
#include "Templates/SharedPointer.h"
#include "Templates/Tuple.h"
#include "Templates/UnrealTemplate.h"

class FName;

template<class T>
struct TWeakObjectPtr;

/** The type of a pointer to member function of Class: TMemFunPtrType<bConst, Class, R(Params...)>::Type. */
template<bool bConst, typename Class, typename FuncType>
struct TMemFunPtrType;

template<typename Class, typename RetType, typename... ParamTypes>
struct TMemFunPtrType<false, Class, RetType(ParamTypes...)>
{
	using Type = RetType (Class::*)(ParamTypes...);
};

template<typename Class, typename RetType, typename... ParamTypes>
struct TMemFunPtrType<true, Class, RetType(ParamTypes...)>
{
	using Type = RetType (Class::*)(ParamTypes...) const;
};

template<bool bConst, typename Class, typename FuncType>
using TMemFunPtrType_T = typename TMemFunPtrType<bConst, Class, FuncType>::Type;

/** A binding that takes the parameters of one kind of delegate. */
template<typename FuncType>
class IBaseDelegateInstance;

template<typename RetType, typename... ParamTypes>
class IBaseDelegateInstance<RetType(ParamTypes...)> : public IDelegateInstance
{
public:
	virtual RetType Execute(ParamTypes... Params) const = 0;
};

namespace UE::Delegates::Private
{
	// Owners: the object a binding belongs to. Lock() keeps it alive for the length of a call.

	/** Lambdas and static functions. */
	struct FNoOwner
	{
		bool IsAlive() const { return true; }
		bool Is(const void*) const { return false; }
		std::nullptr_t Lock() const { return nullptr; }
	};

	/** An object that has to outlive the binding. */
	template<typename UserClass>
	struct TRawOwner
	{
		UserClass* UserObject;

		bool IsAlive() const { return true; }
		bool Is(const void* Other) const { return UserObject == Other; }
		UserClass* Lock() const { return UserObject; }
	};

	template<typename UserClass, ESPMode Mode>
	struct TSharedOwner
	{
		TWeakPtr<UserClass, Mode> UserObject;

		bool IsAlive() const { return UserObject.IsValid(); }
		bool Is(const void* Other) const { return UserObject.HasSameObject(Other); }
		TSharedPtr<UserClass, Mode> Lock() const { return UserObject.Pin(); }
	};

	template<typename UserClass>
	struct TObjectOwner
	{
		TWeakObjectPtr<UserClass> UserObject;

		bool IsAlive() const { return UserObject.IsValid(); }
		bool Is(const void* Other) const { return Other && static_cast<const void*>(UserObject.Get()) == Other; }
		UserClass* Lock() const { return UserObject.Get(); }
	};

	// Calls: what a binding does with its locked owner and the arguments.

	template<typename MethodType>
	struct TMethodCall
	{
		MethodType Method;

		template<typename LockedType, typename... ArgTypes>
		decltype(auto) operator()(const LockedType& UserObject, ArgTypes&&... Args)
		{
			return ((*UserObject).*Method)(Forward<ArgTypes>(Args)...);
		}
	};

	template<typename FunctorType>
	struct TFunctorCall
	{
		FunctorType Functor;

		template<typename LockedType, typename... ArgTypes>
		decltype(auto) operator()(const LockedType&, ArgTypes&&... Args)
		{
			return Functor(Forward<ArgTypes>(Args)...);
		}
	};

	/** Owner, call and payload make a binding. */
	template<typename FuncType, typename OwnerType, typename CallType, typename... VarTypes>
	class TDelegateInstance;

	template<typename RetType, typename... ParamTypes, typename OwnerType, typename CallType, typename... VarTypes>
	class TDelegateInstance<RetType(ParamTypes...), OwnerType, CallType, VarTypes...> final : public IBaseDelegateInstance<RetType(ParamTypes...)>
	{
	public:
		template<typename... ArgTypes>
		TDelegateInstance(const OwnerType& InOwner, CallType&& InCall, ArgTypes&&... InPayload)
			: Owner(InOwner)
			, Call(MoveTemp(InCall))
			, Payload(Forward<ArgTypes>(InPayload)...)
		{
		}

		virtual IDelegateInstance* CreateCopy() const override { return new TDelegateInstance(*this); }
		virtual bool IsSafeToExecute() const override { return Owner.IsAlive(); }
		virtual bool HasSameObject(const void* InUserObject) const override { return Owner.Is(InUserObject); }

		virtual RetType Execute(ParamTypes... Params) const override
		{
			check(IsSafeToExecute());
			// This binding may be destroyed during the call: nothing may follow that looks at it.
			const auto Locked = Owner.Lock();
			if constexpr (std::is_void_v<RetType>)
			{
				Payload.ApplyAfter(Call, Locked, Forward<ParamTypes>(Params)...);
			}
			else
			{
				return Payload.ApplyAfter(Call, Locked, Forward<ParamTypes>(Params)...);
			}
		}

	private:
		OwnerType Owner;
		mutable CallType Call;
		mutable TTuple<VarTypes...> Payload;
	};
}
