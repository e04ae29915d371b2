// Copyright Velmorant. All Rights Reserved.
// Included by UnrealType.h: the base of all properties.

#pragma once

#include "UObject/Field.h"
#include "UObject/ObjectMacros.h"
#include "UObject/UObjectGlobals.h"

#include <cstring>
#include <new>

class FOutputDevice;
class FReferenceCollector;

#define DECLARE_FIELD(TClass, TSuperClass) \
public: \
	using Super = TSuperClass; \
	static FFieldClass* StaticClass(); \
	static constexpr uint64 StaticClassCastFlags() \
	{ \
		return CASTCLASS_##TClass; \
	} \
	FFieldClass* GetClass() const override \
	{ \
		return StaticClass(); \
	}

/**
 * A reflected member of a struct or class, a parameter of a function, or the element of a container.
 *
 * "Value" pointers point to the member itself, "container" pointers to the object or struct that has it.
 */
class FProperty : public FField
{
	DECLARE_FIELD(FProperty, FField)

public:
	EPropertyFlags PropertyFlags = CPF_None;
	int32 ArrayDim = 1;

	int32 GetSize() const { return ElementSize; }
	int32 GetElementSize() const { return ElementSize; }
	int32 GetMinAlignment() const { return Alignment; }
	int32 GetOffset_ForInternal() const { return Offset; }
	/** As written in C++: "TArray<FName>". */
	virtual FString GetCPPType() const = 0;

	bool HasAnyPropertyFlags(uint64 FlagsToCheck) const { return (PropertyFlags & FlagsToCheck) != 0; }

	template<typename ValueType = void>
	ValueType* ContainerPtrToValuePtr(void* ContainerPtr, int32 ArrayIndex = 0) const
	{
		return reinterpret_cast<ValueType*>(static_cast<uint8*>(ContainerPtr) + Offset + ElementSize * ArrayIndex);
	}
	template<typename ValueType = void>
	const ValueType* ContainerPtrToValuePtr(const void* ContainerPtr, int32 ArrayIndex = 0) const
	{
		return reinterpret_cast<const ValueType*>(static_cast<const uint8*>(ContainerPtr) + Offset + ElementSize * ArrayIndex);
	}

	/** Constructs a default value in raw memory. */
	virtual void InitializeValue(void* Dest) const = 0;
	virtual void DestroyValue(void* Dest) const = 0;
	virtual void CopyCompleteValue(void* Dest, const void* Src) const = 0;
	/** B null stands for a default value. */
	virtual bool Identical(const void* A, const void* B, uint32 PortFlags = 0) const = 0;
	/** Back to a default value. */
	void ClearValue(void* Data) const
	{
		DestroyValue(Data);
		InitializeValue(Data);
	}

	void InitializeValue_InContainer(void* Container) const { InitializeValue(ContainerPtrToValuePtr(Container)); }
	void DestroyValue_InContainer(void* Container) const { DestroyValue(ContainerPtrToValuePtr(Container)); }
	void CopyCompleteValue_InContainer(void* Dest, const void* Src) const { CopyCompleteValue(ContainerPtrToValuePtr(Dest), ContainerPtrToValuePtr(Src)); }
	bool Identical_InContainer(const void* A, const void* B, int32 ArrayIndex = 0, uint32 PortFlags = 0) const
	{
		return Identical(ContainerPtrToValuePtr(A, ArrayIndex), B ? ContainerPtrToValuePtr(B, ArrayIndex) : nullptr, PortFlags);
	}

	/** Appends the text form. Fields of structs equal to those in DefaultValue are left out, unless it is PropertyValue or null. */
	void ExportTextItem_Direct(FString& ValueStr, const void* PropertyValue, const void* DefaultValue, UObject* Parent, int32 PortFlags,
		UObject* ExportRootScope = nullptr) const;
	void ExportTextItem_InContainer(FString& ValueStr, const void* Container, const void* DefaultValue, UObject* Parent, int32 PortFlags,
		UObject* ExportRootScope = nullptr) const;
	/** Like ExportTextItem_Direct, but false, and nothing appended, for a value equal to Delta (unless that is Data itself). */
	bool ExportText_Direct(FString& ValueStr, const void* Data, const void* Delta, UObject* Parent, int32 PortFlags,
		UObject* ExportRootScope = nullptr) const;

