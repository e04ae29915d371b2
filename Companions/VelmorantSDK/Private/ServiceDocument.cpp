// Copyright Velmorant. All Rights Reserved.

#include "ServiceDocument.h"

#include <algorithm>
#include <limits>
#include <nlohmann/json.hpp>
#include <type_traits>
#include <utility>

/** Takes the parser's events. */
class FServiceDocumentBuilder
{
public:
	FServiceDocumentBuilder(FServiceDocument& InDocument, std::string_view InJson)
		: Document(InDocument)
		, Json(InJson)
	{
	}

	bool null() { return Add(EKind::Other); }
	bool boolean(bool) { return Add(EKind::Other); }
	bool number_integer(std::int64_t Number) { return AddNumber(EKind::Integer, static_cast<double>(Number)); }
	bool number_unsigned(std::uint64_t Number) { return AddNumber(EKind::Integer, static_cast<double>(Number)); }
	bool number_float(double Number, const std::string&) { return AddNumber(EKind::Float, Number); }
	bool string(std::string& Text)
	{
		Add(EKind::Text);
		Document.Values.back().Text = Keep(Text);
		return true;
	}
	bool binary(nlohmann::json::binary_t&) { return false; } // not in texts
	bool start_object(std::size_t) { return Enter(EKind::Object); }
	bool key(std::string& Name)
	{
		NextName = Keep(Name);
		return true;
	}
	bool end_object() { return Leave(); }
	bool start_array(std::size_t) { return Enter(EKind::Array); }
	bool end_array() { return Leave(); }

	template<typename ErrorType>
	bool parse_error(std::size_t Position, const std::string& Token, const ErrorType&)
	{
		// What stands there is not repeated: it may be a password.
		const bool bNumber = std::is_same_v<ErrorType, nlohmann::json::out_of_range>;
		const size_t Length = bNumber ? Token.size() : 1; // Position is behind what is at fault
		const std::string_view Before = Json.substr(0, std::min(Position > Length ? Position - Length : 0, Json.size()));
		const std::string Line = std::to_string(1 + std::count(Before.begin(), Before.end(), '\n'));
		const std::string Column = std::to_string(Before.size() - (Before.rfind('\n') + 1) + 1);
		throw FServiceDocumentError("line " + Line + ": this is not JSON: " + (bNumber ? "the number in column " + Column + " is out of range" : "what stands in column " + Column + " is not expected"));
	}

private:
	using EKind = FServiceDocument::EKind;

	bool Add(EKind Kind)
	{
		FServiceDocument::FValue& Value = Document.Values.emplace_back();
		Value.Kind = Kind;
		Value.Name = std::exchange(NextName, {});
		Value.End = static_cast<uint32>(Document.Values.size());
		return true;
	}

	bool AddNumber(EKind Kind, double Number)
	{
		Add(Kind);
		Document.Values.back().Number = Number;
		return true;
	}

	bool Enter(EKind Kind)
	{
		Open.push_back(Document.Values.size());
		return Add(Kind);
	}

	bool Leave()
	{
		Document.Values[Open.back()].End = static_cast<uint32>(Document.Values.size());
		Open.pop_back();
		return true;
	}

	FServiceDocument::FPiece Keep(const std::string& Text)
	{
		const FServiceDocument::FPiece Kept{static_cast<uint32>(Document.Texts.size()), static_cast<uint32>(Text.size())};
		Document.Texts.append(Text.c_str(), Text.size() + 1);
		return Kept;
	}

	FServiceDocument& Document;
	std::string_view Json;
	FServiceDocument::FPiece NextName = {}; // of the value that comes next
	std::vector<size_t> Open; // indices of objects and arrays from the root down
};

FServiceDocument::FServiceDocument(std::string_view Json)
{
	Texts.reserve(Json.size());
	FServiceDocumentBuilder Builder(*this, Json);
	nlohmann::json::sax_parse(Json.begin(), Json.end(), &Builder);
}

