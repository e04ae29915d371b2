// Copyright Velmorant. All Rights Reserved.

#include "Reflection/TypeBuilder.h"

#include "Misc/AssertionMacros.h"
#include "Objects/ObjectFactory.h"
#include "Objects/ObjectNameTable.h"
#include "Reflection/RootTypes.h"
#include "UObject/Package.h"
#include "UObject/UnrealType.h"

#include <cstring>

namespace UE::Reflection
{
	namespace TypeBuilder
	{
		template<typename RecordType>
		void BuildRegistered(void (*BuildOne)(RecordType&))
		{
			TArray<RecordType*> Records;
			for (const TRegistrar<RecordType>* Registrar = TRegistrar<RecordType>::First; Registrar; Registrar = Registrar->Next)
			{
				Records.Add(Registrar->Record);
			}
			// The order in which a program loads its parts must not show.
			Records.Sort([](const RecordType& A, const RecordType& B) {
				const int Package = std::strcmp(A.Package, B.Package);
				return Package != 0 ? Package < 0 : std::strcmp(A.Name, B.Name) < 0;
			});
			for (RecordType* Record : Records)
			{
				BuildOne(*Record);
			}
		}
	}

	UClass* GetClass(FClassRecord& Record)
	{
		return Record.Class ? Record.Class : FTypeBuilder::Build(Record);
	}

	UScriptStruct* GetStruct(FStructRecord& Record)
	{
		return Record.Struct ? Record.Struct : FTypeBuilder::Build(Record);
	}

	UEnum* GetEnum(FEnumRecord& Record)
	{
		return Record.Enum ? Record.Enum : FTypeBuilder::Build(Record);
	}

	void FTypeBuilder::BuildAll()
	{
		static bool bBuilt = false;
		if (!bBuilt)
		{
			bBuilt = true;
			BuildRoots();
			TypeBuilder::BuildRegistered<FClassRecord>([](FClassRecord& Record) { GetClass(Record); });
			TypeBuilder::BuildRegistered<FStructRecord>([](FStructRecord& Record) { GetStruct(Record); });
			TypeBuilder::BuildRegistered<FEnumRecord>([](FEnumRecord& Record) { GetEnum(Record); });
			BuildBaseStructures();
		}
	}

	template<typename T>
	T* FTypeBuilder::MakeNative(UClass* Class, UObject* Outer, FName Name)
	{
		void* Memory = FObjectFactory::Allocate(sizeof(T), alignof(T));
		FObjectFactory::ConstructNative(Memory, Class, Outer, Name, [](void* Place, const FObjectInitializer& Initializer) { ::new (Place) T(Initializer); });
		return static_cast<T*>(Memory);
	}

	void FTypeBuilder::BuildRoots()
	{
		const TArray<FClassRecord*>& Roots = GetRootRecords();
		if (Roots[0]->Class)
		{
			return;
		}
		// Every object needs a class and a package, these included: the addresses come first.
		UPackage* Package = static_cast<UPackage*>(FObjectFactory::Allocate(sizeof(UPackage), alignof(UPackage)));
		for (FClassRecord* Record : Roots)
		{
			Record->Class = static_cast<UClass*>(FObjectFactory::Allocate(sizeof(UClass), alignof(UClass)));
		}
		FObjectFactory::ConstructNative(Package, ClassOf<UPackage>(), nullptr, FName("/Script/CoreUObject"),
			[](void* Place, const FObjectInitializer& Initializer) { ::new (Place) UPackage(Initializer); });
		Package->SetPackageFlags(PKG_CompiledIn);
		for (FClassRecord* Record : Roots)
		{
			FObjectFactory::ConstructNative(Record->Class, ClassOf<UClass>(), Package, FName(Record->Name),
				[](void* Place, const FObjectInitializer& Initializer) { ::new (Place) UClass(Initializer); });
		}
		for (FClassRecord* Record : Roots)
		{
			Fill(Record->Class, *Record);
		}
	}

	UPackage* FTypeBuilder::FindOrMakePackage(const char* Name)
	{
		const FName PackageName(Name);
		UObject* Existing = FObjectNameTable::Get().Find(nullptr, nullptr, PackageName);
		if (Existing)
		{
			return static_cast<UPackage*>(Existing);
		}
		UPackage* Package = MakeNative<UPackage>(UPackage::StaticClass(), nullptr, PackageName);
		Package->SetPackageFlags(PKG_CompiledIn);
		return Package;
	}

