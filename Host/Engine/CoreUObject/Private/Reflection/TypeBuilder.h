// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "HostReflection/GeneratedCode.h"

namespace UE::Reflection
{
	/**
	 * Makes types from their records.
	 *
	 * A type is first a shell: name, super type, size. Its properties and functions follow when first asked for, so that types
	 * may name each other, and a program pays only for those it uses.
	 */
	struct FTypeBuilder
	{
		/** All registered types, ordered by package and name. Does nothing the second time. */
		static void BuildAll();

		static UClass* Build(FClassRecord& Record);
		static UScriptStruct* Build(FStructRecord& Record);
		static UEnum* Build(FEnumRecord& Record);

		/** A property of Owner; it belongs to the caller. */
		static FProperty* MakeProperty(const FPropertyRecord& Record, UStruct* Owner);
		static UFunction* MakeFunction(const FFunctionRecord& Record, UClass* Owner);

		//~ Types of one editor
		static void Derive(UClass* Class, UClass* Parent);
		static UFunction* AddScriptFunction(UClass* Class, FName Name, UFunction::FScriptBody Body);
		static UFunction* AddScriptListener(UClass* Class, FName Name, const FDelegateSignature& Signature, UFunction::FScriptBody Body);

		//~ Struct types written by hand
		static void SetTextOps(UScriptStruct* Struct, const FStructTextOps& TextOps);

	private:
		static void Fill(UClass* Class, const FClassRecord& Record);
		static void FillMembers(UStruct* Struct, const FPropertyRecord* Properties, int32 NumProperties);
		static void BuildRoots();
		static UPackage* FindOrMakePackage(const char* Name);
		template<typename T>
		static T* MakeNative(UClass* Class, UObject* Outer, FName Name);
	};
}
