// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/UnrealString.h"
#include "String/FormatStringSan.h"

namespace UE::String::Private
{
	/**
	 * Appends a message whose format the compiler has checked against the arguments. Args ends with one of kind None.
	 * A null string prints as "(null)".
	 */
	void AppendFormatted(FString& Out, const TCHAR* Format, const UE::Core::FFormatArgument* Args);
}
