// Copyright Velmorant. All Rights Reserved.

#include "FixtureProperties.h"
#include "FixtureUnreflected.h"
#include "ObjectSystemTest.h"

class ReflectedProperties : public FObjectSystemTest
{
protected:
	static FProperty* Find(const TCHAR* Name)
	{
		FProperty* Property = UFixtureProperties::StaticClass()->FindPropertyByName(Name);
		EXPECT_NE(Property, nullptr) << "there is no property " << testing::PrintToString(FString(Name));
		return Property;
	}

	/** The value that a new object has, as text. */
	static FString ValueOf(const TCHAR* Name)
	{
		FString Text;
		const UFixtureProperties* Object = NewObject<UFixtureProperties>();
		Find(Name)->ExportTextItem_InContainer(Text, Object, nullptr, nullptr, PPF_None);
		return Text;
	}
};

TEST_F(ReflectedProperties, AreOfTheKindThatTheirTypeAsksFor)
{
	struct FCase
	{
		const TCHAR* Name;
		const TCHAR* Kind;
		const TCHAR* CppType;
	};
	const FCase Cases[] = {
		{TEXT("bFlag"), TEXT("BoolProperty"), TEXT("bool")},
		{TEXT("Tiny"), TEXT("Int8Property"), TEXT("int8")},
		{TEXT("Small"), TEXT("Int16Property"), TEXT("int16")},
		{TEXT("Medium"), TEXT("IntProperty"), TEXT("int32")},
		{TEXT("Large"), TEXT("Int64Property"), TEXT("int64")},
		{TEXT("Byte"), TEXT("ByteProperty"), TEXT("uint8")},
		{TEXT("Word"), TEXT("UInt16Property"), TEXT("uint16")},
		{TEXT("DoubleWord"), TEXT("UInt32Property"), TEXT("uint32")},
		{TEXT("QuadWord"), TEXT("UInt64Property"), TEXT("uint64")},
		{TEXT("Single"), TEXT("FloatProperty"), TEXT("float")},
		{TEXT("Double"), TEXT("DoubleProperty"), TEXT("double")},
		{TEXT("String"), TEXT("StrProperty"), TEXT("FString")},
		{TEXT("Name"), TEXT("NameProperty"), TEXT("FName")},
		{TEXT("Text"), TEXT("TextProperty"), TEXT("FText")},
		{TEXT("Door"), TEXT("EnumProperty"), TEXT("EFixtureDoor")},
		{TEXT("Sides"), TEXT("EnumProperty"), TEXT("EFixtureSides")},
		{TEXT("Plain"), TEXT("ByteProperty"), TEXT("TEnumAsByte<EFixturePlain>")},
		{TEXT("Spaced"), TEXT("ByteProperty"), TEXT("TEnumAsByte<EFixtureSpaced::Type>")},
		{TEXT("Point"), TEXT("StructProperty"), TEXT("FFixturePoint")},
		{TEXT("Vector"), TEXT("StructProperty"), TEXT("FVector")},
		{TEXT("SoftPath"), TEXT("StructProperty"), TEXT("FSoftObjectPath")},
		{TEXT("Object"), TEXT("ObjectProperty"), TEXT("TObjectPtr<UFixtureFunctions>")},
		{TEXT("Weak"), TEXT("WeakObjectProperty"), TEXT("TWeakObjectPtr<UFixtureFunctions>")},
		{TEXT("Soft"), TEXT("SoftObjectProperty"), TEXT("TSoftObjectPtr<UFixtureFunctions>")},
		{TEXT("Class"), TEXT("ClassProperty"), TEXT("TSubclassOf<UFixtureFunctions>")},
		{TEXT("SoftClass"), TEXT("SoftClassProperty"), TEXT("TSoftClassPtr<UFixtureFunctions>")},
		{TEXT("Numbers"), TEXT("ArrayProperty"), TEXT("TArray<int32>")},
		{TEXT("Plains"), TEXT("ArrayProperty"), TEXT("TArray<TEnumAsByte<EFixturePlain>>")},
		{TEXT("Names"), TEXT("SetProperty"), TEXT("TSet<FName>")},
		{TEXT("Places"), TEXT("MapProperty"), TEXT("TMap<FName,FFixturePoint>")},
		{TEXT("Count"), TEXT("DelegateProperty"), TEXT("FScriptDelegate")},
		{TEXT("OnChanged"), TEXT("MulticastDelegateProperty"), TEXT("FMulticastScriptDelegate")},
	};
	for (const FCase& Case : Cases)
	{
		SCOPED_TRACE(testing::PrintToString(FString(Case.Name)));
		const FProperty* Property = Find(Case.Name);
		ASSERT_NE(Property, nullptr);
		EXPECT_EQ(Property->GetClass()->GetFName(), FName(Case.Kind));
		EXPECT_EQ(Property->GetCPPType().Replace(TEXT(" "), TEXT("")), FString(Case.CppType));
	}
}

