// Copyright Velmorant. All Rights Reserved.

#include "JsonText.h"

template class nlohmann::basic_json<nlohmann::ordered_map>;

std::string JsonText::Print(const FJson& Json, int Indent)
{
	return Json.dump(Indent, ' ', false, FJson::error_handler_t::replace);
}

FJson JsonText::Parse(const std::string& Text)
{
	return FJson::parse(Text, nullptr, false);
}
