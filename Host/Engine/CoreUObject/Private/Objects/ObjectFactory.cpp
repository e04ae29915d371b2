// Copyright Velmorant. All Rights Reserved.

#include "Objects/ObjectFactory.h"

#include "Misc/AssertionMacros.h"
#include "Objects/ObjectNameTable.h"
#include "UObject/Object.h"
#include "UObject/Package.h"
#include "UObject/UnrealType.h"

#include <cstring>
#include <exception>

namespace ObjectConstruction
{
	static FObjectInitializer* Innermost = nullptr;

	/** Turns references into the template into references to the same-named objects inside the new object. */
	class FReferenceMapper final : public FReferenceCollector
	{
	public:
		FReferenceMapper(const UObject* InFrom, UObject* InTo)
			: From(InFrom)
			, To(InTo)
		{
		}

		/** Null when the new object has no such inner object. */
		UObject* Map(const UObject* Inner) const
		{
			if (Inner == From)
			{
				return To;
			}
			UObject* Outer = Map(Inner->GetOuter());
			return Outer ? FObjectNameTable::Get().Find(nullptr, Outer, Inner->GetFName()) : nullptr;
		}

	protected:
		void HandleObjectReference(UObject*& Object) override
		{
			if (Object->IsIn(From))
			{
				Object = Map(Object);
			}
		}

	private:
		const UObject* From;
		UObject* To;
	};

	void CopyReferences(const FProperty* Property, UObject* To, const UObject* From, FReferenceMapper& Mapper)
	{
		if (const FObjectProperty* ObjectProperty = CastField<FObjectProperty>(Property))
		{
			UObject* Value = ObjectProperty->GetObjectPropertyValue_InContainer(From);
			if (Value && Value->IsIn(From))
			{
				// The constructor made its own; without one of that name, what the constructor chose stays.
				if (UObject* Own = Mapper.Map(Value))
				{
					ObjectProperty->SetObjectPropertyValue_InContainer(To, Own);
				}
				return;
			}
		}
		Property->CopyCompleteValue_InContainer(To, From);
		Property->CollectReferences(Property->ContainerPtrToValuePtr(To), Mapper);
	}

	/** The object of the wanted name, whose place the new one takes; null when there is none. */
	UObject* FindForRebuild(const FStaticConstructObjectParameters& Params)
	{
		UObject* Existing = Params.Name.IsNone() ? nullptr : FObjectNameTable::Get().Find(nullptr, Params.Outer, Params.Name);
		checkf(!Existing || Existing->GetClass() == Params.Class, TEXT("Cannot make a %s named %s: %s is there already, and of another class."),
			*Params.Class->GetName(), *Params.Name.ToString(), *Existing->GetFullName());
		checkf(!Existing || !FObjectTable::Get().GetItem(Existing).bNative, TEXT("Cannot replace %s."), *Existing->GetFullName());
		return Existing;
	}

	/** The object whose values a new one starts with. */
	UObject* ChooseArchetype(const FStaticConstructObjectParameters& Params, FName Name)
	{
		if (Params.Template)
		{
			return Params.Template;
		}
		if (Params.SetFlags & RF_ClassDefaultObject)
		{
			// Native constructors already call those of their super classes.
			return Params.Class->HasAnyClassFlags(CLASS_Native) ? nullptr : Params.Class->GetSuperClass()->GetDefaultObject();
		}
		if (Params.SetFlags & RF_DefaultSubObject)
		{
			UObject* OuterArchetype = Params.Outer->GetArchetype();
			UObject* Found = OuterArchetype ? FObjectNameTable::Get().Find(Params.Class, OuterArchetype, Name) : nullptr;
			if (Found)
			{
				return Found;
			}
		}
		return Params.Class->GetDefaultObject();
	}
}

FObjectInitializer::FObjectInitializer(UObject* InObj, UClass* InClass, UObject* InOuter, FName InName, EObjectFlags InFlags, UObject* InArchetype)
	: Obj(InObj)
	, Class(InClass)
	, Outer(InOuter)
	, Name(InName)
	, Flags(InFlags)
	, ObjectArchetype(InArchetype)
	, Previous(ObjectConstruction::Innermost)
	, UncaughtExceptions(std::uncaught_exceptions())
{
	ObjectConstruction::Innermost = this;
}

FObjectInitializer::~FObjectInitializer() noexcept(false)
{
	ObjectConstruction::Innermost = Previous;
	if (std::uncaught_exceptions() > UncaughtExceptions)
	{
		FObjectFactory::DropHalfMade(Obj, Class, bIsRegistered);
		return;
	}
	if (bIsDeferred)
	{
		Obj->ClearFlags(RF_NeedInitialization);
		return;
	}
	InitProperties();
	if (Flags & RF_ClassDefaultObject || Class->HasAnyClassFlags(CLASS_PerObjectConfig))
	{
		Obj->LoadConfig();
	}
	Obj->ClearFlags(RF_NeedInitialization);
	Obj->PostInitProperties();
}