TEST_F(ReflectedProperties, PointIntoTheObject)
{
	struct FCase
	{
		const TCHAR* Name;
		const TCHAR* Value;
	};
	const FCase Cases[] = {
		{TEXT("bFlag"), TEXT("True")},
		{TEXT("Tiny"), TEXT("-8")},
		{TEXT("QuadWord"), TEXT("64")},
		{TEXT("Single"), TEXT("0.500000")},
		{TEXT("String"), TEXT("text; with \"quotes\"")},
		{TEXT("Name"), TEXT("A_Name")},
		{TEXT("Door"), TEXT("Folding")},
		{TEXT("Plain"), TEXT("FixturePlain_Second")},
		{TEXT("Spaced"), TEXT("Wide")},
		{TEXT("Point"), TEXT("(X=3,Y=4)")},
		{TEXT("Numbers"), TEXT("(1,2,3)")},
		{TEXT("Guarded"), TEXT("11")},
		{TEXT("Private"), TEXT("12")},
	};
	for (const FCase& Case : Cases)
	{
		EXPECT_EQ(ValueOf(Case.Name), FString(Case.Value)) << testing::PrintToString(FString(Case.Name));
	}
}

TEST_F(ReflectedProperties, TakeFlagsFromSpecifiers)
{
	struct FCase
	{
		const TCHAR* Name;
		uint64 Set;
		uint64 Unset;
	};
	const FCase Cases[] = {
		{TEXT("Medium"), CPF_NativeAccessSpecifierPublic, CPF_Edit | CPF_BlueprintVisible | CPF_Config | CPF_Transient},
		{TEXT("Bound"), CPF_BlueprintVisible | CPF_BlueprintReadOnly, CPF_Edit},
		{TEXT("BoundOptionally"), CPF_Transient, CPF_DuplicateTransient},
		{TEXT("OnChanged"), CPF_BlueprintAssignable, CPF_BlueprintVisible},
		{TEXT("Guarded"), CPF_NativeAccessSpecifierProtected, CPF_NativeAccessSpecifierPublic},
		{TEXT("Private"), CPF_NativeAccessSpecifierPrivate | CPF_Edit, CPF_NativeAccessSpecifierPublic},
	};
	for (const FCase& Case : Cases)
	{
		SCOPED_TRACE(testing::PrintToString(FString(Case.Name)));
		const uint64 Flags = Find(Case.Name)->PropertyFlags;
		EXPECT_EQ(Flags & Case.Set, Case.Set);
		EXPECT_EQ(Flags & Case.Unset, 0u);
	}
}

TEST_F(ReflectedProperties, TakeMetadataFromMarkupAndComments)
{
	struct FCase
	{
		const TCHAR* Name;
		const TCHAR* Key;
		const TCHAR* Value;
	};
	const FCase Cases[] = {
		{TEXT("Limited"), TEXT("Category"), TEXT("Outer|Inner")},
		{TEXT("Limited"), TEXT("FixtureMin"), TEXT("-1.5")},
		{TEXT("Limited"), TEXT("FixtureMax"), TEXT("2")},
		{TEXT("Limited"), TEXT("fixturewords"), TEXT("one two")},
		{TEXT("Bound"), TEXT("BindWidget"), TEXT("")},
		{TEXT("BoundOptionally"), TEXT("BindWidgetOptional"), TEXT("")},
		{TEXT("BoundOptionally"), TEXT("ToolTip"), TEXT("Kept \"as\" written:\t\\n is\n two lines")},
		{TEXT("Commented"), TEXT("ToolTip"), TEXT("A comment of two lines\nmakes a tool tip.")},
		{TEXT("Private"), TEXT("AllowPrivateAccess"), TEXT("true")},
	};
	for (const FCase& Case : Cases)
	{
		ASSERT_TRUE(Find(Case.Name)->HasMetaData(Case.Key)) << testing::PrintToString(FString(Case.Name)) << " has no " << testing::PrintToString(FString(Case.Key));
		EXPECT_EQ(Find(Case.Name)->GetMetaData(Case.Key), FString(Case.Value));
	}
	EXPECT_FALSE(Find(TEXT("Bound"))->HasMetaData(TEXT("ToolTip"))) << "the comment of another property was taken";
}

