// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "AssetRegistry/AssetData.h"
#include "CoreMinimal.h"
#include "Delegates/Delegate.h"
#include "PropertyEditorModule.h"
#include "Templates/SharedPointer.h"
#include "UObject/PropertyPortFlags.h"

class FProperty;
class SWidget;

namespace EPropertyValueSetFlags
{
	typedef uint32 Type;

	/** The change is recorded for undo, and complete. */
	inline constexpr Type DefaultFlags = 0;
	/** The change is not recorded for undo. */
	inline constexpr Type NotTransactable = 1 << 0;
	/** One of many changes, as while a slider is dragged; the last one comes without this flag, and undo takes all of them back together. */
	inline constexpr Type InteractiveChange = 1 << 1;
}

/**
 * The way to one property of all objects that a details panel shows.
 *
 * Reading gives MultipleValues when the objects differ; the value passed in then stays as it was. Reading and writing fail, and change
 * nothing, when the type is not exactly the property's (an enum is read as the integer that stores it), and when an object is gone.
 *
 * Writing gives every object the value: it is told before and after (PreEditChange, PostEditChangeProperty) and its package gets
 * dirty; then the listeners of the property, of what is below it and of its parents are called, all before the function returns.
 * A value that all objects have already changes nothing and tells nobody. Otherwise writing is a step of undo, "Edit" and the name of the
 * property, or part of the step that is open.
 *
 * Host: handles live as long as somebody holds them, and keep neither the objects nor the panel alive.
 */
class IPropertyHandle : public TSharedFromThis<IPropertyHandle>
{
public:
	virtual ~IPropertyHandle() = default;

	/** Whether there is still a value to read and write. */
	virtual bool IsValidHandle() const = 0;

	/** A member of the struct, or below one when bRecurse says so. Null when there is none. */
	virtual TSharedPtr<IPropertyHandle> GetChildHandle(FName ChildName, bool bRecurse = true) const = 0;
	/** By place: members of structs, elements of containers; a map's elements have the key as name. Null when there is none. */
	virtual TSharedPtr<IPropertyHandle> GetChildHandle(uint32 Index) const = 0;
	/** Members or elements; 0 for plain values. Objects with containers of different lengths have those in common. */
	virtual FPropertyAccess::Result GetNumChildren(uint32& OutNumChildren) const = 0;

	virtual FPropertyAccess::Result GetValue(float& OutValue) const = 0;
	virtual FPropertyAccess::Result GetValue(double& OutValue) const = 0;
	virtual FPropertyAccess::Result GetValue(bool& OutValue) const = 0;
	virtual FPropertyAccess::Result GetValue(int8& OutValue) const = 0;
	virtual FPropertyAccess::Result GetValue(int16& OutValue) const = 0;
	virtual FPropertyAccess::Result GetValue(int32& OutValue) const = 0;
	virtual FPropertyAccess::Result GetValue(int64& OutValue) const = 0;
	virtual FPropertyAccess::Result GetValue(uint8& OutValue) const = 0;
	virtual FPropertyAccess::Result GetValue(uint16& OutValue) const = 0;
	virtual FPropertyAccess::Result GetValue(uint32& OutValue) const = 0;
	virtual FPropertyAccess::Result GetValue(uint64& OutValue) const = 0;
	virtual FPropertyAccess::Result GetValue(FString& OutValue) const = 0;
	virtual FPropertyAccess::Result GetValue(FText& OutValue) const = 0;
	virtual FPropertyAccess::Result GetValue(FName& OutValue) const = 0;
	virtual FPropertyAccess::Result GetValue(FVector& OutValue) const = 0;
	virtual FPropertyAccess::Result GetValue(FVector2D& OutValue) const = 0;
	virtual FPropertyAccess::Result GetValue(FRotator& OutValue) const = 0;
	/** Soft and weak references, too; what they lead to is loaded. */
	virtual FPropertyAccess::Result GetValue(UObject*& OutValue) const = 0;
	virtual FPropertyAccess::Result GetValue(const UObject*& OutValue) const = 0;
	/** Of what an object property refers to. Null is the default value. */
	virtual FPropertyAccess::Result GetValue(FAssetData& OutValue) const = 0;