	/** @return what follows the value in Buffer; null, the value perhaps half changed, when the text does not fit the type. */
	const TCHAR* ImportText_Direct(const TCHAR* Buffer, void* PropertyPtr, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText = nullptr) const;
	const TCHAR* ImportText_InContainer(const TCHAR* Buffer, void* Container, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText = nullptr) const;

	/** Host: whether values can keep objects alive. */
	virtual bool ContainsObjectReference() const { return false; }
	/** Host: tells the collector of the objects that a value keeps alive. */
	virtual void CollectReferences(void*, FReferenceCollector&) const {}

protected:
	FProperty(int32 InElementSize, int32 InAlignment)
		: ElementSize(InElementSize)
		, Alignment(InAlignment)
	{
	}

	virtual void ExportText_Internal(FString& ValueStr, const void* Value, const void* DefaultValue, UObject* Parent, int32 PortFlags,
		UObject* ExportRootScope) const = 0;
	virtual const TCHAR* ImportText_Internal(const TCHAR* Buffer, void* Value, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText) const = 0;
	/** Called once name and owner are set: containers pass them on to their inner properties. */
	virtual void OnOwnerSet() {}
	/** Gives an inner property the name and owner of this one. */
	void Adopt(FProperty* Inner) const;

	int32 ElementSize;
	int32 Alignment;
	int32 Offset = 0; // of the value in its container

	friend struct UE::Reflection::FTypeBuilder;
};

#define DECLARE_PROPERTY_TEXT() \
protected: \
	void ExportText_Internal(FString& ValueStr, const void* Value, const void* DefaultValue, UObject* Parent, int32 PortFlags, UObject* ExportRootScope) const override; \
	const TCHAR* ImportText_Internal(const TCHAR* Buffer, void* Value, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText) const override;

#define DECLARE_PROPERTY_VALUES() \
public: \
	FString GetCPPType() const override; \
	void InitializeValue(void* Dest) const override; \
	void DestroyValue(void* Dest) const override; \
	void CopyCompleteValue(void* Dest, const void* Src) const override; \
	bool Identical(const void* A, const void* B, uint32 PortFlags = 0) const override; \
	DECLARE_PROPERTY_TEXT()

/** Property of a C++ type that can be constructed, copied and compared. */
template<typename InTCppType, typename TSuperClass>
class TProperty : public TSuperClass
{
public:
	using TCppType = InTCppType;

	TProperty()
		: TSuperClass(sizeof(TCppType), alignof(TCppType))
	{
	}

	static const TCppType& GetPropertyValue(const void* Value) { return *static_cast<const TCppType*>(Value); }
	static void SetPropertyValue(void* Dest, const TCppType& Value) { *static_cast<TCppType*>(Dest) = Value; }
	const TCppType& GetPropertyValue_InContainer(const void* Container) const { return GetPropertyValue(this->ContainerPtrToValuePtr(Container)); }

	void InitializeValue(void* Dest) const override { ::new (Dest) TCppType(); }
	void DestroyValue(void* Dest) const override { static_cast<TCppType*>(Dest)->~TCppType(); }
	void CopyCompleteValue(void* Dest, const void* Src) const override { SetPropertyValue(Dest, GetPropertyValue(Src)); }
	bool Identical(const void* A, const void* B, uint32 = 0) const override
	{
		return B ? IsSame(GetPropertyValue(A), GetPropertyValue(B)) : IsSame(GetPropertyValue(A), TCppType());
	}

protected:
	/** Overloaded for types that cannot simply be compared. */
	static bool IsSame(const TCppType& A, const TCppType& B)
	{
		if constexpr (requires { A.Equals(B); })
		{
			return A.Equals(B); // strings: case counts
		}
		else if constexpr (requires { A.IsEqual(B, ENameCase::CaseSensitive); })
		{
			return A.IsEqual(B, ENameCase::CaseSensitive);
		}
		else
		{
			return A == B;
		}
	}
};
