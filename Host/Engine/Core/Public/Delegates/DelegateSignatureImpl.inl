// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Delegates/DelegateInstancesImpl.h"
#include "Delegates/DelegateBase.h"
#include "Delegates/MulticastDelegateBase.h"

/**
 * A callable of one signature bound to a method, function or lambda, or to nothing.
 *
 * Methods and static functions must have exactly the delegate's parameter types, followed by those of the payload (by value).
 * Lambdas only need to be callable. Weak kinds (SP, UObject, WeakLambda) count as unbound once their object is gone.
 */
template<typename FuncType>
class TDelegate;

template<typename InRetValType, typename... ParamTypes>
class TDelegate<InRetValType(ParamTypes...)> : public FDelegateBase
{
public:
	/** What can be bound with a payload of VarTypes: never deduced, so that it picks the right one of several overloads. */
	template<bool bConst, typename UserClass, typename... VarTypes>
	using TMethod = TMemFunPtrType_T<bConst, UserClass, InRetValType(ParamTypes..., std::decay_t<VarTypes>...)>;

	template<typename... VarTypes>
	using TStaticFunction = TIdentity_T<InRetValType (*)(ParamTypes..., std::decay_t<VarTypes>...)>;

	using RetValType = InRetValType;
	using TFuncType = InRetValType(ParamTypes...);

	template<typename UserClass>
	using TMethodPtr = TMethod<false, UserClass>;
	template<typename UserClass>
	using TConstMethodPtr = TMethod<true, UserClass>;

	TDelegate() = default;
	TDelegate(std::nullptr_t) {}

	// Lambdas; a payload is passed after the parameters

	template<typename FunctorType, typename... VarTypes>
	[[nodiscard]] static TDelegate CreateLambda(FunctorType&& InFunctor, VarTypes&&... Vars)
	{
		return MakeFunctor(UE::Delegates::Private::FNoOwner(), Forward<FunctorType>(InFunctor), Forward<VarTypes>(Vars)...);
	}

	/** Lives as long as the object. */
	template<typename UserClass, typename FunctorType, typename... VarTypes>
	[[nodiscard]] static TDelegate CreateWeakLambda(UserClass* InUserObject, FunctorType&& InFunctor, VarTypes&&... Vars)
	{
		return MakeFunctor(UE::Delegates::Private::TObjectOwner<UserClass>{InUserObject}, Forward<FunctorType>(InFunctor), Forward<VarTypes>(Vars)...);
	}

	template<typename... VarTypes>
	[[nodiscard]] static TDelegate CreateStatic(TStaticFunction<VarTypes...> InFunc, VarTypes&&... Vars)
	{
		check(InFunc != nullptr);
		return MakeFunctor(UE::Delegates::Private::FNoOwner(), InFunc, Forward<VarTypes>(Vars)...);
	}

	// Methods: of an object that outlives the binding (Raw), and of one that is known weakly (SP, UObject)

	template<typename UserClass, typename... VarTypes>
	[[nodiscard]] static TDelegate CreateRaw(UserClass* InUserObject, TMethod<false, UserClass, VarTypes...> InFunc, VarTypes&&... Vars)
	{
		return MakeMethod(UE::Delegates::Private::TRawOwner<UserClass>{InUserObject}, InFunc, Forward<VarTypes>(Vars)...);
	}

	template<typename UserClass, typename... VarTypes>
	[[nodiscard]] static TDelegate CreateRaw(const UserClass* InUserObject, TMethod<true, UserClass, VarTypes...> InFunc, VarTypes&&... Vars)
	{
		return MakeMethod(UE::Delegates::Private::TRawOwner<const UserClass>{InUserObject}, InFunc, Forward<VarTypes>(Vars)...);
	}

