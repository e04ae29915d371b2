// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"

#include <initializer_list>
#include <nlohmann/json.hpp>
#include <stdexcept>
#include <string>

/** Something in a data file is not as it must be; what() says where and what. Never leaves the reader. */
class FServiceDocumentError : public std::runtime_error
{
public:
	using std::runtime_error::runtime_error;
};

/**
 * One value of a data file together with where it stands, so that every complaint can name its place.
 *
 * Each Get… throws FServiceDocumentError when the value is missing or of another kind.
 */
class FServiceDocumentValue
{
public:
	FServiceDocumentValue(const nlohmann::json& InValue, std::string InPointer)
		: Value(InValue)
		, Pointer(std::move(InPointer))
	{
	}

	/** Refuses members that nobody reads: they are most likely misspelt. */
	void AllowMembers(std::initializer_list<const char*> Names) const;

	bool Has(const char* Name) const { return Value.contains(Name); }
	FServiceDocumentValue Get(const char* Name) const;
	FString GetString(const char* Name) const { return Get(Name).AsString(); }

	/** The text may be missing, then Default is returned. */
	FString GetString(const char* Name, const FString& Default) const { return Has(Name) ? GetString(Name) : Default; }

	/** Not empty. */
	FString GetName(const char* Name) const;

	/** At least zero. */
	double GetSeconds(const char* Name, double Default) const;

	int32 GetInteger(const char* Name) const;
	FString AsString() const;

	/** Calls Function with each element of the array; a missing array has none. */
	template<typename FunctionType>
	void ForEach(const char* Name, FunctionType&& Function) const
	{
		if (!Has(Name))
		{
			return;
		}
		const FServiceDocumentValue Array = Get(Name);
		if (!Array.Value.is_array())
		{
			Array.Fail("must be an array");
		}
		for (size_t Index = 0; Index < Array.Value.size(); ++Index)
		{
			Function(FServiceDocumentValue(Array.Value[Index], Array.Pointer + "/" + std::to_string(Index)));
		}
	}

	[[noreturn]] void Fail(const std::string& Problem) const;

private:
	static constexpr int32 MaxTextLength = 1000; // key codes and names are looked up as FName, which holds 1023 characters

	void RequireObject() const;

	const nlohmann::json& Value;
	std::string Pointer; // JSON pointer; empty for the document itself
};