FObjectInitializer& FObjectInitializer::Get()
{
	checkf(ObjectConstruction::Innermost, TEXT("Objects are made with NewObject or CreateDefaultSubobject, and only their constructors may ask for this."));
	return *ObjectConstruction::Innermost;
}

void FObjectInitializer::InitProperties() const
{
	if (!ObjectArchetype)
	{
		return;
	}
	const UClass* ArchetypeClass = ObjectArchetype->GetClass();
	const UStruct* Common = Class->IsChildOf(ArchetypeClass) ? static_cast<const UStruct*>(ArchetypeClass) : Class;
	const UObject* Defaults = bCopyTransients ? Class->GetDefaultObject() : ObjectArchetype;
	const auto ChooseSource = [this, Defaults](const FProperty* Property) {
		return Property->HasAnyPropertyFlags(CPF_Transient | CPF_DuplicateTransient) ? Defaults : ObjectArchetype;
	};
	for (const FProperty* Property : Common->GetPlainProperties())
	{
		Property->CopyCompleteValue_InContainer(Obj, ChooseSource(Property));
	}
	for (const FProperty* Property : Common->GetReferenceProperties())
	{
		const UObject* Source = ChooseSource(Property);
		ObjectConstruction::FReferenceMapper Mapper(Source, Obj);
		ObjectConstruction::CopyReferences(Property, Obj, Source, Mapper);
	}
}

UObject* FObjectInitializer::CreateDefaultSubobject(UObject* SubobjectOuter, FName SubobjectName, const UClass* ReturnType,
	const UClass* ClassToCreateByDefault, bool bIsRequired, bool bIsTransient) const
{
	checkf(SubobjectOuter == Obj, TEXT("Default subobjects are made for the object under construction."));
	checkf(!SubobjectName.IsNone(), TEXT("A default subobject of %s needs a name."), *Class->GetName());
	checkf(ClassToCreateByDefault->IsChildOf(ReturnType), TEXT("Default subobject %s: %s is no %s."), *SubobjectName.ToString(),
		*ClassToCreateByDefault->GetName(), *ReturnType->GetName());
	if (ClassToCreateByDefault->HasAnyClassFlags(CLASS_Abstract))
	{
		checkf(!bIsRequired, TEXT("Default subobject %s cannot be of the abstract class %s."), *SubobjectName.ToString(), *ClassToCreateByDefault->GetName());
		return nullptr;
	}
	FStaticConstructObjectParameters Params(ClassToCreateByDefault);
	Params.Outer = SubobjectOuter;
	Params.Name = SubobjectName;
	Params.SetFlags = (Obj->GetFlags() & RF_PropagateToSubObjects) | RF_DefaultSubObject;
	if (Obj->HasAnyFlags(RF_ClassDefaultObject))
	{
		Params.SetFlags = Params.SetFlags | RF_ArchetypeObject;
	}
	if (bIsTransient)
	{
		Params.SetFlags = Params.SetFlags | RF_Transient;
	}
	return StaticConstructObject_Internal(Params);
}

void FObjectInitializer::AssertIfInConstructor(const UObject* Outer, const TCHAR* ErrorMessage)
{
	const FObjectInitializer* Initializer = ObjectConstruction::Innermost;
	const bool bInConstructor = Initializer && Initializer->Obj == Outer && !Initializer->bIsDeferred;
	ensureMsgf(!bInConstructor, TEXT("%s"), ErrorMessage);
}

UObject* StaticConstructObject_Internal(const FStaticConstructObjectParameters& Params)
{
	return FObjectFactory::Construct(Params);
}

