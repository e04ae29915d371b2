// Copyright Velmorant. All Rights Reserved.
// Making, finding and loading objects.

#pragma once

#include "Containers/Array.h"
#include "Containers/StringView.h"
#include "Containers/UnrealString.h"
#include "CoreTypes.h"
#include "Delegates/Delegate.h"
#include "Templates/Function.h"
#include "UObject/NameTypes.h"
#include "UObject/ObjectMacros.h"
#include "UObject/TopLevelAssetPath.h"

class FConfigCacheIni;
class FObjectFactory;
class FObjectInitializer;
class UClass;
class UFunction;
class UObject;
class UPackage;
class UStruct;
struct FObjectInstancingGraph;
struct FPropertyChangedEvent;

/** The outer of what is never saved: "/Engine/Transient". Rooted; one per editor. */
UPackage* GetTransientPackage();

/** What one construction needs; see StaticConstructObject_Internal. */
struct FStaticConstructObjectParameters
{
	explicit FStaticConstructObjectParameters(const UClass* InClass)
		: Class(InClass)
	{
	}

	const UClass* Class;
	UObject* Outer = nullptr;
	FName Name;
	EObjectFlags SetFlags = RF_NoFlags;
	bool bCopyTransientsFromClassDefaults = false;
	UObject* Template = nullptr;
};

/**
 * Makes an object: runs its native constructor, then copies the reflected values of its template (else of the class default
 * object). A name already used by an object of the same class rebuilds that object in place; by another class is fatal.
 */
UObject* StaticConstructObject_Internal(const FStaticConstructObjectParameters& Params);

/**
 * Lives while one object is constructed, and finishes it: values of the template, then PostInitProperties().
 * Constructions nest; Get() is the innermost.
 */
class FObjectInitializer
{
public:
	FObjectInitializer(const FObjectInitializer&) = delete;
	FObjectInitializer& operator=(const FObjectInitializer&) = delete;
	/** When a fatal error leaves the constructor, the half-made object is dropped. */
	~FObjectInitializer() noexcept(false);

	/** Fatal when no object is being constructed. */
	static FObjectInitializer& Get();
	template<class TReturnType>
	TReturnType* CreateDefaultSubobject(UObject* SubobjectOuter, FName SubobjectName, bool bTransient = false) const
	{
		UClass* ReturnType = TReturnType::StaticClass();
		return static_cast<TReturnType*>(CreateDefaultSubobject(SubobjectOuter, SubobjectName, ReturnType, ReturnType, true, bTransient));
	}

	template<class TReturnType, class TClassToConstructByDefault>
	TReturnType* CreateDefaultSubobject(UObject* SubobjectOuter, FName SubobjectName, bool bTransient = false) const
	{
		return static_cast<TReturnType*>(CreateDefaultSubobject(SubobjectOuter, SubobjectName, TReturnType::StaticClass(),
			TClassToConstructByDefault::StaticClass(), true, bTransient));
	}

	/** A subobject that each object of the class owns under the same name. Null for an abstract class that is not required. */
	UObject* CreateDefaultSubobject(UObject* SubobjectOuter, FName SubobjectName, const UClass* ReturnType,
		const UClass* ClassToCreateByDefault, bool bIsRequired, bool bIsTransient) const;

	/** Reports an object made with default arguments inside its outer's constructor: that should be a default subobject. */
	static void AssertIfInConstructor(const UObject* Outer, const TCHAR* ErrorMessage);

private:
	friend class FObjectFactory;
	friend class UObject;

	FObjectInitializer(UObject* InObj, UClass* InClass, UObject* InOuter, FName InName, EObjectFlags InFlags, UObject* InArchetype);

	void InitProperties() const;

	UObject* Obj; // raw memory until the constructor of UObject ran
	UClass* Class;
	UObject* Outer;
	FName Name;
	EObjectFlags Flags;
	UObject* ObjectArchetype; // null: the native constructor alone decides
	FObjectInitializer* Previous;
	int32 ReusedIndex = INDEX_NONE; // the object's place in the table when it is rebuilt in place
	bool bCopyTransients = false;
	int32 UncaughtExceptions; // before the construction
	mutable bool bIsRegistered = false; // the constructor of UObject ran
	bool bIsDeferred = false; // types of the object system itself are not initialised from templates
};

template<class T>
T* NewObject(UObject* Outer, const UClass* Class, FName Name = NAME_None, EObjectFlags Flags = RF_NoFlags,
	UObject* Template = nullptr, bool bCopyTransientsFromClassDefaults = false, FObjectInstancingGraph* = nullptr,
	UPackage* = nullptr)
{
	if (Name.IsNone())
	{
		FObjectInitializer::AssertIfInConstructor(Outer, TEXT("NewObject without a name cannot make default subobjects; use CreateDefaultSubobject."));
	}
	FStaticConstructObjectParameters Params(Class);
	Params.Outer = Outer;
	Params.Name = Name;
	Params.SetFlags = Flags;
	Params.Template = Template;
	Params.bCopyTransientsFromClassDefaults = bCopyTransientsFromClassDefaults;
	return static_cast<T*>(StaticConstructObject_Internal(Params));
}

template<class T>
T* NewObject(UObject* Outer = reinterpret_cast<UObject*>(GetTransientPackage()))
{
	return NewObject<T>(Outer, T::StaticClass());
}