constexpr double MaxSeconds = 1e9; // some thirty years

void FServiceDocumentValue::Fail(const std::string& Problem) const
{
	throw FServiceDocumentError((Parent ? GetPointer() : "the document") + ": " + Problem);
}

std::string FServiceDocumentValue::GetPointer() const
{
	if (!Parent)
	{
		return {};
	}
	const bool bElement = Parent->Value.Kind == FServiceDocument::EKind::Array;
	return Parent->GetPointer() + "/" + (bElement ? std::to_string(OwnIndex) : std::string(OwnName));
}

void FServiceDocumentValue::RequireObject() const
{
	if (Value.Kind != FServiceDocument::EKind::Object)
	{
		Fail("must be an object");
	}
}

void FServiceDocumentValue::RequireArray() const
{
	if (Value.Kind != FServiceDocument::EKind::Array)
	{
		Fail("must be an array");
	}
}

void FServiceDocumentValue::AllowMembers(std::initializer_list<std::string_view> Names) const
{
	RequireObject();
	for (const FServiceDocument::FValue* Member = GetFirst(); Member < GetEnd(); Member = GetNext(Member))
	{
		const std::string_view Name = Document.GetText(Member->Name);
		if (std::find(Names.begin(), Names.end(), Name) == Names.end())
		{
			FServiceDocumentValue(*this, *Member, Name, 0).Fail("is not known here; is it misspelt?");
		}
	}
}

const FServiceDocument::FValue* FServiceDocumentValue::Find(std::string_view Name) const
{
	const FServiceDocument::FValue* Found = nullptr;
	if (Value.Kind == FServiceDocument::EKind::Object)
	{
		for (const FServiceDocument::FValue* Member = GetFirst(); Member < GetEnd(); Member = GetNext(Member))
		{
			Found = Document.GetText(Member->Name) == Name ? Member : Found;
		}
	}
	return Found;
}

FServiceDocumentValue FServiceDocumentValue::Get(std::string_view Name) const
{
	RequireObject();
	const FServiceDocument::FValue* Found = Find(Name);
	if (!Found)
	{
		Fail("misses \"" + std::string(Name) + "\"");
	}
	return FServiceDocumentValue(*this, *Found, Name, 0);
}

FString FServiceDocumentValue::AsString() const
{
	if (Value.Kind != FServiceDocument::EKind::Text)
	{
		Fail("must be a text");
	}
	const FString Result(UTF8_TO_TCHAR(Document.GetText(Value.Text).data()));
	if (Result.Len() > MaxTextLength)
	{
		Fail("must not be longer than " + std::to_string(MaxTextLength) + " characters");
	}
	return Result;
}

FString FServiceDocumentValue::GetName(std::string_view Name) const
{
	const FString Result = GetString(Name);
	if (Result.IsEmpty())
	{
		Get(Name).Fail("must not be empty");
	}
	return Result;
}

double FServiceDocumentValue::GetSeconds(std::string_view Name, double Default) const
{
	if (!Has(Name))
	{
		return Default;
	}
	const FServiceDocumentValue Member = Get(Name);
	const bool bNumber = Member.Value.Kind == FServiceDocument::EKind::Integer || Member.Value.Kind == FServiceDocument::EKind::Float;
	if (!bNumber || !(Member.Value.Number >= 0.0 && Member.Value.Number <= MaxSeconds))
	{
		Member.Fail("must be a number of seconds, at least 0 and at most 1000000000");
	}
	return Member.Value.Number;
}

int32 FServiceDocumentValue::GetInteger(std::string_view Name) const
{
	const FServiceDocumentValue Member = Get(Name);
	const bool bInRange = Member.Value.Kind == FServiceDocument::EKind::Integer && Member.Value.Number >= std::numeric_limits<int32>::min() && Member.Value.Number <= std::numeric_limits<int32>::max();
	if (!bInRange)
	{
		Member.Fail("must be a whole number of 32 bits");
	}
	return static_cast<int32>(Member.Value.Number);
}
