// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreTypes.h"
#include "Misc/AssertionMacros.h"
#include "Templates/Invoke.h"
#include "Templates/UnrealTemplate.h"

template<typename FuncType>
class TFunction;

template<typename FuncType>
class TUniqueFunction;

template<typename FuncType>
class TFunctionRef;

namespace UE::Core::Private::Function
{
	constexpr std::size_t InlineSize = 32;

	/** How to copy, move and destroy a stored functor of a type that is forgotten. */
	struct FOperations
	{
		void (*Copy)(void* Target, const void* Source); // null when the functor cannot be copied
		void (*Relocate)(void* Target, void* Source);
		void (*Destroy)(void* Storage);
	};

	/** Small functors sit in the storage itself, others on the heap. */
	template<typename FunctorType>
	struct TStored
	{
		static constexpr bool bIsInline = sizeof(FunctorType) <= InlineSize && alignof(FunctorType) <= alignof(void*);

		static FunctorType& Get(void* Storage)
		{
			if constexpr (bIsInline)
			{
				return *static_cast<FunctorType*>(Storage);
			}
			else
			{
				return **static_cast<FunctorType**>(Storage);
			}
		}

		template<typename ArgType>
		static void Construct(void* Storage, ArgType&& Arg)
		{
			if constexpr (bIsInline)
			{
				new (Storage) FunctorType(::Forward<ArgType>(Arg));
			}
			else
			{
				*static_cast<FunctorType**>(Storage) = new FunctorType(::Forward<ArgType>(Arg));
			}
		}

		static void Relocate(void* Target, void* Source)
		{
			if constexpr (bIsInline)
			{
				new (Target) FunctorType(MoveTemp(Get(Source)));
				Get(Source).~FunctorType();
			}
			else
			{
				*static_cast<FunctorType**>(Target) = *static_cast<FunctorType**>(Source);
			}
		}

		static void Destroy(void* Storage)
		{
			if constexpr (bIsInline)
			{
				Get(Storage).~FunctorType();
			}
			else
			{
				delete *static_cast<FunctorType**>(Storage);
			}
		}

		static void Copy(void* Target, const void* Source)
		{
			Construct(Target, const_cast<const FunctorType&>(Get(const_cast<void*>(Source))));
		}

		static const FOperations* Operations(bool bCopyable)
		{
			static constexpr FOperations Movable = {nullptr, &Relocate, &Destroy};
			if constexpr (std::is_copy_constructible_v<FunctorType>)
			{
				static constexpr FOperations Copyable = {&Copy, &Relocate, &Destroy};
				return bCopyable ? &Copyable : &Movable;
			}
			return &Movable;
		}
	};

	template<typename FuncType>
	struct TIsFunctionObject
	{
		static constexpr bool Value = false;
	};

	template<typename FuncType>
	struct TIsFunctionObject<TFunction<FuncType>>
	{
		static constexpr bool Value = true;
	};

	template<typename FuncType>
	struct TIsFunctionObject<TUniqueFunction<FuncType>>
	{
		static constexpr bool Value = true;
	};

	/** A null function pointer, or an empty function object, makes an empty function. */
	template<typename FunctorType>
	bool IsCallable(const FunctorType& Functor)
	{
		if constexpr (std::is_pointer_v<FunctorType> || std::is_member_pointer_v<FunctorType>)
		{
			return Functor != nullptr;
		}
		else if constexpr (TIsFunctionObject<FunctorType>::Value)
		{
			return static_cast<bool>(Functor);
		}
		else
		{
			return true;
		}
	}

	template<typename FuncType, bool bCopyable>
	class TFunctionBase;

	template<typename RetType, typename... ParamTypes, bool bCopyable>
	class TFunctionBase<RetType(ParamTypes...), bCopyable>
	{
	public:
		RetType operator()(ParamTypes... Params) const
		{
			checkf(Call != nullptr, TEXT("Attempting to call an unbound TFunction!"));
			return Call(const_cast<uint8*>(Storage), ::Forward<ParamTypes>(Params)...);
		}

		explicit operator bool() const { return Call != nullptr; }

		void Reset()
		{
			if (Call)
			{
				Call = nullptr;
				Operations->Destroy(Storage);
			}
		}

	protected:
		TFunctionBase() = default;

		TFunctionBase(const TFunctionBase& Other) requires(bCopyable)
		{
			CopyFrom(Other);
		}

		TFunctionBase(TFunctionBase&& Other) noexcept
		{
			MoveFrom(Other);
		}

		~TFunctionBase()
		{
			Reset();
		}

		TFunctionBase& operator=(const TFunctionBase& Other) requires(bCopyable)
		{
			if (this != &Other)
			{
				Reset();
				CopyFrom(Other);
			}
			return *this;
		}

		TFunctionBase& operator=(TFunctionBase&& Other) noexcept
		{
			if (this != &Other)
			{
				Reset();
				MoveFrom(Other);
			}
			return *this;
		}

