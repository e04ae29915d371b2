// Copyright Velmorant. All Rights Reserved.

#include "PackageJson.h"

#include "HostJsonFault.h"
#include "HostProblems.h"

#include <vector>

namespace PackageJson
{
	/** Builds a document as it is parsed, each value once and in its place, and finds keys that occur twice in an object. */
	class FDocumentBuilder final : public nlohmann::json_sax<FJson>
	{
	public:
		FDocumentBuilder(const std::string& InText, FJson& OutDocument)
			: Text(InText)
			, Next(&OutDocument)
		{
		}

		FJsonProblem Problem; // why parsing ended early
		TOptional<FString> Duplicate; // the first such key

		//~ Begin json_sax
		bool null() override { return Put(nullptr); }
		bool boolean(bool bValue) override { return Put(bValue); }
		bool number_integer(number_integer_t Value) override { return Put(Value); }
		bool number_unsigned(number_unsigned_t Value) override { return Put(Value); }
		bool number_float(number_float_t Value, const string_t&) override { return Put(Value); }
		bool string(string_t& Value) override { return Put(Value); }
		bool binary(binary_t&) override { return false; } // not in texts
		bool start_object(std::size_t) override { return Enter(FJson::object()); }
		bool key(string_t& Key) override
		{
			const auto [Member, bNew] = Open.back()->get_ref<FJson::object_t&>().emplace(Key, nullptr);
			if (!bNew && !Duplicate.IsSet())
			{
				Duplicate = ToString(Key);
			}
			Next = &Member->second;
			return true;
		}
		bool end_object() override { return Leave(); }
		bool start_array(std::size_t) override { return Enter(FJson::array()); }
		bool end_array() override { return Leave(); }
		bool parse_error(std::size_t, const std::string&, const nlohmann::detail::exception&) override
		{
			const FHostJsonFault Fault = HostJsonFault::Find(Text);
			Problem.Line = Fault.Line;
			Problem.Message = FString(TEXT("not valid JSON: ")) + Fault.Message;
			Problem.Remedy = TEXT("Mend the file in a text editor or take it back from version control.");
			return false;
		}
		//~ End json_sax

	private:
		template<typename ValueType>
		FJson& Place(ValueType&& Value)
		{
			if (!Open.empty() && Open.back()->is_array())
			{
				return Open.back()->get_ref<FJson::array_t&>().emplace_back(std::forward<ValueType>(Value));
			}
			return *Next = std::forward<ValueType>(Value);
		}

		template<typename ValueType>
		bool Put(ValueType&& Value)
		{
			Place(std::forward<ValueType>(Value));
			return true;
		}

		bool Enter(FJson&& Empty)
		{
			Open.push_back(&Place(std::move(Empty)));
			return true;
		}

		bool Leave()
		{
			Open.pop_back();
			return true;
		}

		const std::string& Text;
		FJson* Next; // where the value goes that comes next, unless it is an element of an array
		std::vector<FJson*> Open; // objects and arrays from the root down; they stay in place while something in them is open
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
	FHostJsonFault Fault;
	if (HostJsonFault::IsTooDeep(Text, Fault))
	{
		OutProblem = {Fault.Line, FString(), Fault.Message, TEXT("Make it flatter.")};
		return false;
	}
	FDocumentBuilder Builder(Text, OutDocument);
	if (!FJson::sax_parse(Text, &Builder))
	{
		OutProblem = Builder.Problem;
		return false;
	}
	if (Builder.Duplicate.IsSet())
	{
		OutProblem.Message = FString::Printf(TEXT("the key \"%s\" occurs twice in one object"), **Builder.Duplicate);
		OutProblem.Remedy = TEXT("Keep one of the two; both versions of a merge may have been left in the file.");
		return false;
	}
	return true;
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
