// Copyright Velmorant. All Rights Reserved.

#include "FixtureConstruction.h"
#include "FixtureEvents.h"
#include "FixtureFunctions.h"
#include "ObjectSystemTest.h"

/** Calls by name with values given as text, as scripts and the command line do. */
class ReflectedFunctions : public FObjectSystemTest
{
protected:
	/** The block of one call; its values are read and written by name. */
	class FCall
	{
	public:
		FCall(UObject* InObject, const TCHAR* Name)
			: Object(InObject)
			, Function(InObject->FindFunctionChecked(Name))
		{
			Block.SetNumZeroed(Function->ParmsSize + 1);
			for (const FProperty* Property : Function->GetOwnProperties())
			{
				Property->InitializeValue_InContainer(Block.GetData());
			}
		}

		~FCall()
		{
			for (const FProperty* Property : Function->GetOwnProperties())
			{
				Property->DestroyValue_InContainer(Block.GetData());
			}
		}

		FCall& Set(const TCHAR* Parameter, const TCHAR* Text)
		{
			EXPECT_NE(Find(Parameter)->ImportText_InContainer(Text, Block.GetData(), nullptr, PPF_None), nullptr);
			return *this;
		}

		FCall& SetObject(const TCHAR* Parameter, UObject* Value)
		{
			CastFieldChecked<FObjectPropertyBase>(Find(Parameter))->SetObjectPropertyValue_InContainer(Block.GetData(), Value);
			return *this;
		}

		FCall& Run()
		{
			Object->ProcessEvent(Function, Block.GetData());
			return *this;
		}

		FString Get(const TCHAR* Parameter = TEXT("ReturnValue")) const
		{
			FString Text;
			Find(Parameter)->ExportTextItem_InContainer(Text, Block.GetData(), nullptr, nullptr, PPF_None);
			return Text;
		}

		UObject* GetObject(const TCHAR* Parameter) const { return CastFieldChecked<FObjectPropertyBase>(Find(Parameter))->GetObjectPropertyValue_InContainer(Block.GetData()); }

	private:
		FProperty* Find(const TCHAR* Parameter) const
		{
			FProperty* Property = Function->FindPropertyByName(Parameter);
			checkf(Property, TEXT("%s has no parameter %s."), *Function->GetName(), Parameter);
			return Property;
		}

		UObject* Object;
		UFunction* Function;
		TArray<uint8> Block;
	};

	UFixtureFunctions* Object = NewObject<UFixtureFunctions>();
};

TEST_F(ReflectedFunctions, PassParametersAndResultsThroughTheirBlock)
{
	EXPECT_EQ(FCall(Object, TEXT("Add")).Set(TEXT("A"), TEXT("40")).Set(TEXT("B"), TEXT("2")).Run().Get(), FString(TEXT("42")));
	EXPECT_EQ(FCall(Object, TEXT("Join")).Set(TEXT("First"), TEXT("a")).Set(TEXT("Second"), TEXT("b")).Set(TEXT("Third"), TEXT("c")).Run().Get(), FString(TEXT("abc")));
	EXPECT_EQ(FCall(Object, TEXT("Next")).Set(TEXT("Door"), TEXT("Sliding")).Set(TEXT("Width"), TEXT("Wide")).Set(TEXT("Plain"), TEXT("FixturePlain_Second")).Set(TEXT("Step"), TEXT("1")).Run().Get(), FString(TEXT("Folding")));
	EXPECT_EQ(FCall(Object, TEXT("Collect")).Set(TEXT("Points"), TEXT("((X=5,Y=6))")).Set(TEXT("Names"), TEXT("(\"Here\")")).Run().Get(), FString(TEXT("((\"Here\", (X=5,Y=6)))")));
	EXPECT_EQ(FCall(Object, TEXT("Same")).SetObject(TEXT("Object"), Object).Run().GetObject(TEXT("ReturnValue")), Object);
}

TEST_F(ReflectedFunctions, WriteResultsToReferences)
{
	FCall Split(Object, TEXT("Split"));
	EXPECT_EQ(Split.Set(TEXT("Text"), TEXT("left,right")).Run().Get(), FString(TEXT("True")));
	EXPECT_EQ(Split.Get(TEXT("OutLeft")), FString(TEXT("left")));
	EXPECT_EQ(Split.Get(TEXT("OutParts")), FString(TEXT("(\"left\",\"right\")")));

	FCall Grow(Object, TEXT("Grow"));
	Grow.Set(TEXT("Point"), TEXT("(X=10,Y=20)")).Set(TEXT("By"), TEXT("5")).Run();
	EXPECT_EQ(Grow.Get(TEXT("Point")), FString(TEXT("(X=15,Y=25)")));
}

