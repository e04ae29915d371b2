// Copyright Velmorant. All Rights Reserved.

#include "PackageJson.h"

#include "HostProblems.h"

#include <algorithm>
#include <set>
#include <vector>

namespace PackageJson
{
	/** nlohmann's messages begin with their own error code. */
	FString WithoutCode(const char* What)
	{
		const std::string Message(What);
		const size_t CodeEnd = Message.find("] ");
		return ToString(CodeEnd == std::string::npos ? Message : Message.substr(CodeEnd + 2));
	}

	int32 LineOf(const std::string& Text, size_t Offset)
	{
		const auto End = Text.begin() + static_cast<std::ptrdiff_t>(std::min(Offset, Text.size()));
		return static_cast<int32>(std::count(Text.begin(), End, '\n')) + 1;
	}

	/** Finds keys that occur twice, of which the parser itself would silently drop one. */
	class FDuplicateKeys
	{
	public:
		void OnEvent(FJson::parse_event_t Event, const FJson& Value)
		{
			switch (Event)
			{
				case FJson::parse_event_t::object_start:
					Objects.emplace_back();
					break;
				case FJson::parse_event_t::object_end:
					Objects.pop_back();
					break;
				case FJson::parse_event_t::key:
					if (!Objects.back().insert(Value.get<std::string>()).second && Duplicate.empty())
					{
						Duplicate = Value.get<std::string>();
					}
					break;
				default:
					break;
			}
		}

		std::string Duplicate; // the first one found; empty when there is none

	private:
		std::vector<std::set<std::string>> Objects; // keys seen, of each open object
	};

	/** Stops the parser as soon as the "Class" of the outermost object is known. */
	class FClassFinder : public nlohmann::json_sax<FJson>
	{
	public:
		std::string Class;

		//~ Begin json_sax
		bool null() override { return Skip(); }
		bool boolean(bool) override { return Skip(); }
		bool number_integer(number_integer_t) override { return Skip(); }
		bool number_unsigned(number_unsigned_t) override { return Skip(); }
		bool number_float(number_float_t, const string_t&) override { return Skip(); }
		bool binary(binary_t&) override { return Skip(); }
		bool string(string_t& Value) override
		{
			if (bIsClass)
			{
				Class = Value;
				return false;
			}
			return true;
		}
		bool key(string_t& Key) override
		{
			bIsClass = Depth == 1 && Key == "Class";
			return true;
		}
		bool start_object(std::size_t) override { return Enter(); }
		bool end_object() override { return Leave(); }
		bool start_array(std::size_t) override { return Enter(); }
		bool end_array() override { return Leave(); }
		bool parse_error(std::size_t, const std::string&, const nlohmann::detail::exception&) override { return false; }
		//~ End json_sax

	private:
		bool Skip() { return !bIsClass; }
		bool Enter()
		{
			++Depth;
			return !bIsClass;
		}
		bool Leave()
		{
			--Depth;
			return true;
		}

		int32 Depth = 0;
		bool bIsClass = false; // the value that comes next is the class
	};
}

FString FJsonPlace::ToString() const
{
	if (Parent == nullptr)
	{
		return FString();
	}
	if (Key == nullptr)
	{
		return Parent->ToString() + TEXT("/") + FString::FromInt(static_cast<int32>(Index));
	}
	const FString Escaped =
		PackageJson::ToString(*Key).Replace(TEXT("~"), TEXT("~0"), ESearchCase::CaseSensitive).Replace(TEXT("/"), TEXT("~1"), ESearchCase::CaseSensitive);
	return Parent->ToString() + TEXT("/") + Escaped;
}

bool PackageJson::Parse(const std::string& Text, FJson& OutDocument, FJsonProblem& OutProblem)
{
	try
	{
		FDuplicateKeys Keys;
		OutDocument = FJson::parse(Text, [&Keys](int, FJson::parse_event_t Event, FJson& Value) {
			Keys.OnEvent(Event, Value);
			return true;
		});
		if (!Keys.Duplicate.empty())
		{
			OutProblem.Message = FString::Printf(TEXT("the key \"%s\" occurs twice in one object"), *ToString(Keys.Duplicate));
			OutProblem.Remedy = TEXT("Keep one of the two; both versions of a merge may have been left in the file.");
			return false;
		}
		return true;
	}
	catch (const FJson::parse_error& Error)
	{
		OutProblem.Line = LineOf(Text, Error.byte);
		OutProblem.Message = FString(TEXT("not valid JSON: ")) + WithoutCode(Error.what());
	}
	catch (const FJson::exception& Error)
	{
		OutProblem.Message = FString(TEXT("not valid JSON: ")) + WithoutCode(Error.what());
	}
	OutProblem.Remedy = TEXT("Mend the file in a text editor or take it back from version control.");
	return false;
}

bool PackageJson::ReadClass(const std::string& Text, std::string& OutClass)
{
	FClassFinder Finder;
	FJson::sax_parse(Text, &Finder);
	OutClass = Finder.Class;
	return !OutClass.empty();
}

bool PackageJson::Print(const FJson& Document, std::string& OutText)
{
	try
	{
		OutText = Document.dump(1, '\t') + "\n";
		return true;
	}
	catch (const FJson::exception&)
	{
		return false;
	}
}

void PackageJson::Report(const FString& File, const FJsonProblem& Problem)
{
	const FString Place = Problem.Pointer.IsEmpty() ? FString() : Problem.Pointer + TEXT(": ");
	HostProblems::Report(File, Problem.Line, Place + Problem.Message, Problem.Remedy);
}

FString PackageJson::ToString(const std::string& Utf8)
{
	return FString(UTF8_TO_TCHAR(Utf8.c_str()));
}

std::string PackageJson::FromString(const FString& Text)
{
	return std::string(TCHAR_TO_UTF8(*Text));
}
