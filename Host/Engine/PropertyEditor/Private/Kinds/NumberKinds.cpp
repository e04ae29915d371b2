// Copyright Velmorant. All Rights Reserved.

#include "Kinds/NumberKinds.h"

#include "Misc/CString.h"
#include "Values/PropertyNode.h"

#include <cmath>

namespace NumberKinds
{
	/** As it is stored, also beyond what a signed number of 64 bits holds. */
	double GetStored(const FProperty& Property, const void* Value)
	{
		const FNumericProperty& Number = *CastFieldChecked<FNumericProperty>(&Property);
		if (Number.IsA<FUInt64Property>())
		{
			return static_cast<double>(Number.GetUnsignedIntPropertyValue(Value));
		}
		return static_cast<double>(Number.GetSignedIntPropertyValue(Value));
	}

	double GetFloat(const FProperty& Property, const void* Value)
	{
		return CastFieldChecked<FNumericProperty>(&Property)->GetFloatingPointPropertyValue(Value);
	}
}

bool FIntegerKind::Import(const FProperty& Property, const FString& Text, void* Value, UObject* Owner) const
{
	if (!FPropertyKind::Import(Property, Text, Value, Owner))
	{
		return false;
	}
	const double Wanted = FCString::Atod(*Text);
	return FMath::Abs(NumberKinds::GetStored(Property, Value) - Wanted) <= 1.0 + FMath::Abs(Wanted) * 1.e-9;
}

FString FFloatKind::GetEditText(const FPropertyNode& Node, const void* Value) const
{
	return FString::SanitizeFloat(NumberKinds::GetFloat(*Node.GetProperty(), Value));
}

bool FFloatKind::IsEndless(const FProperty& Property, const void* Value) const
{
	return !std::isfinite(NumberKinds::GetFloat(Property, Value));
}