TEST_F(ReflectedFunctions, CallPrivateAndVirtualBodies)
{
	FCall(Object, TEXT("Hidden")).Set(TEXT("bTwice"), TEXT("True")).Run();
	EXPECT_EQ(Object->NumPresses, 2);
	FCall(Object, TEXT("Guarded")).Set(TEXT("Value"), TEXT("9")).Run();
	EXPECT_EQ(Object->NumPresses, 9);
	FCall(Object, TEXT("Press")).Run();
	EXPECT_EQ(Object->NumPresses, 10);

	UFixtureDerivedFunctions* Derived = NewObject<UFixtureDerivedFunctions>();
	EXPECT_EQ(FCall(Object, TEXT("WhoAmI")).Run().Get(), FString(TEXT("base")));
	EXPECT_EQ(FCall(Derived, TEXT("WhoAmI")).Run().Get(), FString(TEXT("derived")));
	EXPECT_EQ(FCall(Derived, TEXT("OnlyHere")).Set(TEXT("InValue"), TEXT("3")).Run().Get(), FString(TEXT("-3")));
	EXPECT_EQ(Object->FindFunction(TEXT("OnlyHere")), nullptr);
}

TEST_F(ReflectedFunctions, AreBoundToDynamicDelegates)
{
	FFixtureAnswer Receiver;
	Receiver.BindUFunction(Object, TEXT("TakeJournal"));
	Object->Answer(Receiver, FText::FromString(TEXT("written")));
	EXPECT_EQ(Object->GetJournal(), FString(TEXT("written")));
	EXPECT_EQ(FCall(Object, TEXT("GetJournal")).Run().Get(), FString(TEXT("written")));

	Object->OnSomething.AddUniqueDynamic(Object, &UFixtureFunctions::Press);
	Object->OnSomething.Broadcast();
	EXPECT_EQ(Object->NumPresses, 1);
}

TEST_F(ReflectedFunctions, TakeFlagsAndMetadataFromMarkup)
{
	const UClass* Class = UFixtureFunctions::StaticClass();
	struct FCase
	{
		const TCHAR* Name;
		uint32 Set;
		uint32 Unset;
	};
	const FCase Cases[] = {
		{TEXT("Add"), FUNC_Native | FUNC_Static | FUNC_BlueprintPure | FUNC_BlueprintCallable | FUNC_Public | FUNC_Final, FUNC_HasOutParms | FUNC_Const},
		{TEXT("Split"), FUNC_Const | FUNC_HasOutParms | FUNC_BlueprintPure, FUNC_Static},
		{TEXT("Collect"), FUNC_BlueprintCallable, FUNC_BlueprintPure | FUNC_HasOutParms},
		{TEXT("WhoAmI"), FUNC_Native, FUNC_Final | FUNC_Event},
		{TEXT("Press"), FUNC_Public, FUNC_BlueprintCallable},
		{TEXT("Guarded"), FUNC_Protected, FUNC_Public | FUNC_Private},
		{TEXT("Hidden"), FUNC_Private, FUNC_Public},
	};
	for (const FCase& Case : Cases)
	{
		SCOPED_TRACE(testing::PrintToString(FString(Case.Name)));
		const UFunction* Function = Class->FindFunctionByName(Case.Name);
		ASSERT_NE(Function, nullptr);
		EXPECT_EQ(Function->FunctionFlags & Case.Set, Case.Set);
		EXPECT_EQ(Function->FunctionFlags & Case.Unset, 0u);
	}
	const UFunction* Add = Class->FindFunctionByName(TEXT("Add"));
	EXPECT_EQ(Add->GetMetaData(TEXT("DisplayName")), FString(TEXT("Sum")));
	EXPECT_EQ(Add->GetMetaData(TEXT("Category")), FString(TEXT("Fixture|Sums")));
	EXPECT_EQ(Add->GetMetaData(TEXT("ToolTip")), FString(TEXT("Adds up.")));
	EXPECT_TRUE(Class->FindFunctionByName(TEXT("Press"))->HasMetaData(TEXT("CallInEditor")));

	const auto HasAll = [](const FProperty* Property, uint64 Flags) { return (Property->PropertyFlags & Flags) == Flags; };
	const UFunction* Split = Class->FindFunctionByName(TEXT("Split"));
	EXPECT_TRUE(HasAll(Split->FindPropertyByName(TEXT("Text")), CPF_Parm | CPF_ConstParm | CPF_ReferenceParm));
	EXPECT_TRUE(HasAll(Split->FindPropertyByName(TEXT("OutLeft")), CPF_Parm | CPF_OutParm));
	EXPECT_FALSE(Split->FindPropertyByName(TEXT("OutLeft"))->HasAnyPropertyFlags(CPF_ReferenceParm | CPF_ConstParm));
	EXPECT_TRUE(HasAll(Split->GetReturnProperty(), CPF_Parm | CPF_ReturnParm));
	EXPECT_TRUE(HasAll(Class->FindFunctionByName(TEXT("Grow"))->FindPropertyByName(TEXT("Point")), CPF_OutParm | CPF_ReferenceParm));
}

