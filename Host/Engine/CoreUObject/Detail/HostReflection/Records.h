// Copyright Velmorant. All Rights Reserved.
// What reflected types keep of the records that they were made from; GeneratedCode.h says what is in these.

#pragma once

#include "CoreTypes.h"

class FString;
class UClass;

namespace UE::Reflection
{
	struct FClassRecord;
	struct FEnumRecord;
	struct FFunctionRecord;
	struct FMetaDataRecord;
	struct FPropertyRecord;
	struct FStructOps;
	struct FStructRecord;

	/** Fills types from their generated records. */
	struct FTypeBuilder;

	/** Text form of a struct type that does not read and write itself field by field. */
	struct FStructTextOps
	{
		void (*Export)(FString& Out, const void* Value, int32 PortFlags);
		const TCHAR* (*Import)(const TCHAR* Buffer, void* Value, int32 PortFlags); // null result: no value of this type
	};

	/** The class of T, which may be incomplete; specialised in generated code. */
	template<typename T>
	UClass* ClassOf();
}