		template<typename FunctorType>
		void Bind(FunctorType&& Functor)
		{
			using FStored = TStored<std::decay_t<FunctorType>>;
			static_assert(!bCopyable || std::is_copy_constructible_v<std::decay_t<FunctorType>>, "TFunction needs a functor that can be copied; use TUniqueFunction");
			if (!IsCallable<std::decay_t<FunctorType>>(Functor))
			{
				return;
			}
			FStored::Construct(Storage, ::Forward<FunctorType>(Functor));
			Operations = FStored::Operations(bCopyable);
			Call = [](void* InStorage, ParamTypes&&... Params) -> RetType {
				if constexpr (std::is_void_v<RetType>)
				{
					::Invoke(FStored::Get(InStorage), ::Forward<ParamTypes>(Params)...);
				}
				else
				{
					return ::Invoke(FStored::Get(InStorage), ::Forward<ParamTypes>(Params)...);
				}
			};
		}

	private:
		void CopyFrom(const TFunctionBase& Other)
		{
			if (Other.Call)
			{
				Other.Operations->Copy(Storage, Other.Storage);
				Operations = Other.Operations;
				Call = Other.Call;
			}
		}

		void MoveFrom(TFunctionBase& Other)
		{
			if (Other.Call)
			{
				Other.Operations->Relocate(Storage, Other.Storage);
				Operations = Other.Operations;
				Call = Exchange(Other.Call, nullptr);
			}
		}

		alignas(void*) uint8 Storage[InlineSize];
		const FOperations* Operations = nullptr;
		RetType (*Call)(void*, ParamTypes&&...) = nullptr; // null: empty, and Storage holds nothing
	};

	template<typename FunctorType, typename FuncType>
	struct TIsInvocable;

	template<typename FunctorType, typename RetType, typename... ParamTypes>
	struct TIsInvocable<FunctorType, RetType(ParamTypes...)>
	{
		static constexpr bool Value = std::is_invocable_r_v<RetType, FunctorType&, ParamTypes...>;
	};
}

/** A copyable callable of any kind, or none. Calling none fails a check. */
template<typename FuncType>
class TFunction final : public UE::Core::Private::Function::TFunctionBase<FuncType, true>
{
public:
	TFunction(std::nullptr_t = nullptr) {}
	TFunction(const TFunction&) = default;
	TFunction(TFunction&&) = default;
	~TFunction() = default;
	TFunction& operator=(const TFunction&) = default;
	TFunction& operator=(TFunction&&) = default;

	template<typename FunctorType>
	requires(!std::is_same_v<std::decay_t<FunctorType>, TFunction> && UE::Core::Private::Function::TIsInvocable<std::decay_t<FunctorType>, FuncType>::Value)
		TFunction(FunctorType&& Functor)
	{
		this->Bind(::Forward<FunctorType>(Functor));
	}
};

/** A callable that need not be copyable, and cannot be copied itself. */
template<typename FuncType>
class TUniqueFunction final : public UE::Core::Private::Function::TFunctionBase<FuncType, false>
{
public:
	TUniqueFunction(std::nullptr_t = nullptr) {}
	TUniqueFunction(TUniqueFunction&&) = default;
	~TUniqueFunction() = default;
	TUniqueFunction& operator=(TUniqueFunction&&) = default;

	template<typename FunctorType>
	requires(!std::is_same_v<std::decay_t<FunctorType>, TUniqueFunction> && UE::Core::Private::Function::TIsInvocable<std::decay_t<FunctorType>, FuncType>::Value)
		TUniqueFunction(FunctorType&& Functor)
	{
		this->Bind(::Forward<FunctorType>(Functor));
	}
};

/** A callable that somebody else keeps alive: for parameters, never for members. */
template<typename RetType, typename... ParamTypes>
class TFunctionRef<RetType(ParamTypes...)> final
{
public:
	template<typename FunctorType>
	requires(!std::is_same_v<std::remove_cvref_t<FunctorType>, TFunctionRef> && UE::Core::Private::Function::TIsInvocable<std::remove_reference_t<FunctorType>, RetType(ParamTypes...)>::Value)
		TFunctionRef(FunctorType&& Functor)
	{
		using Type = std::remove_reference_t<FunctorType>;
		if constexpr (std::is_function_v<Type>)
		{
			Object = reinterpret_cast<void*>(&Functor);
			Call = [](void* InObject, ParamTypes&&... Params) -> RetType { return reinterpret_cast<Type*>(InObject)(::Forward<ParamTypes>(Params)...); };
		}
		else
		{
			checkf(UE::Core::Private::Function::IsCallable<std::remove_cv_t<Type>>(Functor), TEXT("Cannot bind a null/unbound callable to a TFunctionRef"));
			Object = const_cast<void*>(static_cast<const void*>(&Functor));
			Call = [](void* InObject, ParamTypes&&... Params) -> RetType { return static_cast<RetType>(::Invoke(*static_cast<Type*>(InObject), ::Forward<ParamTypes>(Params)...)); };
		}
	}

	RetType operator()(ParamTypes... Params) const { return Call(Object, ::Forward<ParamTypes>(Params)...); }

private:
	void* Object = nullptr;
	RetType (*Call)(void*, ParamTypes&&...) = nullptr;
};