UObject* FObjectFactory::Construct(const FStaticConstructObjectParameters& Params)
{
	checkf(Params.Class, TEXT("NewObject without a class."));
	UClass* Class = const_cast<UClass*>(Params.Class);
	const bool bDefaultObject = (Params.SetFlags & RF_ClassDefaultObject) != 0;
	checkf(Params.Outer || Class->IsChildOf(UPackage::StaticClass()), TEXT("NewObject of %s without an outer."), *Class->GetName());
	checkf(bDefaultObject || !Class->HasAnyClassFlags(CLASS_Abstract), TEXT("NewObject of the abstract class %s."), *Class->GetName());

	const FName Name = Params.Name.IsNone() ? FObjectNameTable::Get().MakeUniqueName(Params.Outer, Class, NAME_None) : Params.Name;
	UObject* Archetype = ObjectConstruction::ChooseArchetype(Params, Name);
	checkf(!Archetype || Class->IsChildOf(Archetype->GetClass()) || Archetype->IsA(Class), TEXT("%s cannot be the template of a new %s."),
		*Archetype->GetPathName(), *Class->GetName());
	void* Memory = nullptr;
	int32 ReusedIndex = INDEX_NONE;
	if (UObject* Existing = ObjectConstruction::FindForRebuild(Params))
	{
		ReusedIndex = FObjectTable::IndexOf(Existing);
		Existing->ConditionalBeginDestroy();
		Existing->~UObject();
		std::memset(static_cast<void*>(Existing), 0, static_cast<std::size_t>(Class->GetPropertiesSize()));
		Memory = Existing;
	}
	else
	{
		Memory = Allocate(Class->GetPropertiesSize(), Class->GetMinAlignment());
	}

	UObject* Object = static_cast<UObject*>(Memory);
	if (bDefaultObject)
	{
		Class->ClassDefaultObject = Object; // its own constructor may ask for it
	}
	FObjectInitializer Initializer(Object, Class, Params.Outer, Name, Params.SetFlags, Archetype);
	Initializer.ReusedIndex = ReusedIndex;
	Initializer.bCopyTransients = Params.bCopyTransientsFromClassDefaults;
	Class->Construct(Memory, Initializer);
	return Object;
}

void FObjectFactory::ConstructNative(void* Memory, UClass* Class, UObject* Outer, FName Name, void (*Constructor)(void*, const FObjectInitializer&))
{
	FObjectInitializer Initializer(static_cast<UObject*>(Memory), Class, Outer, Name, RF_Public | RF_MarkAsNative, nullptr);
	Initializer.bIsDeferred = true;
	Constructor(Memory, Initializer);
}

void* FObjectFactory::Allocate(int32 Size, int32 Alignment)
{
	void* Memory = UE::Core::Private::AllocateElements(1, static_cast<std::size_t>(Size), static_cast<std::size_t>(Alignment));
	std::memset(Memory, 0, static_cast<std::size_t>(Size));
	return Memory;
}

void FObjectFactory::Free(void* Memory, int32 Size, int32 Alignment)
{
	UE::Core::Private::FreeElements(Memory, 1, static_cast<std::size_t>(Size), static_cast<std::size_t>(Alignment));
}

int32 FObjectFactory::Register(UObject* Object, int32 ReusedIndex, bool bNative)
{
	FObjectTable& Table = FObjectTable::Get();
	if (ReusedIndex != INDEX_NONE)
	{
		Table.Renew(ReusedIndex);
		return ReusedIndex;
	}
	const int32 Index = Table.Enter(Object, bNative);
	FObjectNameTable::Get().Add(Index);
	return Index;
}

void FObjectFactory::DropHalfMade(UObject* Object, UClass* Class, bool bRegistered)
{
	if (Class->ClassDefaultObject == Object)
	{
		Class->ClassDefaultObject = nullptr;
	}
	if (bRegistered)
	{
		const int32 Index = FObjectTable::IndexOf(Object);
		FObjectNameTable::Get().Remove(Index);
		FObjectNameTable::Get().DropNumbers(Index);
		FObjectTable::Get().Release(Index);
	}
	Free(Object, Class->GetPropertiesSize(), Class->GetMinAlignment());
}

UObject::UObject()
	: UObject(FObjectInitializer::Get())
{
}

UObject::UObject(const FObjectInitializer& ObjectInitializer)
	: ClassPrivate(ObjectInitializer.Class)
	, OuterPrivate(ObjectInitializer.Outer)
	, NamePrivate(ObjectInitializer.Name)
	, ObjectFlags(ObjectInitializer.Flags | RF_NeedInitialization)
{
	checkf(ObjectInitializer.Obj == this, TEXT("Objects are made with NewObject or CreateDefaultSubobject."));
	InternalIndex = FObjectFactory::Register(this, ObjectInitializer.ReusedIndex, (ObjectFlags & RF_MarkAsNative) != 0);
	ObjectInitializer.bIsRegistered = true;
}

UObject* UClass::CreateDefaultObject()
{
	if (UClass* SuperClass = GetSuperClass())
	{
		SuperClass->GetDefaultObject(); // constructors may look at it
	}
	if (!ClassDefaultObject)
	{
		FStaticConstructObjectParameters Params(this);
		Params.Outer = GetOuter();
		Params.Name = GetDefaultObjectName();
		Params.SetFlags = RF_Public | RF_ClassDefaultObject | RF_ArchetypeObject;
		StaticConstructObject_Internal(Params);
	}
	return ClassDefaultObject;
}
