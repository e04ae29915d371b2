// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Delegates/Delegate.h"
#include "Templates/Function.h"
#include "Templates/SharedPointer.h"

/**
 * A value, or a getter that is asked each time the value is read.
 *
 * Made implicitly from anything that converts to the value. A getter whose object is gone is not asked any more: the attribute
 * then keeps the value it read last.
 */
template<typename ObjectType>
class TAttribute
{
public:
	/** Asked for the value; bound by Create... and Bind. */
	using FGetter = TDelegate<ObjectType()>;

	/** Not set; the value is a default constructed one. */
	TAttribute() = default;

	template<typename OtherType>
	requires(std::is_convertible_v<OtherType&&, ObjectType> && !std::is_base_of_v<TAttribute, std::remove_cvref_t<OtherType>>)
		TAttribute(OtherType&& InInitialValue)
		: Value(Forward<OtherType>(InInitialValue))
		, bIsSet(true)
	{
	}

	TAttribute(ObjectType&& InInitialValue)
		: Value(MoveTempIfPossible(InInitialValue))
		, bIsSet(true)
	{
	}

	/** Binds a const method of an object that is shared; it is known weakly. */
	template<class SourceType>
	TAttribute(TSharedRef<SourceType> InUserObject, typename FGetter::template TConstMethodPtr<SourceType> InMethod)
		: TAttribute(FromGetter, FGetter::CreateSP(InUserObject, InMethod))
	{
	}

	template<class SourceType>
	TAttribute(SourceType* InUserObject, typename FGetter::template TConstMethodPtr<SourceType> InMethod)
		: TAttribute(FromGetter, FGetter::CreateSP(static_cast<const SourceType*>(InUserObject), InMethod))
	{
	}

	[[nodiscard]] static TAttribute Create(const FGetter& InGetter) { return TAttribute(FromGetter, InGetter); }
	[[nodiscard]] static TAttribute Create(FGetter&& InGetter) { return TAttribute(FromGetter, MoveTemp(InGetter)); }

	/** From a lambda or TFunction. */
	template<typename FunctorType>
	requires(std::is_invocable_r_v<ObjectType, std::decay_t<FunctorType>&>)
		[[nodiscard]] static TAttribute Create(FunctorType&& InGetter)
	{
		return CreateLambda(Forward<FunctorType>(InGetter));
	}

	template<typename FunctorType, typename... VarTypes>
	[[nodiscard]] static TAttribute CreateLambda(FunctorType&& InFunctor, VarTypes&&... Vars)
	{
		return TAttribute(FromGetter, FGetter::CreateLambda(Forward<FunctorType>(InFunctor), Forward<VarTypes>(Vars)...));
	}

	template<typename... VarTypes>
	[[nodiscard]] static TAttribute CreateStatic(typename FGetter::template TStaticFunction<VarTypes...> InFunc, VarTypes&&... Vars)
	{
		return TAttribute(FromGetter, FGetter::CreateStatic(InFunc, Forward<VarTypes>(Vars)...));
	}

	// Getters are const methods.

	template<typename UserClass, typename... VarTypes>
	[[nodiscard]] static TAttribute CreateSP(const UserClass* InUserObject, typename FGetter::template TMethod<true, UserClass, VarTypes...> InMethod, VarTypes&&... Vars)
	{
		return TAttribute(FromGetter, FGetter::CreateSP(InUserObject, InMethod, Forward<VarTypes>(Vars)...));
	}

	template<typename UserClass, ESPMode Mode, typename... VarTypes>
	[[nodiscard]] static TAttribute CreateSP(const TSharedRef<UserClass, Mode>& InUserObject, typename FGetter::template TMethod<true, UserClass, VarTypes...> InMethod, VarTypes&&... Vars)
	{
		return TAttribute(FromGetter, FGetter::CreateSP(InUserObject, InMethod, Forward<VarTypes>(Vars)...));
	}

	template<typename UserClass, typename... VarTypes>
	[[nodiscard]] static TAttribute CreateUObject(const UserClass* InUserObject, typename FGetter::template TMethod<true, UserClass, VarTypes...> InMethod, VarTypes&&... Vars)
	{
		return TAttribute(FromGetter, FGetter::CreateUObject(InUserObject, InMethod, Forward<VarTypes>(Vars)...));
	}

	/** Whether a value or a getter was given. */
	bool IsSet() const { return bIsSet; }

	/** Whether there is a getter to ask. */
	bool IsBound() const { return Getter.IsBound(); }

	/** Asks the getter if there is one. Good until the attribute is read or changed again. */
	const ObjectType& Get() const
	{
		if (Getter.IsBound())
		{
			Value = Getter.Execute();
		}
		return Value;
	}

	/** DefaultValue when nothing is set; it must then outlive the use of the result. */
	const ObjectType& Get(const ObjectType& DefaultValue) const { return bIsSet ? Get() : DefaultValue; }

private:
	enum EFromGetter
	{
		FromGetter
	};

	template<typename GetterType>
	TAttribute(EFromGetter, GetterType&& InGetter)
		: bIsSet(true)
		, Getter(Forward<GetterType>(InGetter))
	{
	}

	mutable ObjectType Value{}; // the last one read when there is a getter
	bool bIsSet = false;
	FGetter Getter;
};
