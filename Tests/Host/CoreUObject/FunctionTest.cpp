// Copyright Velmorant. All Rights Reserved.

#include "ObjectSystemTest.h"
#include "TestDoor.h"
#include "TestWall.h"
#include "UObject/Stack.h"
#include "UObject/UnrealType.h"

namespace FunctionTest
{
	class Function : public FObjectSystemTest
	{
	protected:
		UClass* Derive(UClass* Parent) const { return HostObjects::DeriveClass(Parent, TEXT("Layout"), GetTransientPackage()); }
	};

	TEST_F(Function, CallsByNameReachTheNativeBody)
	{
		UTestDoor* Door = NewObject<UTestDoor>();
		struct
		{
			int32 A = 2;
			int32 B = 3;
			int32 ReturnValue = 0;
		} Sum;
		Door->ProcessEvent(Door->FindFunctionChecked(TEXT("add")), &Sum);
		EXPECT_EQ(Sum.ReturnValue, 5);

		struct
		{
			FString Text = TEXT("left|right");
			FString OutHead;
			FString OutTail;
		} Split;
		Door->ProcessEvent(Door->FindFunctionChecked(TEXT("Split")), &Split);
		EXPECT_EQ(Split.OutHead, TEXT("left"));
		EXPECT_EQ(Split.OutTail, TEXT("right"));

		struct
		{
			FString A = TEXT("a");
			FName B = TEXT("b");
			FString ReturnValue;
		} Join;
		UFunction* JoinFunction = UTestDoor::StaticClass()->FindFunctionByName(TEXT("Join"));
		EXPECT_TRUE(JoinFunction->HasAnyFunctionFlags(FUNC_Static));
		GetMutableDefault<UTestDoor>()->ProcessEvent(JoinFunction, &Join);
		EXPECT_EQ(Join.ReturnValue, TEXT("ab"));
	}

	TEST_F(Function, ParametersAreReflectedInOrder)
	{
		UFunction* Split = UTestDoor::StaticClass()->FindFunctionByName(TEXT("Split"));
		TArray<FString> Parameters;
		for (const FProperty* Parameter : TFieldRange<FProperty>(Split))
		{
			Parameters.Add(Parameter->GetName() + (Parameter->HasAnyPropertyFlags(CPF_OutParm) && !Parameter->HasAnyPropertyFlags(CPF_ConstParm) ? TEXT(" out") : TEXT("")));
		}
		EXPECT_EQ(Parameters, (TArray<FString>{TEXT("Text"), TEXT("OutHead out"), TEXT("OutTail out")}));
		EXPECT_EQ(Split->GetReturnProperty(), nullptr);
		EXPECT_NE(UTestDoor::StaticClass()->FindFunctionByName(TEXT("Add"))->GetReturnProperty(), nullptr);
		EXPECT_EQ(UTestDoor::StaticClass()->FindFunctionByName(TEXT("Missing")), nullptr);
	}

	TEST_F(Function, EventsWithoutAnAnswerDoNothing)
	{
		UTestDoor* Door = NewObject<UTestDoor>();
		Door->OnPainted(TEXT("red"), 2);
		EXPECT_EQ(Door->CountHinges(), 0);
		EXPECT_EQ(Utf8(Door->Describe(3)), "door 3");
		EXPECT_EQ(Utf8(NewObject<UTestSlidingDoor>()->Describe(3)), "sliding door 3");
	}

	TEST_F(Function, ADerivedClassAnswersEventsByScript)
	{
		UClass* Class = Derive(UTestDoor::StaticClass());
		TArray<FString> Seen;
		HostObjects::AddScriptFunction(Class, TEXT("OnPainted"), [&Seen](UObject*, FFrame& Stack, void*) {
			const FProperty* Colour = Stack.Node->FindPropertyByName(TEXT("Colour"));
			const FProperty* Coats = Stack.Node->FindPropertyByName(TEXT("Coats"));
			Seen.Add(*Colour->ContainerPtrToValuePtr<FString>(Stack.Locals) + LexToString(*Coats->ContainerPtrToValuePtr<int32>(Stack.Locals)));
		});
		HostObjects::AddScriptFunction(Class, TEXT("CountHinges"), [](UObject*, FFrame&, void* Result) { *static_cast<int32*>(Result) = 4; });
		HostObjects::AddScriptFunction(Class, TEXT("Describe"), [](UObject* Context, FFrame&, void* Result) {
			*static_cast<FString*>(Result) = TEXT("scripted");
			EXPECT_EQ(Context->GetClass()->GetName(), TEXT("Layout"));
		});

		UTestDoor* Door = NewObject<UTestDoor>(GetTransientPackage(), Class);
		Door->OnPainted(TEXT("red"), 2);
		EXPECT_EQ(Seen, (TArray<FString>{TEXT("red2")}));
		EXPECT_EQ(Door->CountHinges(), 4);
		EXPECT_EQ(Utf8(Door->Describe(1)), "scripted");
		EXPECT_EQ(Utf8(NewObject<UTestDoor>()->Describe(1)), "door 1") << "the native class is as before";
		EXPECT_TRUE(Door->IsA<UTestDoor>());
		EXPECT_FALSE(Class->HasAnyClassFlags(CLASS_Native));
	}

