// Copyright Velmorant. All Rights Reserved.

#include "FixtureInterfaces.h"
#include "HostAssertions.h"
#include "ObjectSystemTest.h"
#include "Templates/Casts.h"

class ReflectedInterfaces : public FObjectSystemTest
{
protected:
	/** The source text of the check that fails in Call; empty if none does. */
	static std::string FailedCheckOf(const TFunction<void()>& Call)
	{
		try
		{
			Call();
		}
		catch (const FHostAssertionFailure& Failure)
		{
			return Failure.GetExpression();
		}
		return "";
	}
};

TEST_F(ReflectedInterfaces, DispatchToNativeImplementers)
{
	int32 Length = 0;
	UFixtureGreeterObject* Greeter = NewObject<UFixtureGreeterObject>();
	EXPECT_EQ(IFixtureGreeter::Execute_Greet(Greeter, TEXT("Ann"), Length), FString(TEXT("Good day, Ann")));
	EXPECT_EQ(Length, 3);
	EXPECT_EQ(IFixtureGreeter::Execute_GetAge(Greeter), 30) << "the interface's own body is the default";
	EXPECT_EQ(IFixtureGreeter::Execute_GetAge(NewObject<UFixtureDerivedGreeterObject>()), 31);
	IFixtureGreeter::Execute_Wave(Greeter, nullptr); // nobody implements it
}

TEST_F(ReflectedInterfaces, DispatchThroughDerivedInterfaces)
{
	UFixturePoliteObject* Polite = NewObject<UFixturePoliteObject>();
	int32 Length = 5;
	IFixturePoliteGreeter::Execute_Bow(Polite);
	EXPECT_EQ(Polite->NumBows, 1);
	EXPECT_EQ(IFixtureGreeter::Execute_Greet(Polite, TEXT("Ann"), Length), FString()) << "the generated body returns a default value";
	EXPECT_TRUE(Polite->GetClass()->ImplementsInterface(UFixtureGreeter::StaticClass()));
}

TEST_F(ReflectedInterfaces, DispatchToScripts)
{
	int32 NumWaves = 0;
	UClass* Native = Derive(UFixtureGreeterObject::StaticClass());
	HostObjects::AddScriptFunction(Native, TEXT("GetAge"), [](UObject*, FFrame&, void* Result) { *static_cast<int32*>(Result) = 99; });
	HostObjects::AddScriptFunction(Native, TEXT("Wave"), [&NumWaves](UObject*, FFrame&, void*) { ++NumWaves; });
	UObject* Object = NewObject<UObject>(GetTransientPackage(), Native);
	EXPECT_EQ(IFixtureGreeter::Execute_GetAge(Object), 99);
	IFixtureGreeter::Execute_Wave(Object, Object);
	EXPECT_EQ(NumWaves, 1);

	UClass* Script = HostObjects::DeriveClass(UFixtureSilentObject::StaticClass(), TEXT("Script_C"), GetTransientPackage());
	HostObjects::AddScriptInterface(Script, UFixtureGreeter::StaticClass());
	HostObjects::AddScriptFunction(Script, TEXT("GetAge"), [](UObject*, FFrame&, void* Result) { *static_cast<int32*>(Result) = 7; });
	UObject* Scripted = NewObject<UObject>(GetTransientPackage(), Script);
	EXPECT_TRUE(Script->ImplementsInterface(UFixtureGreeter::StaticClass()));
	EXPECT_EQ(Cast<IFixtureGreeter>(Scripted), nullptr);
	EXPECT_EQ(IFixtureGreeter::Execute_GetAge(Scripted), 7);
	int32 Length = 4;
	EXPECT_EQ(IFixtureGreeter::Execute_Greet(Scripted, TEXT("Ann"), Length), FString()) << "a function that the script leaves out does nothing";
}

TEST_F(ReflectedInterfaces, AreFoundByCasts)
{
	UFixtureGreeterObject* Greeter = NewObject<UFixtureDerivedGreeterObject>();
	IFixtureGreeter* Interface = Cast<IFixtureGreeter>(static_cast<UObject*>(Greeter));
	ASSERT_NE(Interface, nullptr);
	EXPECT_EQ(Interface->NotReflected(), 5);
	EXPECT_EQ(Interface->_getUObject(), Greeter);
	EXPECT_EQ(Cast<UFixtureGreeterObject>(Interface), Greeter);
	EXPECT_EQ(Cast<IFixtureGreeter>(static_cast<UObject*>(NewObject<UFixtureSilentObject>())), nullptr);
	EXPECT_TRUE(UFixtureGreeter::StaticClass()->HasAnyClassFlags(CLASS_Interface));
	EXPECT_TRUE(UFixtureGreeter::StaticClass()->HasAnyClassFlags(CLASS_Abstract));
}

TEST_F(ReflectedInterfaces, RefuseWhatWouldPassTheScriptBy)
{
	UFixtureGreeterObject* Greeter = NewObject<UFixtureGreeterObject>();
	UObject* Silent = NewObject<UFixtureSilentObject>();
	int32 Length = 0;
	struct FCase
	{
		const char* Behaviour;
		TFunction<void()> Call;
		std::string Expression;
	};
	const FCase Cases[] = {
		{"direct call", [&]() { Greeter->Greet(TEXT("Ann"), Length); },
			"0 && \"Do not directly call Event functions in Interfaces. Call Execute_Greet instead.\""},
		{"direct call of an event without native body", [&]() { Greeter->Wave(nullptr); },
			"0 && \"Do not directly call Event functions in Interfaces. Call Execute_Wave instead.\""},
		{"no object", []() { IFixtureGreeter::Execute_GetAge(nullptr); },
			"O != NULL"},
		{"object of another kind", [&]() { IFixtureGreeter::Execute_GetAge(Silent); },
			"O->GetClass()->ImplementsInterface(UFixtureGreeter::StaticClass())"},
	};
	for (const FCase& Case : Cases)
	{
		SCOPED_TRACE(Case.Behaviour);
		EXPECT_EQ(FailedCheckOf(Case.Call), Case.Expression);
	}
}
