// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/Array.h"
#include "Containers/UnrealString.h"

class FProperty;
class UFunction;
class UObject;

/** One call of a reflected function with arguments given as text. */
class FFunctionCall
{
public:
	explicit FFunctionCall(UFunction& InFunction);
	~FFunctionCall();
	FFunctionCall(const FFunctionCall&) = delete;
	FFunctionCall& operator=(const FFunctionCall&) = delete;

	/** @return what is wrong with the arguments; empty when all are set. */
	FString SetArguments(const TArray<FString>& Texts);

	void Run(UObject& Object);

	/** The result, else the first parameter that the function writes to; empty without either. */
	FString GetResult() const;

	/** "Name: FString, Seconds: float": what is to be given. */
	FString DescribeParameters() const;

private:
	TArray<FProperty*> GetInputs() const;
	void* GetBlock() { return Block.GetData(); }
	const void* GetBlock() const { return Block.GetData(); }

	UFunction& Function;
	TArray<uint64> Block; // the parameters, aligned for any of them
};
