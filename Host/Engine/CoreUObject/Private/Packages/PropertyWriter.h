// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "PackageJson.h"

#include <memory>
#include <unordered_map>
#include "Templates/Function.h"

class FProperty;
class UEnum;
class UObject;
class UScriptStruct;
class UStruct;

/** Turns property values into JSON. Lives for one save. */
class FPropertyWriter
{
public:
	/** Called with every object that a value refers to, other than by a soft path. */
	using FOnReference = TFunction<void(UObject*)>;

	explicit FPropertyWriter(FOnReference InOnReference = nullptr)
		: OnReference(MoveTemp(InOnReference))
	{
	}

	/** The properties of Object that differ from those of Defaults, which is of Object's class or a parent of it. */
	FJson WriteDifferences(const UObject* Object, const UObject* Defaults);

	/** All values of the property: one, or an array for a C array. Container is the object or struct around it. */
	FJson WriteProperty(const FProperty* Property, const void* Container);

	/** References into From are written as if they led to the same place in To: so values of a template compare equal to those made from it. */
	void SetAlias(const UObject* From, const UObject* To);

private:
	FJson WriteValue(const FProperty* Property, const void* Value);
	FJson WriteNumber(const FProperty* Property, const void* Value);
	FJson WriteStruct(const UScriptStruct* Struct, const void* Value);
	FJson WriteArray(const FProperty* Property, const void* Value);
	FJson WriteSet(const FProperty* Property, const void* Value);
	FJson WriteMap(const FProperty* Property, const void* Value);
	FJson WriteReference(UObject* Object);
	const FJson& GetStructDefaults(const UScriptStruct* Struct);

	FOnReference OnReference;
	const UObject* AliasFrom = nullptr;
	const UObject* AliasTo = nullptr;
	std::unordered_map<const UScriptStruct*, FJson> StructDefaults; // every stored field of a fresh value; each stays in place
	std::unique_ptr<FPropertyWriter> DefaultsWriter; // made when first needed
};
