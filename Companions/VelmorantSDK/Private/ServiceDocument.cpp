// Copyright Velmorant. All Rights Reserved.

#include "ServiceDocument.h"

#include <algorithm>
#include <cmath>
#include <limits>

void FServiceDocumentValue::Fail(const std::string& Problem) const
{
	throw FServiceDocumentError((Pointer.empty() ? "the document" : Pointer) + ": " + Problem);
}

void FServiceDocumentValue::RequireObject() const
{
	if (!Value.is_object())
	{
		Fail("must be an object");
	}
}

void FServiceDocumentValue::AllowMembers(std::initializer_list<const char*> Names) const
{
	RequireObject();
	for (const auto& [Name, Member] : Value.items())
	{
		if (std::find(Names.begin(), Names.end(), Name) == Names.end())
		{
			FServiceDocumentValue(Member, Pointer + "/" + Name).Fail("is not known here; is it misspelt?");
		}
	}
}

FServiceDocumentValue FServiceDocumentValue::Get(const char* Name) const
{
	RequireObject();
	const auto Found = Value.find(Name);
	if (Found == Value.end())
	{
		Fail(std::string("misses \"") + Name + "\"");
	}
	return FServiceDocumentValue(*Found, Pointer + "/" + Name);
}

FString FServiceDocumentValue::AsString() const
{
	if (!Value.is_string())
	{
		Fail("must be a text");
	}
	const FString Result(UTF8_TO_TCHAR(Value.get_ref<const std::string&>().c_str()));
	if (Result.Len() > MaxTextLength)
	{
		Fail("must not be longer than " + std::to_string(MaxTextLength) + " characters");
	}
	return Result;
}

FString FServiceDocumentValue::GetName(const char* Name) const
{
	const FString Result = GetString(Name);
	if (Result.IsEmpty())
	{
		Get(Name).Fail("must not be empty");
	}
	return Result;
}

double FServiceDocumentValue::GetSeconds(const char* Name, double Default) const
{
	if (!Has(Name))
	{
		return Default;
	}
	const FServiceDocumentValue Member = Get(Name);
	if (!Member.Value.is_number() || !(Member.Value.get<double>() >= 0.0))
	{
		Member.Fail("must be a number of seconds, at least 0");
	}
	return Member.Value.get<double>();
}

int32 FServiceDocumentValue::GetInteger(const char* Name) const
{
	const FServiceDocumentValue Member = Get(Name);
	const bool bInRange = Member.Value.is_number_integer() && Member.Value.get<double>() >= std::numeric_limits<int32>::min() && Member.Value.get<double>() <= std::numeric_limits<int32>::max();
	if (!bInRange)
	{
		Member.Fail("must be a whole number of 32 bits");
	}
	return Member.Value.get<int32>();
}