	UClass* FTypeBuilder::Build(FClassRecord& Record)
	{
		BuildRoots();
		if (Record.Class)
		{
			return Record.Class; // it was one of the roots
		}
		// Super classes first; their records never lead back here.
		UClass* SuperClass = Record.Super ? Record.Super() : nullptr;
		checkf(SuperClass, TEXT("Class %s has no super class."), *FString(Record.Name));
		Record.Class = MakeNative<UClass>(UClass::StaticClass(), FindOrMakePackage(Record.Package), FName(Record.Name));
		Fill(Record.Class, Record);
		return Record.Class;
	}

	void FTypeBuilder::Fill(UClass* Class, const FClassRecord& Record)
	{
		UClass* SuperClass = Record.Super ? Record.Super() : nullptr;
		Class->SetSuperStruct(SuperClass);
		Class->PropertiesSize = static_cast<int32>(Record.Size);
		Class->MinAlignment = static_cast<int32>(Record.Align);
		const EClassFlags Inherited = SuperClass ? static_cast<EClassFlags>(SuperClass->ClassFlags & CLASS_Inherit) : CLASS_None;
		Class->ClassFlags = static_cast<EClassFlags>(Record.Flags | Inherited | CLASS_Native | CLASS_Constructed);
		if (Record.ConfigName && *Record.ConfigName)
		{
			Class->ClassConfigName = FName(Record.ConfigName);
		}
		else if (SuperClass)
		{
			Class->ClassConfigName = SuperClass->ClassConfigName;
		}
		if (!Class->ClassConfigName.IsNone())
		{
			Class->ClassFlags = static_cast<EClassFlags>(Class->ClassFlags | CLASS_Config);
		}
		Class->Construct = Record.Construct;
		Class->CollectReferences = Record.AddReferencedObjects ? Record.AddReferencedObjects : SuperClass->CollectReferences;
		Class->CppPrefix = Record.CppName[0] == 'A' ? "A" : "U";
		Class->FunctionRecords = Record.Functions;
		Class->NumFunctionRecords = Record.NumFunctions;
		FillMembers(Class, Record.Properties, Record.NumProperties);
		Class->MetaData.SetRecords(Record.MetaData, Record.NumMetaData);
		for (int32 Index = 0; Index < Record.NumInterfaces; ++Index)
		{
			Class->Interfaces.Add(FImplementedInterface{Record.Interfaces[Index].Class(), Record.Interfaces[Index].ToInterface, false});
		}
	}

	void FTypeBuilder::FillMembers(UStruct* Struct, const FPropertyRecord* Properties, int32 NumProperties)
	{
		Struct->PropertyRecords = Properties;
		Struct->NumPropertyRecords = NumProperties;
	}

	UScriptStruct* FTypeBuilder::Build(FStructRecord& Record)
	{
		BuildRoots();
		UScriptStruct* SuperStruct = Record.Super ? Record.Super() : nullptr;
		UScriptStruct* Struct = MakeNative<UScriptStruct>(UScriptStruct::StaticClass(), FindOrMakePackage(Record.Package), FName(Record.Name));
		Record.Struct = Struct;
		Struct->SetSuperStruct(SuperStruct);
		Struct->PropertiesSize = static_cast<int32>(Record.Size);
		Struct->MinAlignment = static_cast<int32>(Record.Align);
		Struct->StructFlags = static_cast<EStructFlags>(Record.Flags | STRUCT_Native);
		Struct->Ops = &Record.Ops();
		Struct->CppName = Record.CppName;
		FillMembers(Struct, Record.Properties, Record.NumProperties);
		Struct->MetaData.SetRecords(Record.MetaData, Record.NumMetaData);
		return Struct;
	}

	UEnum* FTypeBuilder::Build(FEnumRecord& Record)
	{
		BuildRoots();
		UEnum* Enum = MakeNative<UEnum>(UEnum::StaticClass(), FindOrMakePackage(Record.Package), FName(Record.Name));
		Record.Enum = Enum;
		Enum->CppType = FString(Record.CppType);
		Enum->Record = &Record;
		for (int32 Index = 0; Index < Record.NumEnumerators; ++Index)
		{
			Enum->Names.Emplace(FName(Record.Enumerators[Index].Name), Record.Enumerators[Index].Value);
		}
		const bool bScoped = Record.NumEnumerators > 0 && std::strstr(Record.Enumerators[0].Name, "::");
		if (bScoped)
		{
			Enum->CppForm = std::strstr(Record.CppType, "::") ? UEnum::ECppForm::Namespaced : UEnum::ECppForm::EnumClass;
		}
		Enum->AddMaxEntry();
		Enum->MetaData.SetRecords(Record.MetaData, Record.NumMetaData);
		return Enum;
	}

