// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "PropertyHandle.h"
#include "Values/PropertyNode.h"

// The types that are read and written as they lie in memory.
#define FOR_EACH_PLAIN_VALUE_TYPE(Do) \
	Do(float) Do(double) Do(bool) Do(int8) Do(int16) Do(int32) Do(int64) Do(uint8) Do(uint16) Do(uint32) Do(uint64) \
		Do(FString) Do(FText) Do(FName) Do(FVector) Do(FVector2D) Do(FRotator)

#define DECLARE_HANDLE_VALUE(ValueType) \
	virtual FPropertyAccess::Result GetValue(ValueType& OutValue) const override; \
	virtual FPropertyAccess::Result SetValue(const ValueType& InValue, EPropertyValueSetFlags::Type Flags) override;

/** A handle is nothing but its node: two handles of one property are as good as one. */
class FPropertyHandle final : public IPropertyHandle
{
public:
	explicit FPropertyHandle(const TSharedRef<FPropertyNode>& InNode)
		: Node(InNode)
	{
	}

	/** Null for null. */
	static TSharedPtr<IPropertyHandle> Make(const TSharedPtr<FPropertyNode>& InNode);
	/** Handles are made by this module only. */
	static TSharedRef<FPropertyNode> GetNode(const IPropertyHandle& Handle) { return static_cast<const FPropertyHandle&>(Handle).Node; }

	//~ Begin IPropertyHandle
	virtual bool IsValidHandle() const override { return Node->HasValues(); }
	virtual TSharedPtr<IPropertyHandle> GetChildHandle(FName ChildName, bool bRecurse) const override;
	virtual TSharedPtr<IPropertyHandle> GetChildHandle(uint32 Index) const override;
	virtual FPropertyAccess::Result GetNumChildren(uint32& OutNumChildren) const override;
	FOR_EACH_PLAIN_VALUE_TYPE(DECLARE_HANDLE_VALUE)
	virtual FPropertyAccess::Result GetValue(UObject*& OutValue) const override;
	virtual FPropertyAccess::Result GetValue(const UObject*& OutValue) const override;
	virtual FPropertyAccess::Result GetValue(FAssetData& OutValue) const override;
	virtual FPropertyAccess::Result SetValue(UObject* const& InValue, EPropertyValueSetFlags::Type Flags) override;
	virtual FPropertyAccess::Result SetValue(const UObject* const& InValue, EPropertyValueSetFlags::Type Flags) override;
	virtual FPropertyAccess::Result SetValue(const FAssetData& InValue, EPropertyValueSetFlags::Type Flags) override;
	virtual FPropertyAccess::Result SetValue(const TCHAR* InValue, EPropertyValueSetFlags::Type Flags) override;
	virtual FPropertyAccess::Result GetValueAsFormattedString(FString& OutValue, EPropertyPortFlags PortFlags) const override;
	virtual FPropertyAccess::Result SetValueFromFormattedString(const FString& InValue, EPropertyValueSetFlags::Type Flags) override;
	virtual void SetOnPropertyValueChanged(const FSimpleDelegate& InOnPropertyValueChanged) override;
	virtual void SetOnChildPropertyValueChanged(const FSimpleDelegate& InOnChildPropertyValueChanged) override;
	virtual TSharedRef<SWidget> CreatePropertyNameWidget(const FText& NameOverride, const FText& ToolTipOverride) const override;
	virtual FProperty* GetProperty() const override;
	//~ End IPropertyHandle

private:
	TSharedRef<FPropertyNode> Node;
};

#undef DECLARE_HANDLE_VALUE
