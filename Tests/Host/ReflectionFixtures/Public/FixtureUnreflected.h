// Copyright Velmorant. All Rights Reserved.
// What may stand in a reflected header without being reflected itself.

#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "FixtureUnreflected.generated.h"

#define FIXTURE_UNKNOWN_MACRO(Name) int32 Name##Counter = 0;

class FFixtureForwardDeclared;
template<typename T>
struct TFixtureBox
{
	T Value;
};

namespace FixtureUnreflected
{
	inline constexpr int32 Limit = 3;

	struct FHelper
	{
		int32 Value = Limit;
	};
}

extern "C"
{
	typedef int FixtureInteger;
}

enum class EFixtureNotReflected : uint16
{
	One
};

UCLASS()
class REFLECTIONFIXTURES_API UFixtureUnreflected : public UObject
{
	GENERATED_BODY()

	friend class FFixtureForwardDeclared;
	friend struct FixtureUnreflected::FHelper;

	using FNumbers = TArray<int32>;
	typedef TMap<FName, FNumbers> FNumbersByName;

	static constexpr int32 Constants[] = {1, 2, 3};
	static inline TArray<TArray<int32>> Nested = {{1, 2}, {3}};

	FIXTURE_UNKNOWN_MACRO(First)
	UPROPERTY()
	int32 AfterMacro = 21;

	uint8 bBit : 1 = 0;
	uint8 bOtherBit : 1 = 1;
	int32 Array[3] = {1, 2, 3};

	struct FNode
	{
		TArray<FNode> Children;
		int32 Count() const { return Children.Num(); }
	} Root;

	enum
	{
		Anonymous = 5
	};

	union
	{
		int32 AsInteger = 0;
		float AsFloat;
	};

public:
	template<typename T, int32 N = (1 > 0 ? 3 : 2)>
	static T Identity(T Value)
	{
		return Value;
	}

	UFixtureUnreflected& operator()(int32 Number)
	{
		AfterMacro = Number;
		return *this;
	}
	bool operator==(const UFixtureUnreflected& Other) const { return this == &Other; }
	explicit operator bool() const { return true; }

	TFunction<void(int32, const FString&)> Callback = [](int32, const FString&) {};
	FString Braces = TEXT("} ) ] // no comment /* nor this");
	const char* Raw = R"raw(UPROPERTY() " ) })raw";
	char Quote = '"';
	int64 Million = 1'000'000;

#if defined(FIXTURE_NEVER_DEFINED)
	void OnlyThere()
	{
#else
	void OnlyHere(){
#endif
	}

#if WITH_EDITOR
	UFUNCTION()
	int32 InEditor() const
	{
		return AfterMacro;
	}
#else
	int32 NotInEditor() const;
#endif

#if WITH_EDITORONLY_DATA
	UPROPERTY()
	int32 EditorOnly = 22;
#endif
};