	template<typename UserClass, ESPMode Mode, typename... VarTypes>
	[[nodiscard]] static TDelegate CreateSP(const TSharedRef<UserClass, Mode>& InUserObject, TMethod<false, UserClass, VarTypes...> InFunc, VarTypes&&... Vars)
	{
		return MakeMethod(UE::Delegates::Private::TSharedOwner<UserClass, Mode>{InUserObject}, InFunc, Forward<VarTypes>(Vars)...);
	}

	template<typename UserClass, ESPMode Mode, typename... VarTypes>
	[[nodiscard]] static TDelegate CreateSP(const TSharedRef<UserClass, Mode>& InUserObject, TMethod<true, UserClass, VarTypes...> InFunc, VarTypes&&... Vars)
	{
		return MakeMethod(UE::Delegates::Private::TSharedOwner<UserClass, Mode>{InUserObject}, InFunc, Forward<VarTypes>(Vars)...);
	}

	/** The object must derive from TSharedFromThis and be owned already. */
	template<typename UserClass, typename... VarTypes>
	[[nodiscard]] static TDelegate CreateSP(UserClass* InUserObject, TMethod<false, UserClass, VarTypes...> InFunc, VarTypes&&... Vars)
	{
		return CreateSP(SharedFrom(InUserObject), InFunc, Forward<VarTypes>(Vars)...);
	}

	template<typename UserClass, typename... VarTypes>
	[[nodiscard]] static TDelegate CreateSP(const UserClass* InUserObject, TMethod<true, UserClass, VarTypes...> InFunc, VarTypes&&... Vars)
	{
		return CreateSP(SharedFrom(const_cast<UserClass*>(InUserObject)), InFunc, Forward<VarTypes>(Vars)...);
	}

	template<typename UserClass, typename... VarTypes>
	[[nodiscard]] static TDelegate CreateUObject(UserClass* InUserObject, TMethod<false, UserClass, VarTypes...> InFunc, VarTypes&&... Vars)
	{
		return MakeMethod(UE::Delegates::Private::TObjectOwner<UserClass>{InUserObject}, InFunc, Forward<VarTypes>(Vars)...);
	}

	template<typename UserClass, typename... VarTypes>
	[[nodiscard]] static TDelegate CreateUObject(const UserClass* InUserObject, TMethod<true, UserClass, VarTypes...> InFunc, VarTypes&&... Vars)
	{
		return MakeMethod(UE::Delegates::Private::TObjectOwner<UserClass>{const_cast<UserClass*>(InUserObject)}, InFunc, Forward<VarTypes>(Vars)...);
	}

	/** There must be a binding, and what it is bound to must live. */
	RetValType Execute(ParamTypes... Params) const
	{
		check(GetInstance() != nullptr);
		return static_cast<IBaseDelegateInstance<TFuncType>*>(GetInstance())->Execute(Forward<ParamTypes>(Params)...);
	}

	/** Returns whether there was something to call. */
	bool ExecuteIfBound(ParamTypes... Params) const
		requires(std::is_void_v<InRetValType>)
	{
		if (!IsBound())
		{
			return false;
		}
		static_cast<IBaseDelegateInstance<TFuncType>*>(GetInstance())->Execute(Forward<ParamTypes>(Params)...);
		return true;
	}

private:
	template<typename OtherFuncType>
	friend class TMulticastDelegate;

	explicit TDelegate(IDelegateInstance* InInstance)
		: FDelegateBase(InInstance)
	{
	}

	template<typename OwnerType, typename CallType, typename... VarTypes>
	static TDelegate Make(const OwnerType& Owner, CallType&& Call, VarTypes&&... Vars)
	{
		using FInstance = UE::Delegates::Private::TDelegateInstance<TFuncType, OwnerType, CallType, std::decay_t<VarTypes>...>;
		return TDelegate(new FInstance(Owner, MoveTemp(Call), Forward<VarTypes>(Vars)...));
	}