	virtual FPropertyAccess::Result SetValue(const float& InValue, EPropertyValueSetFlags::Type Flags = EPropertyValueSetFlags::DefaultFlags) = 0;
	virtual FPropertyAccess::Result SetValue(const double& InValue, EPropertyValueSetFlags::Type Flags = EPropertyValueSetFlags::DefaultFlags) = 0;
	virtual FPropertyAccess::Result SetValue(const bool& InValue, EPropertyValueSetFlags::Type Flags = EPropertyValueSetFlags::DefaultFlags) = 0;
	virtual FPropertyAccess::Result SetValue(const int8& InValue, EPropertyValueSetFlags::Type Flags = EPropertyValueSetFlags::DefaultFlags) = 0;
	virtual FPropertyAccess::Result SetValue(const int16& InValue, EPropertyValueSetFlags::Type Flags = EPropertyValueSetFlags::DefaultFlags) = 0;
	virtual FPropertyAccess::Result SetValue(const int32& InValue, EPropertyValueSetFlags::Type Flags = EPropertyValueSetFlags::DefaultFlags) = 0;
	virtual FPropertyAccess::Result SetValue(const int64& InValue, EPropertyValueSetFlags::Type Flags = EPropertyValueSetFlags::DefaultFlags) = 0;
	virtual FPropertyAccess::Result SetValue(const uint8& InValue, EPropertyValueSetFlags::Type Flags = EPropertyValueSetFlags::DefaultFlags) = 0;
	virtual FPropertyAccess::Result SetValue(const uint16& InValue, EPropertyValueSetFlags::Type Flags = EPropertyValueSetFlags::DefaultFlags) = 0;
	virtual FPropertyAccess::Result SetValue(const uint32& InValue, EPropertyValueSetFlags::Type Flags = EPropertyValueSetFlags::DefaultFlags) = 0;
	virtual FPropertyAccess::Result SetValue(const uint64& InValue, EPropertyValueSetFlags::Type Flags = EPropertyValueSetFlags::DefaultFlags) = 0;
	virtual FPropertyAccess::Result SetValue(const FString& InValue, EPropertyValueSetFlags::Type Flags = EPropertyValueSetFlags::DefaultFlags) = 0;
	virtual FPropertyAccess::Result SetValue(const FText& InValue, EPropertyValueSetFlags::Type Flags = EPropertyValueSetFlags::DefaultFlags) = 0;
	virtual FPropertyAccess::Result SetValue(const FName& InValue, EPropertyValueSetFlags::Type Flags = EPropertyValueSetFlags::DefaultFlags) = 0;
	virtual FPropertyAccess::Result SetValue(const FVector& InValue, EPropertyValueSetFlags::Type Flags = EPropertyValueSetFlags::DefaultFlags) = 0;
	virtual FPropertyAccess::Result SetValue(const FVector2D& InValue, EPropertyValueSetFlags::Type Flags = EPropertyValueSetFlags::DefaultFlags) = 0;
	virtual FPropertyAccess::Result SetValue(const FRotator& InValue, EPropertyValueSetFlags::Type Flags = EPropertyValueSetFlags::DefaultFlags) = 0;
	/** Fails for an object of a class that the property does not take. */
	virtual FPropertyAccess::Result SetValue(UObject* const& InValue, EPropertyValueSetFlags::Type Flags = EPropertyValueSetFlags::DefaultFlags) = 0;
	virtual FPropertyAccess::Result SetValue(const UObject* const& InValue, EPropertyValueSetFlags::Type Flags = EPropertyValueSetFlags::DefaultFlags) = 0;
	/** The asset is loaded where the property needs it. */
	virtual FPropertyAccess::Result SetValue(const FAssetData& InValue, EPropertyValueSetFlags::Type Flags = EPropertyValueSetFlags::DefaultFlags) = 0;
	/** For strings. */
	virtual FPropertyAccess::Result SetValue(const TCHAR* InValue, EPropertyValueSetFlags::Type Flags = EPropertyValueSetFlags::DefaultFlags) = 0;

	/** Any value as text, such as "(R=1.000000,G=0.500000,B=0.000000,A=1.000000)". */
	virtual FPropertyAccess::Result GetValueAsFormattedString(FString& OutValue, EPropertyPortFlags PortFlags = PPF_PropertyWindow) const = 0;
	/** The other way round. Fails, and changes nothing, unless the whole text is a value of the property's type. */
	virtual FPropertyAccess::Result SetValueFromFormattedString(const FString& InValue, EPropertyValueSetFlags::Type Flags = EPropertyValueSetFlags::DefaultFlags) = 0;

	/** Adds a listener; those that are there stay. Not called for values that something else than a handle changed. */
	virtual void SetOnPropertyValueChanged(const FSimpleDelegate& InOnPropertyValueChanged) = 0;
	/** Adds a listener to changes of anything below. */
	virtual void SetOnChildPropertyValueChanged(const FSimpleDelegate& InOnChildPropertyValueChanged) = 0;

	/** The name as a details panel shows it. */
	virtual TSharedRef<SWidget> CreatePropertyNameWidget(const FText& NameOverride = FText::GetEmpty(), const FText& ToolTipOverride = FText::GetEmpty()) const = 0;

	/** Null once the handle is not valid. */
	virtual FProperty* GetProperty() const = 0;
};
