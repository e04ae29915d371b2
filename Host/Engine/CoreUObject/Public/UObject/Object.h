// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/UnrealString.h"
#include "HostReflection/RootClass.h"
#include "UObject/NameTypes.h"
#include "UObject/ObjectMacros.h"
#include "UObject/UObjectGlobals.h"

#include <cstddef>
#include <type_traits>

class FConfigCacheIni;
class FProperty;
class FReferenceCollector;
class UWorld;
struct FPropertyChangedChainEvent;
struct FPropertyChangedEvent;

extern FConfigCacheIni* GConfig;

/**
 * Base of all reflected objects: a class, a name inside an outer, flags, and a life that ends in a garbage collection.
 *
 * Made by NewObject() only. Game thread only.
 */
class UObject
{
	HOST_ROOT_CLASS_BODY(UObject, UObject)

public:
	/** Both constructors take class, name, outer and flags from the innermost FObjectInitializer. */
	UObject();
	explicit UObject(const FObjectInitializer& ObjectInitializer);
	virtual ~UObject();
	static void* operator new(std::size_t) = delete;

	UClass* GetClass() const { return ClassPrivate; }
	UObject* GetOuter() const { return OuterPrivate; }
	FName GetFName() const { return NamePrivate; }
	FString GetName() const { return NamePrivate.ToString(); }

	/** "/Game/Dir/Asset.Asset", and "…Asset.Asset:Sub.Sub" for what lies deeper. StopOuter, and what is above it, is left out. */
	FString GetPathName(const UObject* StopOuter = nullptr) const;
	void GetPathName(const UObject* StopOuter, FString& ResultString) const;
	/** Class name, a blank, path. */
	FString GetFullName(const UObject* StopOuter = nullptr) const;

	/** The outermost object is always a package. */
	UPackage* GetOutermost() const;
	UPackage* GetPackage() const { return GetOutermost(); }
	/** The nearest outer of this class; null when there is none. The object itself does not count. */
	UObject* GetTypedOuter(const UClass* Target) const;
	template<typename T>
	T* GetTypedOuter() const
	{
		return static_cast<T*>(GetTypedOuter(T::StaticClass()));
	}
	/** Whether SomeOuter is among the outers. */
	bool IsIn(const UObject* SomeOuter) const;

	bool IsA(const UClass* SomeBase) const;
	template<class T>
	bool IsA() const
	{
		return IsA(T::StaticClass());
	}

	EObjectFlags GetFlags() const { return ObjectFlags; }
	bool HasAnyFlags(EObjectFlags FlagsToCheck) const { return (ObjectFlags & FlagsToCheck) != 0 || FlagsToCheck == RF_AllFlags; }
	bool HasAllFlags(EObjectFlags FlagsToCheck) const { return (ObjectFlags & FlagsToCheck) == FlagsToCheck || FlagsToCheck == RF_AllFlags; }
	void SetFlags(EObjectFlags NewFlags) { ObjectFlags = static_cast<EObjectFlags>(ObjectFlags | NewFlags); }
	void ClearFlags(EObjectFlags NewFlags) { ObjectFlags = static_cast<EObjectFlags>(ObjectFlags & ~NewFlags); }
	/** Unique among living objects; used again after death. */
	uint32 GetUniqueID() const { return static_cast<uint32>(InternalIndex); }

	/** The root set: kept by every collection. A flag, not a count. */
	void AddToRoot();
	void RemoveFromRoot();
	bool IsRooted() const;
	/** From now on IsValid() says no and weak pointers are null; the next collection takes it unless something refers to it. */
	void MarkAsGarbage();
	void ClearGarbage();
	bool IsUnreachable() const;

	/** Whether it is a public object directly in a package, and not transient. */
	virtual bool IsAsset() const;
	/** What the values of a new object of this class and name are copied from. Null for UObject's own default object. */
	UObject* GetArchetype() const;

	template<class TReturnType>
	TReturnType* CreateDefaultSubobject(FName SubobjectName, bool bTransient = false)
	{
		return FObjectInitializer::Get().CreateDefaultSubobject<TReturnType>(this, SubobjectName, bTransient);
	}
	template<class TReturnType, class TClassToConstructByDefault>
	TReturnType* CreateDefaultSubobject(FName SubobjectName, bool bTransient = false)
	{
		return FObjectInitializer::Get().CreateDefaultSubobject<TReturnType, TClassToConstructByDefault>(this, SubobjectName, bTransient);
	}

