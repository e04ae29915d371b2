// Copyright Velmorant. All Rights Reserved.
// By hand what generated code does for all other classes.

#include "Reflection/RootTypes.h"

#include "UObject/Interface.h"
#include "UObject/Package.h"

namespace UE::Reflection
{
	namespace RootTypes
	{
		template<typename T>
		void ConstructRoot(void* Memory, const FObjectInitializer& Initializer)
		{
			::new (Memory) T(Initializer);
		}

		template<typename T>
		constexpr FClassRecord MakeRecord(const char* CppName, uint32 Flags)
		{
			FClassRecord Record{};
			Record.CppName = CppName;
			Record.Name = CppName + 1;
			Record.Package = "/Script/CoreUObject";
			Record.Flags = Flags | CLASS_Intrinsic;
			Record.Size = sizeof(T);
			Record.Align = alignof(T);
			if constexpr (!std::is_same_v<T, UObject>)
			{
				Record.Super = &ClassOf<typename T::Super>;
			}
			Record.Construct = &ConstructRoot<T>;
			Record.AddReferencedObjects = &T::AddReferencedObjects;
			return Record;
		}
	}

#define HOST_ROOT_CLASS(TClass, Flags) \
	static FClassRecord G##TClass##Record = RootTypes::MakeRecord<TClass>(#TClass, Flags); \
	template<> \
	UClass* ClassOf<TClass>() \
	{ \
		return GetClass(G##TClass##Record); \
	}

	HOST_ROOT_CLASS(UObject, CLASS_Abstract)
	HOST_ROOT_CLASS(UField, CLASS_Abstract)
	HOST_ROOT_CLASS(UStruct, CLASS_None)
	HOST_ROOT_CLASS(UScriptStruct, CLASS_None)
	HOST_ROOT_CLASS(UClass, CLASS_None)
	HOST_ROOT_CLASS(UEnum, CLASS_None)
	HOST_ROOT_CLASS(UFunction, CLASS_None)
	HOST_ROOT_CLASS(UPackage, CLASS_None)
	HOST_ROOT_CLASS(UInterface, CLASS_Interface | CLASS_Abstract)

	const TArray<FClassRecord*>& GetRootRecords()
	{
		static const TArray<FClassRecord*> Records = {&GUObjectRecord, &GUFieldRecord, &GUStructRecord, &GUScriptStructRecord,
			&GUClassRecord, &GUEnumRecord, &GUFunctionRecord, &GUPackageRecord, &GUInterfaceRecord};
		return Records;
	}
}

UClass* UObject::StaticClass()
{
	return UE::Reflection::ClassOf<UObject>();
}
UClass* UField::StaticClass()
{
	return UE::Reflection::ClassOf<UField>();
}
UClass* UScriptStruct::StaticClass()
{
	return UE::Reflection::ClassOf<UScriptStruct>();
}
UClass* UClass::StaticClass()
{
	return UE::Reflection::ClassOf<UClass>();
}
UClass* UEnum::StaticClass()
{
	return UE::Reflection::ClassOf<UEnum>();
}
UClass* UFunction::StaticClass()
{
	return UE::Reflection::ClassOf<UFunction>();
}
UClass* UPackage::StaticClass()
{
	return UE::Reflection::ClassOf<UPackage>();
}
