// Copyright Velmorant. All Rights Reserved.
// What generated code is made of: constant records of reflected types, which become classes, structs and enums on first use.

#pragma once

#include "HostReflection/Records.h"
#include "UObject/Class.h"
#include "UObject/ObjectMacros.h"
#include "UObject/Stack.h"
#include "UObject/UObjectGlobals.h"

#include <cstddef>
#include <new>
#include <type_traits>

class FProperty;
class FReferenceCollector;
class UInterface;

// Reflected classes have virtual functions but no virtual bases: both compilers lay them out so that offsets are constants.
#pragma GCC diagnostic ignored "-Winvalid-offsetof"
#ifndef STRUCT_OFFSET
#define STRUCT_OFFSET(Struct, Member) __builtin_offsetof(Struct, Member)
#endif

namespace UE::Reflection
{
	/** UTF-8. */
	struct FMetaDataRecord
	{
		const char* Key;
		const char* Value;
	};

	struct FPropertyRecord
	{
		const char* Name;
		uint64 Flags; // EPropertyFlags
		uint32 Offset;
		FProperty* (*Make)(const FPropertyRecord&);
		const FMetaDataRecord* MetaData;
		int32 NumMetaData;
	};

	struct FFunctionRecord
	{
		const char* Name;
		uint32 Flags; // EFunctionFlags
		uint32 ParmsSize;
		const FPropertyRecord* Parameters;
		int32 NumParameters;
		void (*Thunk)(UObject* Context, FFrame& Stack, void* const Result); // null: an event without a native body
		const FMetaDataRecord* MetaData;
		int32 NumMetaData;
	};

	struct FInterfaceRecord
	{
		UClass* (*Class)();
		void* (*ToInterface)(UObject*);
	};

	struct FClassRecord
	{
		const char* CppName;
		const char* Name;
		const char* Package;
		const char* ConfigName; // null or empty: no config class of its own
		uint32 Flags; // EClassFlags
		uint32 Size;
		uint32 Align;
		UClass* (*Super)();
		void (*Construct)(void* Memory, const FObjectInitializer&);
		void (*AddReferencedObjects)(UObject*, FReferenceCollector&);
		const FPropertyRecord* Properties;
		int32 NumProperties;
		const FFunctionRecord* Functions;
		int32 NumFunctions;
		const FInterfaceRecord* Interfaces;
		int32 NumInterfaces;
		const FMetaDataRecord* MetaData;
		int32 NumMetaData;
		UClass* Class; // null until built
	};

	/** The C++ side of a struct type. Identical may be null: then values are compared property by property. */
	struct FStructOps
	{
		void (*Construct)(void*);
		void (*Destroy)(void*);
		void (*Copy)(void* Dest, const void* Src);
		bool (*Identical)(const void*, const void*);
	};

	template<typename T>
	const FStructOps& StructOps()
	{
		static constexpr FStructOps Ops = {
			[](void* Memory) { ::new (Memory) T(); },
			[](void* Memory) { static_cast<T*>(Memory)->~T(); },
			[](void* Dest, const void* Src) { *static_cast<T*>(Dest) = *static_cast<const T*>(Src); },
			nullptr};
		return Ops;
	}

	struct FStructRecord
	{
		const char* CppName;
		const char* Name;
		const char* Package;
		uint32 Flags; // EStructFlags
		uint32 Size;
		uint32 Align;
		UScriptStruct* (*Super)();
		const FStructOps& (*Ops)();
		const FPropertyRecord* Properties;
		int32 NumProperties;
		const FMetaDataRecord* MetaData;
		int32 NumMetaData;
		UScriptStruct* Struct; // null until built
	};

	/** Name is "EFoo::A" for enum classes and enums in namespaces, "A" for plain ones. */
	struct FEnumeratorRecord
	{
		const char* Name;
		int64 Value;
		const FMetaDataRecord* MetaData;
		int32 NumMetaData;
	};

	struct FEnumRecord
	{
		const char* Name;
		const char* CppType;
		const char* Package;
		const FEnumeratorRecord* Enumerators;
		int32 NumEnumerators;
		const FMetaDataRecord* MetaData;
		int32 NumMetaData;
		UEnum* Enum; // null until built
	};

	/** The type of a record: built on the first call, alive until the process ends. Never null. */
	UClass* GetClass(FClassRecord& Record);
	UScriptStruct* GetStruct(FStructRecord& Record);
	UEnum* GetEnum(FEnumRecord& Record);

	template<>
	UClass* ClassOf<UObject>();
	template<>
	UClass* ClassOf<UField>();
	template<>
	UClass* ClassOf<UStruct>();
	template<>
	UClass* ClassOf<UScriptStruct>();
	template<>
	UClass* ClassOf<UClass>();
	template<>
	UClass* ClassOf<UEnum>();
	template<>
	UClass* ClassOf<UFunction>();
	template<>
	UClass* ClassOf<UPackage>();
	template<>
	UClass* ClassOf<UInterface>();

	/**
	 * Static objects of generated code. They only link the record into a list while the program loads;
	 * an editor that boots builds the types of all listed records.
	 */
	template<typename RecordType>
	struct TRegistrar
	{
		explicit TRegistrar(RecordType& InRecord)
			: Record(&InRecord)
			, Next(First)
		{
			First = this;
		}

		RecordType* Record;
		TRegistrar* Next;

		static inline TRegistrar* First = nullptr;
	};
	using FClassRegistrar = TRegistrar<FClassRecord>;
	using FStructRegistrar = TRegistrar<FStructRecord>;
	using FEnumRegistrar = TRegistrar<FEnumRecord>;
}

// The property makers need complete property types; generated code gets them from here.
#include "HostReflection/PropertyMakers.h"
