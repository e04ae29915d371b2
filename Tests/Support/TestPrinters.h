// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/Array.h"
#include "Containers/StringConv.h"
#include "Containers/UnrealString.h"
#include "Internationalization/Text.h"
#include "Math/Color.h"
#include "Math/Rotator.h"
#include "Math/Vector.h"
#include "Math/Vector2D.h"
#include "Misc/Optional.h"
#include "UObject/NameTypes.h"

#include <gtest/gtest.h>

#include <ostream>

// How failed expectations show the engine's types. To be included by every test that compares them.

inline void PrintTo(const FString& String, std::ostream* Stream)
{
	*Stream << '"' << TCHAR_TO_UTF8(*String) << '"';
}

inline void PrintTo(FStringView View, std::ostream* Stream)
{
	PrintTo(FString(View), Stream);
}

inline void PrintTo(FName Name, std::ostream* Stream)
{
	*Stream << TCHAR_TO_UTF8(*Name.ToString());
}

inline void PrintTo(const FText& Text, std::ostream* Stream)
{
	FString Written;
	FTextStringHelper::WriteToBuffer(Written, Text, true);
	*Stream << TCHAR_TO_UTF8(*Written);
}

inline void PrintTo(const FColor& Color, std::ostream* Stream)
{
	*Stream << TCHAR_TO_UTF8(*Color.ToHex());
}

inline void PrintTo(const FLinearColor& Color, std::ostream* Stream)
{
	*Stream << TCHAR_TO_UTF8(*Color.ToString());
}

inline void PrintTo(const FVector& Vector, std::ostream* Stream)
{
	*Stream << TCHAR_TO_UTF8(*Vector.ToString());
}

inline void PrintTo(const FVector2D& Vector, std::ostream* Stream)
{
	*Stream << "X=" << Vector.X << " Y=" << Vector.Y;
}

inline void PrintTo(const FRotator& Rotator, std::ostream* Stream)
{
	*Stream << "P=" << Rotator.Pitch << " Y=" << Rotator.Yaw << " R=" << Rotator.Roll;
}

template<typename T>
void PrintTo(const TArray<T>& Array, std::ostream* Stream)
{
	*Stream << '[';
	for (int32 Index = 0; Index < Array.Num(); ++Index)
	{
		*Stream << (Index ? ", " : "") << testing::PrintToString(Array[Index]);
	}
	*Stream << ']';
}

template<typename T>
void PrintTo(const TOptional<T>& Value, std::ostream* Stream)
{
	*Stream << (Value.IsSet() ? testing::PrintToString(Value.GetValue()) : "unset");
}
