// Copyright Velmorant. All Rights Reserved.

#include "EditorServices/VelmorantChange.h"

#include "UObject/Class.h"
#include "UObject/Object.h"
#include "UObject/PropertyPortFlags.h"

void VelmorantChange::Begin(UObject& Object)
{
	Object.SetFlags(RF_Transactional);
	Object.Modify();
}

bool VelmorantChange::AreSame(const UScriptStruct& Struct, const void* Left, const void* Right)
{
	if (!Struct.CompareScriptStruct(Left, Right, PPF_None))
	{
		return false;
	}
	// Strings compare without regard to case; another letter case is a change all the same.
	FString LeftText;
	FString RightText;
	Struct.ExportText(LeftText, Left, nullptr, nullptr, PPF_None, nullptr);
	Struct.ExportText(RightText, Right, nullptr, nullptr, PPF_None, nullptr);
	return LeftText.Equals(RightText, ESearchCase::CaseSensitive);
}