template<class T>
T* NewObject(UObject* Outer, FName Name, EObjectFlags Flags = RF_NoFlags, UObject* Template = nullptr,
	bool bCopyTransientsFromClassDefaults = false, FObjectInstancingGraph* = nullptr)
{
	return NewObject<T>(Outer, T::StaticClass(), Name, Flags, Template, bCopyTransientsFromClassDefaults);
}

/** A name that no object in Outer has: Base_N, or Class_N without a base. */
FName MakeUniqueObjectName(UObject* Outer, const UClass* Class, FName BaseName = NAME_None);

/** An object already in memory. Name may be a path "/Package.Object:Sub.Sub"; without Outer it must be one. Null class finds any. */
UObject* StaticFindObject(UClass* Class, UObject* InOuter, const TCHAR* Name, bool bExactClass = false);
UObject* StaticFindObject(UClass* Class, FTopLevelAssetPath ObjectPath, bool bExactClass = false);
/** Name is a plain name; a null outer finds packages. */
UObject* StaticFindObjectFast(UClass* Class, UObject* InOuter, FName Name, bool bExactClass = false);

enum class EFindFirstObjectOptions : int32
{
	None = 0,
	ExactClass = 1,
	NativeFirst = 2,
	EnsureIfAmbiguous = 4,
};
/** The first object with this plain name, whatever its outer; oldest first. */
UObject* StaticFindFirstObject(UClass* Class, const TCHAR* Name, EFindFirstObjectOptions Options = EFindFirstObjectOptions::None);

/** Finds the object, else loads its package. "/Path/Asset" stands for "/Path/Asset.Asset". Null, and a warning, when there is none. */
UObject* StaticLoadObject(UClass* Class, UObject* InOuter, const TCHAR* Name, const TCHAR* Filename = nullptr, uint32 LoadFlags = LOAD_None);

template<class T>
T* FindObject(UObject* Outer, const TCHAR* Name, bool bExactClass = false)
{
	return static_cast<T*>(StaticFindObject(T::StaticClass(), Outer, Name, bExactClass));
}

template<class T>
T* FindFirstObject(const TCHAR* Name, EFindFirstObjectOptions Options = EFindFirstObjectOptions::None)
{
	return static_cast<T*>(StaticFindFirstObject(T::StaticClass(), Name, Options));
}

template<class T>
T* LoadObject(UObject* Outer, const TCHAR* Name, const TCHAR* Filename = nullptr, uint32 LoadFlags = LOAD_None)
{
	return static_cast<T*>(StaticLoadObject(T::StaticClass(), Outer, Name, Filename, LoadFlags));
}

/** A package in memory, by long name. Null when there is none. */
UPackage* FindPackage(UObject* InOuter, const TCHAR* PackageName);
/** Finds the package, else makes an empty one. The name must be long ("/Game/Dir/Asset") and without a dot. */
UPackage* CreatePackage(const TCHAR* PackageName);
/** Finds the package or loads it with all its objects. Null when it exists nowhere. */
UPackage* LoadPackage(UPackage* InOuter, const TCHAR* LongPackageName, uint32 LoadFlags = LOAD_None);

/** Destroys what neither the root set nor a kept object reaches; KeepFlags keep objects on their own. */
void CollectGarbage(EObjectFlags KeepFlags, bool bPerformFullPurge = true);

/** Non-null and not garbage. */
bool IsValid(const UObject* Test);

/** Told of all references of an object, by properties and by AddReferencedObjects functions. It may also change them. */
class FReferenceCollector
{
public:
	virtual ~FReferenceCollector() = default;

	template<class T>
	void AddReferencedObject(T*& Object, const UObject* = nullptr)
	{
		if (Object)
		{
			HandleObjectReference(*reinterpret_cast<UObject**>(const_cast<std::remove_const_t<T>**>(&Object)));
		}
	}

	/** Anything that wraps one object pointer, such as TObjectPtr and TSubclassOf. */
	template<class TPointer>
	requires requires(TPointer& Pointer) { Pointer.GetReferenceForCollector(); }
	void AddReferencedObject(TPointer& Pointer, const UObject* = nullptr)
	{
		UObject*& Object = Pointer.GetReferenceForCollector();
		if (Object)
		{
			HandleObjectReference(Object);
		}
	}

	/** Arrays and sets of object pointers. */
	template<class TContainer>
	void AddReferencedObjects(TContainer& Container)
	{
		for (auto& Element : Container)
		{
			AddReferencedObject(Element);
		}
	}

protected:
	/** Object is not null. */
	virtual void HandleObjectReference(UObject*& Object) = 0;
};

/** Events of all objects; cleared when the editor goes down. */
struct FCoreUObjectDelegates
{
	DECLARE_MULTICAST_DELEGATE_TwoParams(FOnObjectPropertyChanged, UObject*, FPropertyChangedEvent&);
	static FOnObjectPropertyChanged OnObjectPropertyChanged;

	DECLARE_MULTICAST_DELEGATE_OneParam(FOnObjectModified, UObject*);
	static FOnObjectModified OnObjectModified;

	static FSimpleMulticastDelegate& GetPreGarbageCollectDelegate();
	static FSimpleMulticastDelegate& GetPostGarbageCollect();
};
