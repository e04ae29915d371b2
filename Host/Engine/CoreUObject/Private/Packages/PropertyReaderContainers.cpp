// Copyright Velmorant. All Rights Reserved.

#include "PropertyReader.h"

#include "PackageStructs.h"
#include "UObject/Class.h"
#include "UObject/UnrealType.h"

#include <new>

namespace PropertyReaderContainers
{
	/** A value of a container's element type, for what cannot be built in place. */
	class FScratch
	{
	public:
		explicit FScratch(const FProperty* InProperty)
			: Property(InProperty)
			, Alignment{static_cast<size_t>(FMath::Max(InProperty->GetMinAlignment(), 1))}
			, Memory(::operator new(static_cast<size_t>(FMath::Max(InProperty->GetSize(), 1)), Alignment))
		{
			Property->InitializeValue(Memory);
		}
		~FScratch()
		{
			Property->DestroyValue(Memory);
			::operator delete(Memory, Alignment);
		}
		FScratch(const FScratch&) = delete;
		FScratch& operator=(const FScratch&) = delete;

		void* Get() { return Memory; }

	private:
		const FProperty* Property;
		std::align_val_t Alignment;
		void* Memory;
	};
}

bool FPropertyReader::ReadStruct(const UScriptStruct* Struct, void* Value, const FJson& Json, const FJsonPlace& Place)
{
	if (const FPackageStructFormat* Format = FPackageStructFormat::Find(Struct))
	{
		FString Text;
		if (!ReadString(Json, Place, Text))
		{
			return false;
		}
		Format->Read(Text, Value);
		return true;
	}
	if (Value != nullptr)
	{
		Struct->ClearScriptStruct(Value); // files leave out what equals a fresh value
	}
	return ReadProperties(Struct, Value, Json, Place);
}

bool FPropertyReader::ReadArray(const FProperty* Property, void* Value, const FJson& Json, const FJsonPlace& Place)
{
	const FArrayProperty* Array = CastFieldChecked<FArrayProperty>(Property);
	if (!Json.is_array())
	{
		return RefuseType(Place, Json, TEXT("an array"));
	}
	if (Value != nullptr)
	{
		FScriptArrayHelper Helper(Array, Value);
		Helper.EmptyValues();
		Helper.AddValues(static_cast<int32>(Json.size()));
	}
	for (size_t Index = 0; Index < Json.size(); ++Index)
	{
		void* Element = Value != nullptr ? FScriptArrayHelper(Array, Value).GetRawPtr(static_cast<int32>(Index)) : nullptr;
		if (!ReadValue(Array->Inner, Element, Json[Index], FJsonPlace(Place, Index)))
		{
			return false;
		}
	}
	return true;
}

bool FPropertyReader::ReadSet(const FProperty* Property, void* Value, const FJson& Json, const FJsonPlace& Place)
{
	const FSetProperty* Set = CastFieldChecked<FSetProperty>(Property);
	if (!Json.is_array())
	{
		return RefuseType(Place, Json, TEXT("an array"));
	}
	if (Value != nullptr)
	{
		Set->GetOps().Empty(Value);
	}
	for (size_t Index = 0; Index < Json.size(); ++Index)
	{
		PropertyReaderContainers::FScratch Element(Set->ElementProp);
		if (!ReadValue(Set->ElementProp, Value != nullptr ? Element.Get() : nullptr, Json[Index], FJsonPlace(Place, Index)))
		{
			return false;
		}
		if (Value != nullptr)
		{
			Set->GetOps().Add(Value, Element.Get(), nullptr);
		}
	}
	return true;
}

bool FPropertyReader::ReadMap(const FProperty* Property, void* Value, const FJson& Json, const FJsonPlace& Place)
{
	const FMapProperty* Map = CastFieldChecked<FMapProperty>(Property);
	if (!Json.is_array())
	{
		return RefuseType(Place, Json, TEXT("an array of objects with Key and Value"));
	}
	if (Value != nullptr)
	{
		Map->GetOps().Empty(Value);
	}
	static const std::string KeyMember("Key");
	static const std::string ValueMember("Value");
	for (size_t Index = 0; Index < Json.size(); ++Index)
	{
		const FJson& Pair = Json[Index];
		const FJsonPlace PairPlace(Place, Index);
		if (!Pair.is_object() || Pair.size() != 2 || !Pair.contains(KeyMember) || !Pair.contains(ValueMember))
		{
			return RefuseType(PairPlace, Pair, TEXT("an object with Key and Value"));
		}
		PropertyReaderContainers::FScratch PairKey(Map->KeyProp);
		PropertyReaderContainers::FScratch PairValue(Map->ValueProp);
		if (!ReadValue(Map->KeyProp, Value != nullptr ? PairKey.Get() : nullptr, Pair[KeyMember], FJsonPlace(PairPlace, KeyMember)) ||
			!ReadValue(Map->ValueProp, Value != nullptr ? PairValue.Get() : nullptr, Pair[ValueMember], FJsonPlace(PairPlace, ValueMember)))
		{
			return false;
		}
		if (Value != nullptr)
		{
			Map->GetOps().Add(Value, PairKey.Get(), PairValue.Get());
		}
	}
	return true;
}
