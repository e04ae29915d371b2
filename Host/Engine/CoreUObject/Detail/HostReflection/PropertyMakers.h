// Copyright Velmorant. All Rights Reserved.
// Included by GeneratedCode.h: from the C++ type of a member to its property.

#pragma once

#include "Containers/EnumAsByte.h"
#include "Containers/Map.h"
#include "Containers/Set.h"
#include "Templates/SubclassOf.h"
#include "UObject/SoftObjectPtr.h"
#include "UObject/StrongObjectPtr.h"
#include "UObject/UnrealType.h"
#include "UObject/WeakObjectPtrTemplates.h"

#include <cstring>

namespace UE::Reflection
{
	template<typename T>
	const FArrayOps& ArrayOps()
	{
		using FArrayType = TArray<T>;
		static constexpr FArrayOps Ops = {
			[](void* Array) { ::new (Array) FArrayType(); },
			[](void* Array) { static_cast<FArrayType*>(Array)->~FArrayType(); },
			[](const void* Array) -> int32 { return static_cast<const FArrayType*>(Array)->Num(); },
			[](void* Array) -> void* { return static_cast<FArrayType*>(Array)->GetData(); },
			[](void* Array, int32 Index, int32 Count) {
				for (int32 Added = 0; Added < Count; ++Added)
				{
					static_cast<FArrayType*>(Array)->Insert(T(), Index + Added);
				}
			},
			[](void* Array, int32 Index, int32 Count) { static_cast<FArrayType*>(Array)->RemoveAt(Index, Count); },
			sizeof(FArrayType),
			alignof(FArrayType)};
		return Ops;
	}

	template<typename T>
	const FKeyedOps& SetOps()
	{
		using FSetType = TSet<T>;
		static constexpr FKeyedOps Ops = {
			[](void* Set) { ::new (Set) FSetType(); },
			[](void* Set) { static_cast<FSetType*>(Set)->~FSetType(); },
			[](const void* Set) -> int32 { return static_cast<const FSetType*>(Set)->Num(); },
			[](void* Set, FVisitPair Visit, void* Context) {
				for (const T& Element : *static_cast<const FSetType*>(Set))
				{
					Visit(Context, &Element, nullptr);
				}
			},
			[](void* Set) { static_cast<FSetType*>(Set)->Empty(); },
			[](void* Set, const void* Element, const void*) { static_cast<FSetType*>(Set)->Add(*static_cast<const T*>(Element)); },
			[](void* Set, const void* Element) { static_cast<FSetType*>(Set)->Remove(*static_cast<const T*>(Element)); },
			[](void* Set, const void* Element) -> void* { return static_cast<FSetType*>(Set)->Find(*static_cast<const T*>(Element)); },
			sizeof(FSetType),
			alignof(FSetType)};
		return Ops;
	}

	template<typename K, typename V>
	const FKeyedOps& MapOps()
	{
		using FMapType = TMap<K, V>;
		static constexpr FKeyedOps Ops = {
			[](void* Map) { ::new (Map) FMapType(); },
			[](void* Map) { static_cast<FMapType*>(Map)->~FMapType(); },
			[](const void* Map) -> int32 { return static_cast<const FMapType*>(Map)->Num(); },
			[](void* Map, FVisitPair Visit, void* Context) {
				for (auto& Pair : *static_cast<FMapType*>(Map))
				{
					Visit(Context, &Pair.Key, &Pair.Value);
				}
			},
			[](void* Map) { static_cast<FMapType*>(Map)->Empty(); },
			[](void* Map, const void* Key, const void* Value) { static_cast<FMapType*>(Map)->Add(*static_cast<const K*>(Key), *static_cast<const V*>(Value)); },
			[](void* Map, const void* Key) { static_cast<FMapType*>(Map)->Remove(*static_cast<const K*>(Key)); },
			[](void* Map, const void* Key) -> void* { return static_cast<FMapType*>(Map)->Find(*static_cast<const K*>(Key)); },
			sizeof(FMapType),
			alignof(FMapType)};
		return Ops;
	}

	template<typename T>
	FProperty* CreateProperty();

	/** The parameters of a dynamic multicast delegate, as records like those of a function. */
	struct FDelegateSignature
	{
		const FPropertyRecord* Parameters = nullptr;
		int32 NumParameters = 0;
		int32 Size = 0; // bytes of the parameter block
	};

	template<typename... TParams>
	struct TDelegateSignature : public FDelegateSignature
	{
		/** Names: as many as there are parameters, each ended by a zero character. */
		explicit TDelegateSignature(const char* Names)
		{
			std::size_t Index = 0;
			((Records[Index] = FPropertyRecord{Names, CPF_Parm, TParameterBlock<void, TParams...>::OffsetOf(Index), [](const FPropertyRecord&) { return CreateProperty<std::remove_cvref_t<TParams>>(); }, nullptr, 0},
				 Names += std::strlen(Names) + 1, ++Index),
				...);
			Parameters = Records;
			NumParameters = static_cast<int32>(sizeof...(TParams));
			Size = TParameterBlock<void, TParams...>::Size;
		}

