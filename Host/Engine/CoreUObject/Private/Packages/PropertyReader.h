// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "PackageJson.h"

class FNumericProperty;
class FObjectPropertyBase;
class FProperty;
class UClass;
class UEnum;
class UObject;
class UScriptStruct;
class UStruct;

/**
 * Sets properties from JSON. Every function also works without a value to set and then only checks; what passes that check can be
 * set, except that a reference may turn out to lead nowhere: it becomes null and is noted.
 */
class FPropertyReader
{
public:
	/** Whether each member of Json is a property of Struct with a value of its type; Container is null, or takes the values. */
	bool ReadProperties(const UStruct* Struct, void* Container, const FJson& Json, const FJsonPlace& Place);

	/** Why the last call returned false. */
	const FJsonProblem& GetProblem() const { return Problem; }

	/** References that led nowhere. */
	const TArray<FJsonProblem>& GetUnresolved() const { return Unresolved; }

private:
	bool ReadProperty(const FProperty* Property, void* Container, const FJson& Json, const FJsonPlace& Place);
	bool ReadValue(const FProperty* Property, void* Value, const FJson& Json, const FJsonPlace& Place);
	bool ReadNumber(const FNumericProperty* Property, void* Value, const FJson& Json, const FJsonPlace& Place);
	bool ReadFloat(const FNumericProperty* Property, void* Value, const FJson& Json, const FJsonPlace& Place);
	bool ReadEnum(const UEnum* Enum, const FNumericProperty* Underlying, void* Value, const FJson& Json, const FJsonPlace& Place);
	bool ReadText(const FProperty* Property, void* Value, const FJson& Json, const FJsonPlace& Place);
	bool ReadStruct(const UScriptStruct* Struct, void* Value, const FJson& Json, const FJsonPlace& Place);
	bool ReadArray(const FProperty* Property, void* Value, const FJson& Json, const FJsonPlace& Place);
	bool ReadSet(const FProperty* Property, void* Value, const FJson& Json, const FJsonPlace& Place);
	bool ReadMap(const FProperty* Property, void* Value, const FJson& Json, const FJsonPlace& Place);
	bool ReadReference(const FProperty* Property, void* Value, const FJson& Json, const FJsonPlace& Place);

	/** The text of a JSON string; false, with the problem noted, for anything else. */
	bool ReadString(const FJson& Json, const FJsonPlace& Place, FString& OutText);

	/** Null, with the reference noted, when there is no such object of that class. */
	UObject* Resolve(const FString& Path, const UClass* WantedClass, const FJsonPlace& Place);

	void NoteUnresolved(const FJsonPlace& Place, const FString& Message);

	/** Notes the problem; always false. */
	bool Refuse(const FJsonPlace& Place, const FString& Message, const FString& Remedy);
	bool RefuseType(const FJsonPlace& Place, const FJson& Json, const TCHAR* Expected);

	FJsonProblem Problem;
	TArray<FJsonProblem> Unresolved;
};
