// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"

/** Who added something to a menu: a name, or an object by its address. */
struct FToolMenuOwner
{
	FToolMenuOwner() = default;
	FToolMenuOwner(const void* InPointer)
		: Pointer(InPointer)
	{
	}
	FToolMenuOwner(const FName InName)
		: Name(InName)
	{
	}
	FToolMenuOwner(const TCHAR* InName)
		: Name(InName)
	{
	}
	FToolMenuOwner(const ANSICHAR* InName)
		: Name(InName)
	{
	}

	bool IsSet() const { return Pointer != nullptr || Name != NAME_None; }

	bool operator==(const FToolMenuOwner& Other) const { return Pointer == Other.Pointer && Name == Other.Name; }

private:
	const void* Pointer = nullptr;
	FName Name;
};