		FPropertyRecord Records[sizeof...(TParams) + 1] = {};
	};

	/** Structs and enums by default; the other kinds of types below. */
	template<typename T>
	struct TPropertyMaker
	{
		static FProperty* Create()
		{
			if constexpr (std::is_enum_v<T>)
			{
				return new FEnumProperty(StaticEnum<T>(), static_cast<FNumericProperty*>(CreateProperty<std::underlying_type_t<T>>()));
			}
			else if constexpr (std::is_base_of_v<FMulticastScriptDelegate, T>)
			{
				static_assert(sizeof(T) == sizeof(FMulticastScriptDelegate));
				FMulticastDelegateProperty* Property = new FMulticastDelegateProperty();
				if constexpr (requires { T::HostParameterNames; })
				{
					static const typename T::template THostParameters<TDelegateSignature> Signature(T::HostParameterNames);
					Property->Signature = &Signature;
				}
				return Property;
			}
			else if constexpr (std::is_base_of_v<FScriptDelegate, T>)
			{
				static_assert(sizeof(T) == sizeof(FScriptDelegate));
				return new FDelegateProperty();
			}
			else
			{
				return new FStructProperty(TBaseStructure<T>::Get());
			}
		}
	};

#define HOST_PROPERTY_MAKER(TCpp, TProp) \
	template<> \
	struct TPropertyMaker<TCpp> \
	{ \
		static FProperty* Create() { return new TProp(); } \
	};
	HOST_PROPERTY_MAKER(bool, FBoolProperty)
	HOST_PROPERTY_MAKER(int8, FInt8Property)
	HOST_PROPERTY_MAKER(int16, FInt16Property)
	HOST_PROPERTY_MAKER(int32, FIntProperty)
	HOST_PROPERTY_MAKER(int64, FInt64Property)
	HOST_PROPERTY_MAKER(uint8, FByteProperty)
	HOST_PROPERTY_MAKER(uint16, FUInt16Property)
	HOST_PROPERTY_MAKER(uint32, FUInt32Property)
	HOST_PROPERTY_MAKER(uint64, FUInt64Property)
	HOST_PROPERTY_MAKER(float, FFloatProperty)
	HOST_PROPERTY_MAKER(double, FDoubleProperty)
	HOST_PROPERTY_MAKER(FString, FStrProperty)
	HOST_PROPERTY_MAKER(FName, FNameProperty)
	HOST_PROPERTY_MAKER(FText, FTextProperty)

	template<typename T>
	struct TPropertyMaker<TEnumAsByte<T>>
	{
		static FProperty* Create()
		{
			FByteProperty* Property = new FByteProperty();
			Property->Enum = StaticEnum<T>();
			return Property;
		}
	};

	template<typename T>
	struct TPropertyMaker<T*>
	{
		static FProperty* Create()
		{
			if constexpr (std::is_same_v<std::remove_const_t<T>, UClass>)
			{
				return new FClassProperty(ClassOf<UObject>());
			}
			else
			{
				return new FObjectProperty(ClassOf<std::remove_const_t<T>>());
			}
		}
	};

	template<typename T>
	struct TPropertyMaker<TObjectPtr<T>> : TPropertyMaker<T*>
	{
	};

	template<typename T>
	struct TPropertyMaker<TSubclassOf<T>>
	{
		static FProperty* Create() { return new FClassProperty(ClassOf<T>()); }
	};

	template<typename T>
	struct TPropertyMaker<TWeakObjectPtr<T>>
	{
		static FProperty* Create() { return new FWeakObjectProperty(ClassOf<std::remove_const_t<T>>()); }
	};

	template<typename T>
	struct TPropertyMaker<TSoftObjectPtr<T>>
	{
		static FProperty* Create() { return new FSoftObjectProperty(ClassOf<std::remove_const_t<T>>()); }
	};

	template<typename T>
	struct TPropertyMaker<TSoftClassPtr<T>>
	{
		static FProperty* Create() { return new FSoftClassProperty(ClassOf<T>()); }
	};

	template<typename T>
	struct TPropertyMaker<TArray<T>>
	{
		static FProperty* Create() { return new FArrayProperty(CreateProperty<T>(), ArrayOps<T>()); }
	};

	template<typename T>
	struct TPropertyMaker<TSet<T>>
	{
		static FProperty* Create() { return new FSetProperty(CreateProperty<T>(), SetOps<T>()); }
	};

	template<typename K, typename V>
	struct TPropertyMaker<TMap<K, V>>
	{
		static FProperty* Create() { return new FMapProperty(CreateProperty<K>(), CreateProperty<V>(), MapOps<K, V>()); }
	};

	template<typename T>
	FProperty* CreateProperty()
	{
		return TPropertyMaker<std::remove_const_t<T>>::Create();
	}

	/** T is the C++ type of the member or parameter without const and reference. */
	template<typename T>
	FProperty* MakeProperty(const FPropertyRecord&)
	{
		return CreateProperty<T>();
	}
}