	TEST_F(Function, ADerivedClassIsKeptByItsObjectsAndGoesWithThem)
	{
		TWeakObjectPtr<UClass> Class = Derive(UTestWall::StaticClass());
		HostObjects::AddScriptFunction(Class.Get(), TEXT("Extra"), [](UObject*, FFrame&, void*) {});
		Class->GetDefaultObject<UTestWall>()->Number = 11;
		UTestWall* Wall = NewObject<UTestWall>(GetTransientPackage(), Class.Get());
		Wall->AddToRoot();
		HostObjects::CollectGarbage();
		ASSERT_TRUE(Class.IsValid());
		EXPECT_NE(Wall->FindFunction(TEXT("Extra")), nullptr);
		EXPECT_EQ(NewObject<UTestWall>(GetTransientPackage(), Class.Get())->Number, 11);
		Wall->RemoveFromRoot();
		HostObjects::CollectGarbage();
		EXPECT_FALSE(Class.IsValid());
	}

	TEST_F(Function, InterfacesReachNativeAndScriptedImplementers)
	{
		UTestDoor* Door = NewObject<UTestSlidingDoor>();
		EXPECT_TRUE(Door->GetClass()->ImplementsInterface(UTestOpenable::StaticClass()));
		ASSERT_NE(Cast<ITestOpenable>(Door), nullptr);
		EXPECT_EQ(Cast<UTestDoor>(Cast<ITestOpenable>(Door)), Door);
		EXPECT_EQ(Utf8(ITestOpenable::Execute_Open(Door, TEXT("Ann"), 5)), "Ann slides");
		EXPECT_EQ(Utf8(ITestOpenable::Execute_Open(NewObject<UTestDoor>(), TEXT("Ann"), 5)), "Ann opens by 5");

		UClass* Class = Derive(UTestWall::StaticClass());
		HostObjects::AddScriptInterface(Class, UTestOpenable::StaticClass());
		HostObjects::AddScriptFunction(Class, TEXT("Open"), [](UObject*, FFrame& Stack, void* Result) {
			*static_cast<FString*>(Result) = *reinterpret_cast<FString*>(Stack.Locals) + TEXT(" breaks through");
		});
		UObject* Wall = NewObject<UTestWall>(GetTransientPackage(), Class);
		EXPECT_TRUE(Class->ImplementsInterface(UTestOpenable::StaticClass()));
		EXPECT_EQ(Cast<ITestOpenable>(Wall), nullptr) << "only native implementers can be cast to";
		EXPECT_EQ(Wall->GetInterfaceAddress(UTestOpenable::StaticClass()), Wall);
		EXPECT_EQ(Utf8(ITestOpenable::Execute_Open(Wall, TEXT("Bo"), 0)), "Bo breaks through");
		EXPECT_FALSE(UTestWall::StaticClass()->ImplementsInterface(UTestOpenable::StaticClass()));
	}

	TEST_F(Function, MisuseOfInterfacesStopsWithThePromisedText)
	{
		UObject* Wall = NewObject<UTestWall>();
		EXPECT_THAT([] { ITestOpenable::Execute_Open(nullptr, TEXT(""), 0); }, testing::ThrowsMessage<FHostAssertionFailure>(testing::HasSubstr("Assertion failed: O != NULL ")));
		EXPECT_THAT([Wall] { ITestOpenable::Execute_Open(Wall, TEXT(""), 0); },
			testing::ThrowsMessage<FHostAssertionFailure>(testing::HasSubstr("Assertion failed: O->GetClass()->ImplementsInterface(UTestOpenable::StaticClass()) ")));
		ITestOpenable* Door = NewObject<UTestDoor>();
		EXPECT_THAT([Door] { Door->Open(TEXT(""), 0); },
			testing::ThrowsMessage<FHostAssertionFailure>(testing::HasSubstr("0 && \"Do not directly call Event functions in Interfaces. Call Execute_Open instead.\"")));
	}
}