	FProperty* FTypeBuilder::MakeProperty(const FPropertyRecord& Record, UStruct* Owner)
	{
		FProperty* Property = Record.Make(Record);
		Property->NamePrivate = FName(Record.Name);
		Property->OwnerStruct = Owner;
		Property->Offset = static_cast<int32>(Record.Offset);
		Property->PropertyFlags = static_cast<EPropertyFlags>(Record.Flags);
		Property->MetaData.SetRecords(Record.MetaData, Record.NumMetaData);
		Property->OnOwnerSet();
		return Property;
	}

	UFunction* FTypeBuilder::MakeFunction(const FFunctionRecord& Record, UClass* Owner)
	{
		UFunction* Function = MakeNative<UFunction>(UFunction::StaticClass(), Owner, FName(Record.Name));
		Function->FunctionFlags = static_cast<EFunctionFlags>(Record.Flags);
		Function->ParmsSize = static_cast<uint16>(Record.ParmsSize);
		Function->PropertiesSize = static_cast<int32>(Record.ParmsSize);
		Function->Thunk = Record.Thunk;
		FillMembers(Function, Record.Parameters, Record.NumParameters);
		Function->MetaData.SetRecords(Record.MetaData, Record.NumMetaData);
		return Function;
	}

	void FTypeBuilder::Derive(UClass* Class, UClass* Parent)
	{
		checkf(Parent && !Class->GetSuperClass(), TEXT("%s needs one parent class."), *Class->GetName());
		Class->SetSuperStruct(Parent);
		Class->PropertiesSize = Parent->PropertiesSize;
		Class->MinAlignment = Parent->MinAlignment;
		Class->ClassFlags = static_cast<EClassFlags>((Parent->ClassFlags & CLASS_Inherit) | CLASS_CompiledFromBlueprint | CLASS_Constructed);
		Class->ClassConfigName = Parent->ClassConfigName;
		Class->Construct = Parent->Construct;
		Class->CollectReferences = Parent->CollectReferences;
		Class->CppPrefix = Parent->CppPrefix;
	}

	UFunction* FTypeBuilder::AddScriptFunction(UClass* Class, FName Name, UFunction::FScriptBody Body)
	{
		if (UFunction* Own = Class->FindOwnFunction(Name))
		{
			Own->Script = MoveTemp(Body);
			return Own;
		}
		const UFunction* Overridden = Class->FindFunctionByName(Name);
		UFunction* Function = NewObject<UFunction>(Class, Name, RF_Public);
		Function->FunctionFlags = FUNC_Public | FUNC_BlueprintCallable | FUNC_BlueprintEvent;
		if (Overridden)
		{
			Function->FunctionFlags = static_cast<EFunctionFlags>(Overridden->FunctionFlags & ~FUNC_Native);
			Function->ParmsSize = Overridden->ParmsSize;
			Function->PropertiesSize = Overridden->PropertiesSize;
			FillMembers(Function, Overridden->PropertyRecords, Overridden->NumPropertyRecords);
		}
		Function->Script = MoveTemp(Body);
		Class->OwnFunctions.Add(Function);
		Class->FunctionMap.Add(Name, Function);
		return Function;
	}

	UFunction* FTypeBuilder::AddScriptListener(UClass* Class, FName Name, const FDelegateSignature& Signature, UFunction::FScriptBody Body)
	{
		UFunction* Function = AddScriptFunction(Class, Name, MoveTemp(Body));
		Function->ParmsSize = static_cast<uint16>(Signature.Size);
		Function->PropertiesSize = Signature.Size;
		FillMembers(Function, Signature.Parameters, Signature.NumParameters);
		return Function;
	}

	void FTypeBuilder::SetTextOps(UScriptStruct* Struct, const FStructTextOps& TextOps)
	{
		Struct->TextOps = &TextOps;
	}
}