	template<typename OwnerType, typename MethodType, typename... VarTypes>
	static TDelegate MakeMethod(const OwnerType& Owner, MethodType Method, VarTypes&&... Vars)
	{
		check(Method != nullptr);
		return Make(Owner, UE::Delegates::Private::TMethodCall<MethodType>{Method}, Forward<VarTypes>(Vars)...);
	}

	template<typename OwnerType, typename FunctorType, typename... VarTypes>
	static TDelegate MakeFunctor(const OwnerType& Owner, FunctorType&& Functor, VarTypes&&... Vars)
	{
		return Make(Owner, UE::Delegates::Private::TFunctorCall<std::decay_t<FunctorType>>{Forward<FunctorType>(Functor)}, Forward<VarTypes>(Vars)...);
	}

	template<typename UserClass>
	static auto SharedFrom(UserClass* InUserObject)
	{
		return StaticCastSharedRef<UserClass>(InUserObject->AsShared());
	}
};

/**
 * Any number of bindings of one signature, called together. The same method added twice is called twice.
 *
 * Host: bindings are called newest first. Those added during a broadcast wait for the next one, those removed before their turn
 * are not called, and dead weak ones are dropped. A broadcast may broadcast again.
 */
template<typename FuncType>
class TMulticastDelegate;

template<typename... ParamTypes>
class TMulticastDelegate<void(ParamTypes...)> : public FMulticastDelegateBase
{
public:
	using FDelegate = TDelegate<void(ParamTypes...)>;

	/** Adds what the delegate is bound to; an unbound delegate adds nothing. The handle belongs to this binding alone. */
	FDelegateHandle Add(FDelegate&& InNewDelegate) { return this->AddDelegate(MoveTemp(InNewDelegate)); }
	FDelegateHandle Add(const FDelegate& InNewDelegate) { return this->AddDelegate(InNewDelegate); }

	template<typename FunctorType, typename... VarTypes>
	FDelegateHandle AddLambda(FunctorType&& InFunctor, VarTypes&&... Vars)
	{
		return Add(FDelegate::CreateLambda(Forward<FunctorType>(InFunctor), Forward<VarTypes>(Vars)...));
	}

	template<typename UserClass, typename FunctorType, typename... VarTypes>
	FDelegateHandle AddWeakLambda(UserClass* InUserObject, FunctorType&& InFunctor, VarTypes&&... Vars)
	{
		return Add(FDelegate::CreateWeakLambda(InUserObject, Forward<FunctorType>(InFunctor), Forward<VarTypes>(Vars)...));
	}

	template<typename UserClass, typename... VarTypes>
	FDelegateHandle AddRaw(UserClass* InUserObject, typename FDelegate::template TMethod<false, UserClass, VarTypes...> InFunc, VarTypes&&... Vars)
	{
		return Add(FDelegate::CreateRaw(InUserObject, InFunc, Forward<VarTypes>(Vars)...));
	}

	template<typename UserClass, typename... VarTypes>
	FDelegateHandle AddSP(UserClass* InUserObject, typename FDelegate::template TMethod<false, UserClass, VarTypes...> InFunc, VarTypes&&... Vars)
	{
		return Add(FDelegate::CreateSP(InUserObject, InFunc, Forward<VarTypes>(Vars)...));
	}

	template<typename UserClass, typename... VarTypes>
	FDelegateHandle AddUObject(UserClass* InUserObject, typename FDelegate::template TMethod<false, UserClass, VarTypes...> InFunc, VarTypes&&... Vars)
	{
		return Add(FDelegate::CreateUObject(InUserObject, InFunc, Forward<VarTypes>(Vars)...));
	}

	void Broadcast(ParamTypes... Params) const
	{
		auto CallOne = [&Params...](IDelegateInstance* Instance) {
			static_cast<IBaseDelegateInstance<void(ParamTypes...)>*>(Instance)->Execute(Params...);
		};
		this->BroadcastTo([](IDelegateInstance* Instance, void* Context) { (*static_cast<decltype(CallOne)*>(Context))(Instance); }, &CallOne);
	}
};
