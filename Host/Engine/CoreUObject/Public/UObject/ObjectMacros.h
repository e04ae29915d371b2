// Copyright Velmorant. All Rights Reserved.
// Flags of objects, classes and properties, and the markup that the header tool reads.

#pragma once

#include "CoreTypes.h"
#include "Misc/EnumClassFlags.h"
#include "UObject/Script.h"

/** State and role of one object. */
enum EObjectFlags : uint32
{
	RF_NoFlags = 0x00000000,
	RF_Public = 0x00000001, // visible outside its package
	RF_Standalone = 0x00000002, // kept for editing even when nothing refers to it
	RF_MarkAsNative = 0x00000004, // lives as long as the process
	RF_Transactional = 0x00000008, // takes part in undo
	RF_ClassDefaultObject = 0x00000010, // the template of its class
	RF_ArchetypeObject = 0x00000020, // a template for other objects
	RF_Transient = 0x00000040, // never saved
	RF_NeedInitialization = 0x00000200, // its constructor has not finished
	RF_NeedLoad = 0x00000400,
	RF_NeedPostLoad = 0x00001000,
	RF_BeginDestroyed = 0x00008000,
	RF_FinishDestroyed = 0x00010000,
	RF_DefaultSubObject = 0x00040000, // made by its owner's constructor
	RF_WasLoaded = 0x00080000,
	RF_TextExportTransient = 0x00100000,
	RF_LoadCompleted = 0x00200000,
	RF_DuplicateTransient = 0x02000000,
};
ENUM_CLASS_FLAGS(EObjectFlags)

#define RF_AllFlags static_cast<EObjectFlags>(0x0fffffff)

/** Flags that a default subobject takes over from its owner. */
#define RF_PropagateToSubObjects (RF_Public | RF_ArchetypeObject | RF_Transactional | RF_Transient)

/** What the collection keeps although nothing refers to it, in an editor. */
#define GARBAGE_COLLECTION_KEEPFLAGS (GIsEditor ? RF_Standalone : RF_NoFlags)

enum EClassFlags : uint32
{
	CLASS_None = 0x00000000u,
	CLASS_Abstract = 0x00000001u,
	CLASS_DefaultConfig = 0x00000002u,
	CLASS_Config = 0x00000004u,
	CLASS_Native = 0x00000080u,
	CLASS_NotPlaceable = 0x00000200u,
	CLASS_PerObjectConfig = 0x00000400u,
	CLASS_Interface = 0x00004000u,
	CLASS_CompiledFromBlueprint = 0x00040000u,
	CLASS_MinimalAPI = 0x00080000u,
	CLASS_Deprecated = 0x02000000u,
	CLASS_Intrinsic = 0x10000000u,
	CLASS_Constructed = 0x20000000u,
	CLASS_NewerVersionExists = 0x80000000u,
};
ENUM_CLASS_FLAGS(EClassFlags)

/** Class flags that a derived class takes over. */
#define CLASS_Inherit static_cast<EClassFlags>(CLASS_DefaultConfig | CLASS_Config | CLASS_PerObjectConfig | CLASS_NotPlaceable)

enum EStructFlags : uint32
{
	STRUCT_NoFlags = 0x00000000,
	STRUCT_Native = 0x00000001,
};

/** How a property is stored, shown and passed. */
enum EPropertyFlags : uint64
{
	CPF_None = 0,
	CPF_Edit = 0x0000000000000001,
	CPF_ConstParm = 0x0000000000000002,
	CPF_BlueprintVisible = 0x0000000000000004,
	CPF_BlueprintReadOnly = 0x0000000000000010,
	CPF_EditFixedSize = 0x0000000000000040,
	CPF_Parm = 0x0000000000000080,
	CPF_OutParm = 0x0000000000000100,
	CPF_ReturnParm = 0x0000000000000400,
	CPF_Transient = 0x0000000000002000,
	CPF_Config = 0x0000000000004000,
	CPF_EditConst = 0x0000000000020000,
	CPF_GlobalConfig = 0x0000000000040000,
	CPF_DuplicateTransient = 0x0000000000200000,
	CPF_ReferenceParm = 0x0000000008000000,
	CPF_BlueprintAssignable = 0x0000000010000000,
	CPF_NativeAccessSpecifierPublic = 0x0010000000000000,
	CPF_NativeAccessSpecifierProtected = 0x0020000000000000,
	CPF_NativeAccessSpecifierPrivate = 0x0040000000000000,
};
ENUM_CLASS_FLAGS(EPropertyFlags)

using ERenameFlags = uint32;
inline constexpr ERenameFlags REN_None = 0x0000;
inline constexpr ERenameFlags REN_ForceNoResetLoaders = 0x0001;
inline constexpr ERenameFlags REN_Test = 0x0002; // only says whether the rename would work
inline constexpr ERenameFlags REN_DoNotDirty = 0x0004;
inline constexpr ERenameFlags REN_DontCreateRedirectors = 0x0010;
inline constexpr ERenameFlags REN_NonTransactional = 0x0020; // undo does not take it back

enum ELoadFlags : uint32
{
	LOAD_None = 0x00000000,
	LOAD_NoWarn = 0x00000002,
	LOAD_Quiet = 0x00002000,
};

enum EPackageFlags : uint32
{
	PKG_None = 0x00000000,
	PKG_NewlyCreated = 0x00000001,
	PKG_CompiledIn = 0x00000010,
	PKG_PlayInEditor = 0x00000100,
	PKG_ContainsMap = 0x00020000,
};

// The markup. It expands to nothing for the compiler; the header tool reads it.
#define UPROPERTY(...)
#define UFUNCTION(...)
#define USTRUCT(...)
#define UMETA(...)
#define UPARAM(...)
#define UENUM(...)
#define UCLASS(...)
#define UINTERFACE(...)

// The body of a reflected type is a macro that the generated header defines for the line on which it is asked for.
#define BODY_MACRO_COMBINE_INNER(A, B, C, D) A##B##C##D
#define BODY_MACRO_COMBINE(A, B, C, D) BODY_MACRO_COMBINE_INNER(A, B, C, D)

#define GENERATED_BODY(...) BODY_MACRO_COMBINE(CURRENT_FILE_ID, _, __LINE__, _GENERATED_BODY)
#define GENERATED_USTRUCT_BODY(...) GENERATED_BODY()
#define GENERATED_UCLASS_BODY(...) GENERATED_BODY()
#define GENERATED_UINTERFACE_BODY(...) GENERATED_BODY()
#define GENERATED_IINTERFACE_BODY(...) GENERATED_BODY()

#define RESULT_PARAM Z_Param__Result
#define RESULT_DECL void* const RESULT_PARAM

/** A function that unpacks the parameters of a reflected call and makes the native one. */
#define DECLARE_FUNCTION(func) static void func(UObject* Context, FFrame& Stack, RESULT_DECL)
#define DEFINE_FUNCTION(func) void func(UObject* Context, FFrame& Stack, RESULT_DECL)