	/** The I… part for interface class InterfaceClass; null when only a script class implements it. */
	void* GetNativeInterfaceAddress(UClass* InterfaceClass);
	const void* GetNativeInterfaceAddress(UClass* InterfaceClass) const { return const_cast<UObject*>(this)->GetNativeInterfaceAddress(InterfaceClass); }
	/** The same, but the object itself when only a script class implements it. */
	void* GetInterfaceAddress(UClass* InterfaceClass);

	/** By name, case aside: the class's own functions, those of its interfaces, then the super classes'. */
	UFunction* FindFunction(FName InName) const;
	UFunction* FindFunctionChecked(FName InName) const;
	/** Calls Function on this object with its parameter block, which also takes the results. */
	virtual void ProcessEvent(UFunction* Function, void* Parms);

	/** After the constructor, once the values of the template are in. */
	virtual void PostInitProperties();
	/** After loading, once all values are in. */
	virtual void PostLoad() {}
	/** First step of destruction: let go of others. Other dying objects still exist. */
	virtual void BeginDestroy();
	/** Calls BeginDestroy() unless that has happened; false when it had. */
	bool ConditionalBeginDestroy();
	virtual void PostRename(UObject*, const FName) {}

	/** NewName null keeps the name, NewOuter null keeps the outer. @return whether the name was free. */
	virtual bool Rename(const TCHAR* NewName = nullptr, UObject* NewOuter = nullptr, ERenameFlags Flags = REN_None);

	/** Dirties the package that would save this object. @return whether the package is dirty now; the transient package never is. */
	bool MarkPackageDirty() const;
	/**
	 * Announces a change, before it is made: the package gets dirty, and the open step of undo, if any, records what the object is.
	 * Only objects that are RF_Transactional are recorded.
	 * @param bAlwaysMarkDirty false dirties the package only when the change is recorded
	 * @return whether it is recorded
	 */
	virtual bool Modify(bool bAlwaysMarkDirty = true);

	/** An undo or redo is about to change the object, and has changed it. All objects of a step are changed between the two. */
	virtual void PreEditUndo() { PreEditChange(nullptr); }
	virtual void PostEditUndo() { PostEditChange(); }

	virtual void PreEditChange(FProperty*) {}
	/** Something changed that is not one property. */
	virtual void PostEditChange();
	virtual void PostEditChangeProperty(FPropertyChangedEvent& PropertyChangedEvent);
	virtual void PostEditChangeChainProperty(FPropertyChangedChainEvent& PropertyChangedEvent);
	virtual bool CanEditChange(const FProperty*) const { return true; }

	/** The world it lives in, asked of its outer by default. Null outside a world. */
	virtual UWorld* GetWorld() const;

	/**
	 * Writes the config properties to the user's layer of the class's config file (below Saved/), and into the class default object.
	 * Does nothing for classes without a config file.
	 */
	void SaveConfig(uint64 RequiredPropertyFlags = CPF_Config, const TCHAR* Filename = nullptr, FConfigCacheIni* Config = GConfig,
		bool bAllowCopyToDefaultObject = true);
	/** Reads the config properties; those the file does not name keep their values. */
	void LoadConfig(UClass* ConfigClass = nullptr, const TCHAR* Filename = nullptr, uint32 PropagationFlags = 0, FProperty* PropertyToLoad = nullptr);
	/** "<Project>/Config/Default<Config>.ini"; empty for classes without a config file. */
	FString GetDefaultConfigFilename() const;
	/**
	 * Writes the section of this class in the project's default file (or in SpecificFileLocation), leaving all else there alone.
	 * @return whether the file could be written; if not, and bWarnIfFail, a warning is logged.
	 */
	bool TryUpdateDefaultConfigFile(const FString& SpecificFileLocation = FString(), bool bWarnIfFail = true);

	/** Hook for references that are not reflected: hide it in a derived class, and call Super's. */
	static void AddReferencedObjects(UObject* InThis, FReferenceCollector& Collector);

private:
	friend class FObjectInitializer;
	friend class FObjectNameTable;

	bool ImplementsInterfaceClass(const UClass* InterfaceClass) const;

	UClass* ClassPrivate;
	UObject* OuterPrivate;
	FName NamePrivate;
	EObjectFlags ObjectFlags;
	int32 InternalIndex; // place in the object table
};

// Templates such as NewObject<T>() and generated bodies ask classes for more than their name.
#include "UObject/Class.h"
