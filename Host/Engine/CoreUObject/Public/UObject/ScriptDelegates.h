// Copyright Velmorant. All Rights Reserved.
// Dynamic delegates: bindings of an object and the name of one of its reflected functions.

#pragma once

#include "Containers/Array.h"
#include "Delegates/DelegateInstancesImpl.h"
#include "HostReflection/ParameterBlock.h"
#include "HostReflection/ReflectedHandler.h"
#include "Misc/AssertionMacros.h"
#include "UObject/NameTypes.h"
#include "UObject/ObjectPtr.h"
#include "UObject/WeakObjectPtr.h"

#include <type_traits>

class UObject;

/** One binding. Holds its object weakly. */
class FScriptDelegate
{
public:
	/** The function is looked up by name at each call; it need not exist yet. */
	void BindUFunction(UObject* InObject, const FName& InFunctionName);

	/** Whether the object lives and has such a function. */
	bool IsBound() const;
	bool IsBoundToObject(const void* InObject) const { return InObject && Object.Get() == InObject; }
	UObject* GetUObject() const { return Object.Get(); }
	FName GetFunctionName() const { return FunctionName; }

	bool operator==(const FScriptDelegate& Other) const
	{
		return FunctionName == Other.FunctionName && Object.HasSameIndexAndSerialNumber(Other.Object);
	}
	friend uint32 GetTypeHash(const FScriptDelegate& Delegate) { return GetTypeHash(Delegate.Object) ^ GetTypeHash(Delegate.FunctionName); }

protected:
	void Process(void* Parameters) const;
	/** Whether the bound function takes a block of this size; reports it when not. */
	bool AcceptsBlock(int32 BlockSize) const;

	FWeakObjectPtr Object;
	FName FunctionName;

	friend class FMulticastScriptDelegate;
};

/** A list of bindings, called in the order in which they were added. */
class FMulticastScriptDelegate
{
public:
	bool IsBound() const;
	bool Contains(const FScriptDelegate& InDelegate) const;

	/** Reports, and does nothing, when the binding is there already. */
	void Add(const FScriptDelegate& InDelegate);
	void AddUnique(const FScriptDelegate& InDelegate);
	void Remove(const FScriptDelegate& InDelegate);
	void Remove(const UObject* InObject, FName InFunctionName);

	bool operator==(const FMulticastScriptDelegate& Other) const { return InvocationList == Other.InvocationList; }

protected:
	/** BlockSize INDEX_NONE: unknown. */
	void Process(void* Parameters, int32 BlockSize) const;

	mutable TArray<FScriptDelegate> InvocationList; // bindings of dead objects go when the next one is added
};

/** Base of DECLARE_DYNAMIC_DELEGATE types. */
template<typename RetValType, typename... ParamTypes>
class TBaseDynamicDelegate : public FScriptDelegate
{
public:
	TBaseDynamicDelegate() = default;

	/** The delegate must be bound. */
	RetValType Execute(ParamTypes... Params) const
	{
		checkf(IsBound(), TEXT("Executing an unbound dynamic delegate."));
		UE::Reflection::TParameterBlock<RetValType, ParamTypes...> Block(Params...);
		if (AcceptsBlock(Block.Size))
		{
			Process(Block.GetData());
			Block.CopyBack(Params...);
		}
		return Block.GetResult();
	}
};

/** Base of DECLARE_DYNAMIC_MULTICAST_DELEGATE types. */
template<typename... ParamTypes>
class TBaseDynamicMulticastDelegate : public FMulticastScriptDelegate
{
public:
	/** Host: a template over the parameter types, for describing them at run time. */
	template<template<typename...> class TOverParameters>
	using THostParameters = TOverParameters<ParamTypes...>;

	/** Use the macros AddDynamic(), AddUniqueDynamic(), RemoveDynamic() and IsAlreadyBound(). */
	template<class UserClass>
	void __Internal_AddDynamic(UserClass* InUserObject, void (std::type_identity_t<UserClass>::*)(ParamTypes...), const char* InFunctionName)
	{
		Add(MakeBinding(InUserObject, InFunctionName));
	}
	template<class UserClass>
	void __Internal_AddUniqueDynamic(UserClass* InUserObject, void (std::type_identity_t<UserClass>::*)(ParamTypes...), const char* InFunctionName)
	{
		AddUnique(MakeBinding(InUserObject, InFunctionName));
	}
	template<class UserClass>
	void __Internal_RemoveDynamic(UserClass* InUserObject, void (std::type_identity_t<UserClass>::*)(ParamTypes...), const char* InFunctionName)
	{
		Remove(InUserObject, FName(InFunctionName));
	}

	template<class UserClass, class TMethod>
	void __Internal_AddUniqueDynamic(const TObjectPtr<UserClass>& InUserObject, TMethod Method, const char* FunctionName)
	{
		__Internal_AddUniqueDynamic(InUserObject.Get(), Method, FunctionName);
	}
	template<class UserClass, class TMethod>
	void __Internal_RemoveDynamic(const TObjectPtr<UserClass>& InUserObject, TMethod Method, const char* FunctionName)
	{
		__Internal_RemoveDynamic(InUserObject.Get(), Method, FunctionName);
	}

	void Broadcast(ParamTypes... Params) const
	{
		UE::Reflection::TParameterBlock<void, ParamTypes...> Block(Params...);
		Process(Block.GetData(), Block.Size);
		Block.CopyBack(Params...);
	}

private:
	static FScriptDelegate MakeBinding(UObject* InUserObject, const char* InFunctionName)
	{
		checkf(InUserObject, TEXT("Dynamic delegates are bound to objects."));
		FScriptDelegate Binding;
		Binding.BindUFunction(InUserObject, FName(InFunctionName));
		return Binding;
	}
};

// FuncName is written as &UClass::Function: its name is taken from the source text, and the compiler refuses functions that
// are not reflected or do not fit the delegate.
#define AddDynamic(UserObject, FuncName) __Internal_AddDynamic(UserObject, FuncName, UE::Reflection::HandlerName<decltype(FuncName)>(#FuncName))
#define AddUniqueDynamic(UserObject, FuncName) __Internal_AddUniqueDynamic(UserObject, FuncName, UE::Reflection::HandlerName<decltype(FuncName)>(#FuncName))
#define RemoveDynamic(UserObject, FuncName) __Internal_RemoveDynamic(UserObject, FuncName, UE::Reflection::HandlerName<decltype(FuncName)>(#FuncName))

#include "HostReflection/ScriptDelegateMacros.h"