TEST_F(ReflectedProperties, OfAClassComeWithItsOwnFacts)
{
	const UClass* Class = UFixtureProperties::StaticClass();
	EXPECT_EQ(Class->GetName(), FString(TEXT("FixtureProperties")));
	EXPECT_EQ(Class->GetClassPathName().ToString(), FString(TEXT("/Script/ReflectionFixtures.FixtureProperties")));
	EXPECT_EQ(FString(UFixtureProperties::StaticPackage()), FString(TEXT("/Script/ReflectionFixtures")));
	EXPECT_EQ(Class->ClassConfigName, FName(TEXT("FixtureConfig")));
	EXPECT_TRUE(Class->HasAnyClassFlags(CLASS_Native));
	EXPECT_TRUE(Class->HasAnyClassFlags(CLASS_Config));
	EXPECT_TRUE(Class->HasAnyClassFlags(CLASS_DefaultConfig));
	EXPECT_FALSE(Class->HasAnyClassFlags(CLASS_Abstract));
	EXPECT_EQ(Class->GetMetaData(TEXT("DisplayName")), FString(TEXT("All \"kinds\"")));
	EXPECT_EQ(Class->GetMetaData(TEXT("ToolTip")), FString(TEXT("Every kind of property.\nIndented lines keep their words.")));
	EXPECT_EQ(Class->GetSuperClass(), UObject::StaticClass());
}

TEST_F(ReflectedProperties, OfStructsAreInherited)
{
	UScriptStruct* Struct = FFixtureLabelledPoint::StaticStruct();
	EXPECT_EQ(Struct->GetSuperStruct(), FFixturePoint::StaticStruct());
	EXPECT_EQ(Struct->GetOwnProperties().Num(), 2);
	const FFixtureLabelledPoint Value;
	FString Secret;
	FProperty* Property = Struct->FindPropertyByName(TEXT("Secret"));
	ASSERT_NE(Property, nullptr);
	Property->ExportTextItem_InContainer(Secret, &Value, nullptr, nullptr, PPF_None);
	EXPECT_EQ(Secret, Value.GetSecret());
	EXPECT_NE(Struct->FindPropertyByName(TEXT("Y")), nullptr);
	EXPECT_EQ(Struct->FindPropertyByName(TEXT("Label"))->GetMetaData(TEXT("ToolTip")), FString(TEXT("Shown beside the point.")));
}

TEST_F(ReflectedProperties, AreFoundAmongWhatIsNotReflected)
{
	const UClass* Class = UFixtureUnreflected::StaticClass();
	TArray<FString> Names;
	for (const FProperty* Property : Class->GetOwnProperties())
	{
		Names.Add(Property->GetName());
	}
	EXPECT_EQ(Names, (TArray<FString>{TEXT("AfterMacro"), TEXT("EditorOnly")}));
	ASSERT_EQ(Class->GetOwnFunctions().Num(), 1);
	EXPECT_EQ(Class->GetOwnFunctions()[0]->GetName(), FString(TEXT("InEditor")));
}

TEST_F(ReflectedProperties, HaveEnumsInTheFormTheyWereWritten)
{
	const UEnum* Door = StaticEnum<EFixtureDoor>();
	EXPECT_EQ(Door->GetValueByName(TEXT("EFixtureDoor::Folding")), 8);
	EXPECT_EQ(Door->GetMetaData(TEXT("ToolTip")), FString(TEXT("How a door opens.")));
	EXPECT_EQ(Door->GetMetaData(TEXT("DisplayName"), 0), FString(TEXT("Into the room")));
	EXPECT_EQ(Door->GetMetaData(TEXT("ToolTip"), 0), FString(TEXT("Towards the room.")));
	EXPECT_FALSE(Door->HasMetaData(TEXT("ToolTip"), 1));
	EXPECT_FALSE(Door->HasMetaData(TEXT("ToolTip"), 2)) << "the comment behind the entry before was taken";
	EXPECT_TRUE(Door->HasMetaData(TEXT("Hidden"), 2));

	const UEnum* Plain = StaticEnum<EFixturePlain>();
	EXPECT_EQ(Plain->GetNameStringByValue(4), FString(TEXT("FixturePlain_Second")));
	EXPECT_EQ(Plain->CppType, FString(TEXT("EFixturePlain")));

	const UEnum* Spaced = StaticEnum<EFixtureSpaced::Type>();
	EXPECT_EQ(Spaced->GetName(), FString(TEXT("EFixtureSpaced")));
	EXPECT_EQ(Spaced->CppType, FString(TEXT("EFixtureSpaced::Type")));
	EXPECT_EQ(Spaced->GetMetaData(TEXT("ToolTip"), 1), FString(TEXT("Two \"metres\"\nor more")));

	EXPECT_EQ(StaticEnum<EFixtureSides>()->GetValueByNameString(TEXT("All")), 3);
}
