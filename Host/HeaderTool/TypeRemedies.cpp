// Copyright Velmorant. All Rights Reserved.

#include "TypeRemedies.h"

#include "TextTools.h"

#include <map>

namespace HeaderTool
{
	std::string FindTypeRemedy(const FTypeUse& Type)
	{
		const std::string First = Type.Arguments.empty() ? "" : Type.Arguments.front().Spell();
		const std::string Plain = StartsWith(Type.Name, "std::") ? Type.Name.substr(5) : Type.Name;
		if (Plain == "vector" || Plain == "list" || Plain == "deque" || Plain == "array" || Plain == "span" || Plain == "TStaticArray" || Plain == "TArrayView")
		{
			return "use TArray<" + First + ">.";
		}
		if (Plain == "set" || Plain == "unordered_set")
		{
			return "use TSet<" + First + ">.";
		}
		if (Plain == "map" || Plain == "unordered_map" || Plain == "TMultiMap" || Plain == "TSortedMap")
		{
			return "use TMap<…>.";
		}
		if (Plain == "string" || Plain == "string_view" || Plain == "wstring" || Plain == "FStringView" || Plain == "TCHAR" || Plain == "char" || Plain == "wchar_t")
		{
			return "use FString.";
		}
		static const std::map<std::string, std::string> Numbers = {
			{"short", "int16"}, {"unsigned", "uint32"}, {"unsigned int", "uint32"}, {"long", "int64"}, {"long long", "int64"}, {"unsigned long", "uint64"},
			{"unsigned long long", "uint64"}, {"unsigned char", "uint8"}, {"signed char", "int8"}, {"unsigned short", "uint16"}, {"size_t", "int64"},
			{"SIZE_T", "int64"}, {"int8_t", "int8"}, {"int16_t", "int16"}, {"int32_t", "int32"}, {"int64_t", "int64"}, {"uint8_t", "uint8"},
			{"uint16_t", "uint16"}, {"uint32_t", "uint32"}, {"uint64_t", "uint64"}, {"long double", "double"}};
		const auto Number = Numbers.find(Plain);
		if (Number != Numbers.end())
		{
			return "use " + Number->second + ".";
		}
		if (Plain == "TStrongObjectPtr")
		{
			return "use TObjectPtr<" + First + ">.";
		}
		if (Plain == "TSharedPtr" || Plain == "TSharedRef" || Plain == "TWeakPtr" || Plain == "TUniquePtr" || Plain == "shared_ptr" || Plain == "unique_ptr")
		{
			return "shared pointers are not reflected; leave the macro out, or use TObjectPtr to a UObject.";
		}
		if (Plain == "TScriptInterface")
		{
			return "use TObjectPtr<UObject>, and Cast<" + First + ">() what it holds.";
		}
		if (Plain == "TSoftClassPtr")
		{
			return "use TSoftObjectPtr<UClass>.";
		}
		if (Plain == "TFunction" || Plain == "TFunctionRef" || Plain == "function")
		{
			return "use a dynamic delegate.";
		}
		if (Plain == "TOptional" || Plain == "optional" || Plain == "TVariant" || Plain == "TTuple" || Plain == "TPair" || Plain == "pair")
		{
			return "put the values into a USTRUCT.";
		}
		if (Plain == "FGuid" || Plain == "FDateTime" || Plain == "FTimespan")
		{
			return "the engine reflects it, this host does not; keep it as FString or int64.";
		}
		return "";
	}
}
