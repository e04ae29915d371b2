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
	void Unbind();
	void Clear() { Unbind(); }

	/** Whether the object lives and has such a function. */
	bool IsBound() const;
	bool IsBoundToObject(const void* InObject) const { return InObject && Object.Get() == InObject; }
	UObject* GetUObject() const { return Object.Get(); }
	FName GetFunctionName() const { return FunctionName; }

	/** Calls the function with a block of parameters. The delegate must be bound. */
	template<class TObjectClass>
	void ProcessDelegate(void* Parameters) const
	{
		Process(Parameters);
	}

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
	bool Contains(const UObject* InObject, FName InFunctionName) const;

	/** Reports, and does nothing, when the binding is there already. */
	void Add(const FScriptDelegate& InDelegate);
	void AddUnique(const FScriptDelegate& InDelegate);
	void Remove(const FScriptDelegate& InDelegate);
	void Remove(const UObject* InObject, FName InFunctionName);
	void RemoveAll(const UObject* Object);
	void Clear() { InvocationList.Empty(); }
	TArray<UObject*> GetAllObjects() const;

	/** Calls a copy of the list: what is added meanwhile is not called, what is removed meanwhile still is if its object lives. */
	template<class TObjectClass>
	void ProcessMulticastDelegate(void* Parameters) const
	{
		Process(Parameters, INDEX_NONE);
	}

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
	explicit TBaseDynamicDelegate(const FScriptDelegate& InDelegate)
		: FScriptDelegate(InDelegate)
	{
	}

	/** Use BindDynamic(). */
	template<class UserClass>
	void __Internal_BindDynamic(UserClass* InUserObject, RetValType (std::type_identity_t<UserClass>::*)(ParamTypes...), const char* InFunctionName)
	{
		checkf(InUserObject, TEXT("Dynamic delegates are bound to objects."));
		BindUFunction(InUserObject, FName(InFunctionName));
	}

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

	bool ExecuteIfBound(ParamTypes... Params) const
		requires std::is_void_v<RetValType>
	{
		const bool bBound = IsBound();
		if (bBound)
		{
			Execute(Params...);
		}
		return bBound;
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
	template<class UserClass>
	bool __Internal_IsAlreadyBound(UserClass* InUserObject, void (std::type_identity_t<UserClass>::*)(ParamTypes...), const char* InFunctionName) const
	{
		return Contains(InUserObject, FName(InFunctionName));
	}

	// The same for objects held in members.
	template<class UserClass, class TMethod>
	void __Internal_AddDynamic(const TObjectPtr<UserClass>& InUserObject, TMethod Method, const char* FunctionName)
	{
		__Internal_AddDynamic(InUserObject.Get(), Method, FunctionName);
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
	template<class UserClass, class TMethod>
	bool __Internal_IsAlreadyBound(const TObjectPtr<UserClass>& InUserObject, TMethod Method, const char* FunctionName) const
	{
		return __Internal_IsAlreadyBound(InUserObject.Get(), Method, FunctionName);
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

/** What CreateUFunction, BindUFunction and AddUFunction of native delegates do: parameters and then payload go into one block. */
template<typename RetValType, typename... ParamTypes>
class UE::Delegates::Private::TScriptFunctionCall<RetValType(ParamTypes...)>
{
public:
	explicit TScriptFunctionCall(const FName& InFunctionName)
		: FunctionName(InFunctionName)
	{
	}

	RetValType operator()(UObject* InObject, ParamTypes... Params) const
	{
		FScriptDelegate Binding;
		Binding.BindUFunction(InObject, FunctionName);
		return TBaseDynamicDelegate<RetValType, ParamTypes...>(Binding).Execute(Params...);
	}

private:
	FName FunctionName;
};

// FuncName is written as &UClass::Function: its name is taken from the source text, and the compiler refuses functions that
// are not reflected or do not fit the delegate.
#define BindDynamic(UserObject, FuncName) __Internal_BindDynamic(UserObject, FuncName, UE::Reflection::HandlerName<decltype(FuncName)>(#FuncName))
#define AddDynamic(UserObject, FuncName) __Internal_AddDynamic(UserObject, FuncName, UE::Reflection::HandlerName<decltype(FuncName)>(#FuncName))
#define AddUniqueDynamic(UserObject, FuncName) __Internal_AddUniqueDynamic(UserObject, FuncName, UE::Reflection::HandlerName<decltype(FuncName)>(#FuncName))
#define RemoveDynamic(UserObject, FuncName) __Internal_RemoveDynamic(UserObject, FuncName, UE::Reflection::HandlerName<decltype(FuncName)>(#FuncName))
#define IsAlreadyBound(UserObject, FuncName) __Internal_IsAlreadyBound(UserObject, FuncName, UE::Reflection::HandlerName<decltype(FuncName)>(#FuncName))

#include "HostReflection/ScriptDelegateMacros.h"