TEST_F(ReflectedFunctions, OfEventsFallBackToTheirNativeBodies)
{
	UFixtureDerivedEvents* Events = NewObject<UFixtureDerivedEvents>();
	EXPECT_EQ(Events->Greet(TEXT("Ann"), 2), FString(TEXT("Derived: Hello AnnHello Ann")));
	FFixturePoint Where;
	EXPECT_TRUE(Events->IsReady(Where));
	EXPECT_EQ(Where, FFixturePoint(7, 8));
	Events->CountTwice();
	EXPECT_EQ(Events->NumCounted, 2);
	EXPECT_EQ(FCall(Events, TEXT("Greet")).Set(TEXT("Whom"), TEXT("Bob")).Set(TEXT("Times"), TEXT("1")).Run().Get(), FString(TEXT("Derived: Hello Bob")));

	// Nobody implements these: nothing happens, and results are default values.
	Events->OnShown();
	EXPECT_EQ(Events->Judge(TEXT("x"), FFixturePoint(), Events), 0);
	FString Text = TEXT("kept");
	TArray<int32> Numbers = {1};
	Events->Fill(Text, Numbers);
	EXPECT_EQ(Text, FString(TEXT("kept")));
	EXPECT_EQ(Numbers, TArray<int32>{1});
}

TEST_F(ReflectedFunctions, OfEventsAreTakenOverByScripts)
{
	UClass* Class = Derive(UFixtureDerivedEvents::StaticClass());
	int32 NumShown = 0;
	HostObjects::AddScriptFunction(Class, TEXT("OnShown"), [&NumShown](UObject*, FFrame&, void*) { ++NumShown; });
	HostObjects::AddScriptFunction(Class, TEXT("Judge"), [](UObject*, FFrame& Stack, void* Result) { *static_cast<int32*>(Result) = Stack.Node->FindPropertyByName(TEXT("Point"))->ContainerPtrToValuePtr<FFixturePoint>(Stack.Locals)->Y; });
	HostObjects::AddScriptFunction(Class, TEXT("Fill"), [](UObject*, FFrame& Stack, void*) {
		*Stack.Node->FindPropertyByName(TEXT("OutText"))->ContainerPtrToValuePtr<FString>(Stack.Locals) = TEXT("filled");
		Stack.Node->FindPropertyByName(TEXT("Numbers"))->ContainerPtrToValuePtr<TArray<int32>>(Stack.Locals)->Add(2); });
	HostObjects::AddScriptFunction(Class, TEXT("Greet"), [](UObject*, FFrame&, void* Result) { *static_cast<FString*>(Result) = TEXT("scripted"); });

	UFixtureDerivedEvents* Events = NewObject<UFixtureDerivedEvents>(GetTransientPackage(), Class);
	Events->OnShown();
	EXPECT_EQ(NumShown, 1);
	EXPECT_EQ(Events->Judge(TEXT("x"), FFixturePoint(1, 17), nullptr), 17);
	FString Text;
	TArray<int32> Numbers = {1};
	Events->Fill(Text, Numbers);
	EXPECT_EQ(Text, FString(TEXT("filled")));
	EXPECT_EQ(Numbers, (TArray<int32>{1, 2}));
	EXPECT_EQ(Events->Greet(TEXT("Ann"), 2), FString(TEXT("scripted")));
	EXPECT_EQ(NewObject<UFixtureDerivedEvents>()->Greet(TEXT("Ann"), 1), FString(TEXT("Derived: Hello Ann"))) << "the native class was changed";
}

TEST_F(ReflectedFunctions, ConstructObjectsWithTheConstructorTheyHave)
{
	EXPECT_EQ(NewObject<UFixtureDefaultConstructed>()->Value, 1);
	EXPECT_EQ(NewObject<UFixtureBelowDefault>()->Value, 1);
	EXPECT_EQ(NewObject<UFixtureInitialized>()->Value, 2);
	EXPECT_EQ(NewObject<UFixtureBelowInitialized>()->Value, 2);
	EXPECT_EQ(NewObject<UFixtureLegacyBody>()->Value, 3);
	const UObject* Private = NewObject<UFixturePrivatelyConstructed>();
	FString Value;
	Private->GetClass()->FindPropertyByName(TEXT("Value"))->ExportTextItem_InContainer(Value, Private, nullptr, nullptr, PPF_None);
	EXPECT_EQ(Value, FString(TEXT("4")));
}
