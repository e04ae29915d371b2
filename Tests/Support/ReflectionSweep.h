// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "TestPrinters.h"
#include "UObject/Class.h"
#include "UObject/UObjectHash.h"
#include "UObject/UnrealType.h"

#include <gtest/gtest.h>

#include <cstring>
#include <new>

/** Looks at every reflected type that is linked into a program. An object system, or an editor, must be up. */
namespace ReflectionSweep
{
	/** A new value of a property in memory of its own; zeroed first, because some types leave a new value as it is. */
	struct FScratchValue
	{
		explicit FScratchValue(const FProperty& InProperty)
			: Property(InProperty)
			, Memory(::operator new(static_cast<size_t>(InProperty.GetSize()), std::align_val_t(InProperty.GetMinAlignment())))
		{
			std::memset(Memory, 0, static_cast<size_t>(Property.GetSize()));
			Property.InitializeValue(Memory);
		}

		~FScratchValue()
		{
			Property.DestroyValue(Memory);
			::operator delete(Memory, std::align_val_t(Property.GetMinAlignment()));
		}

		FScratchValue(const FScratchValue&) = delete;
		FScratchValue& operator=(const FScratchValue&) = delete;

		const FProperty& Property;
		void* const Memory;
	};

	/** Values lie where the type has room for them, and can be made, compared and dropped. */
	inline void CheckProperty(const UStruct* Owner, const FProperty* Property)
	{
		SCOPED_TRACE(testing::PrintToString(Property->GetName()));
		EXPECT_GT(Property->GetSize(), 0);
		EXPECT_LE(Property->GetOffset_ForInternal() + Property->GetSize(), Owner->GetPropertiesSize());
		EXPECT_EQ(Property->GetOffset_ForInternal() % Property->GetMinAlignment(), 0);
		EXPECT_FALSE(Property->GetCPPType().IsEmpty());
		if (const FObjectPropertyBase* Object = CastField<FObjectPropertyBase>(Property))
		{
			EXPECT_NE(Object->PropertyClass, nullptr);
		}
		if (const FEnumProperty* Enum = CastField<FEnumProperty>(Property))
		{
			EXPECT_NE(Enum->GetEnum(), nullptr);
		}
		FScratchValue Value(*Property);
		FScratchValue Copy(*Property);
		Property->CopyCompleteValue(Copy.Memory, Value.Memory);
		EXPECT_TRUE(Property->Identical(Copy.Memory, Value.Memory)) << "a copy differs from its original";
	}

	/** Properties of Struct are all its own: their places do not overlap. */
	inline void CheckProperties(const UStruct* Struct)
	{
		TArray<const FProperty*> Earlier;
		for (const FProperty* Property : Struct->GetOwnProperties())
		{
			CheckProperty(Struct, Property);
			for (const FProperty* Other : Earlier)
			{
				const int32 First = FMath::Min(Property->GetOffset_ForInternal(), Other->GetOffset_ForInternal());
				const FProperty* Lower = Property->GetOffset_ForInternal() == First ? Property : Other;
				const FProperty* Upper = Lower == Property ? Other : Property;
				EXPECT_LE(Lower->GetOffset_ForInternal() + Lower->GetSize(), Upper->GetOffset_ForInternal())
					<< testing::PrintToString(Lower->GetName()) << " overlaps " << testing::PrintToString(Upper->GetName());
			}
			Earlier.Add(Property);
		}
	}

	/** Each is found by its name, and its parameters fit its block. */
	inline int32 CheckFunctions(UClass* Class)
	{
		for (UFunction* Function : Class->GetOwnFunctions())
		{
			SCOPED_TRACE(testing::PrintToString(Function->GetName()));
			EXPECT_EQ(Class->FindFunctionByName(Function->GetFName()), Function);
			EXPECT_EQ(Function->GetOwnerClass(), Class);
			EXPECT_EQ(Function->GetPropertiesSize(), Function->ParmsSize);
			EXPECT_TRUE(Function->HasAnyFunctionFlags(static_cast<EFunctionFlags>(FUNC_Native | FUNC_Event))) << "it has no body, and no script may give it one";
			CheckProperties(Function);
			for (const FProperty* Parameter : Function->GetOwnProperties())
			{
				EXPECT_TRUE(Parameter->HasAnyPropertyFlags(CPF_Parm)) << testing::PrintToString(Parameter->GetName());
			}
		}
		return Class->GetOwnFunctions().Num();
	}

	struct FCounts
	{
		int32 Classes = 0;
		int32 Structs = 0;
		int32 Enums = 0;
		int32 Functions = 0;
	};

	/** Every type has what its record promised. @return how much there was, so that a caller can tell whether anything was looked at */
	inline FCounts CheckAll()
	{
		FCounts Counts;
		TArray<UObject*> Types;
		GetObjectsOfClass(UField::StaticClass(), Types);
		for (UObject* Type : Types)
		{
			SCOPED_TRACE(testing::PrintToString(Type->GetPathName()));
			if (Type->IsA<UClass>())
			{
				UClass* Class = static_cast<UClass*>(Type);
				EXPECT_TRUE(Class->GetSuperClass() || Class == UObject::StaticClass()) << "has no super class";
				EXPECT_TRUE(Class->IsChildOf(UObject::StaticClass()));
				EXPECT_NE(Class->GetDefaultObject(), nullptr);
				CheckProperties(Class);
				Counts.Functions += CheckFunctions(Class);
				++Counts.Classes;
			}
			else if (Type->IsA<UScriptStruct>())
			{
				CheckProperties(static_cast<UScriptStruct*>(Type));
				++Counts.Structs;
			}
			else if (Type->IsA<UEnum>())
			{
				EXPECT_GT(static_cast<UEnum*>(Type)->NumEnums(), 0);
				++Counts.Enums;
			}
		}
		return Counts;
	}

	/** Calls every function of Object with default values; for objects whose functions bear that. @return how many were called */
	inline int32 CallAll(UObject* Object)
	{
		int32 NumCalls = 0;
		for (UClass* Class = Object->GetClass(); Class; Class = Class->GetSuperClass())
		{
			for (UFunction* Function : Class->GetOwnFunctions())
			{
				SCOPED_TRACE(testing::PrintToString(Function->GetPathName()));
				TArray<uint8> Block;
				Block.SetNumZeroed(Function->ParmsSize + 1);
				for (const FProperty* Parameter : Function->GetOwnProperties())
				{
					Parameter->InitializeValue_InContainer(Block.GetData());
				}
				Object->ProcessEvent(Function, Block.GetData());
				for (const FProperty* Parameter : Function->GetOwnProperties())
				{
					Parameter->DestroyValue_InContainer(Block.GetData());
				}
				++NumCalls;
			}
		}
		return NumCalls;
	}
}
