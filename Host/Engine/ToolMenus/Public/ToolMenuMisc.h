// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"

enum class EToolMenuInsertType : uint8
{
	Default,
	Before,
	After,
	First,
};

/** Where a section or an entry goes: last, first, or beside another one by name. */
struct FToolMenuInsert
{
	FToolMenuInsert() = default;
	FToolMenuInsert(const FName InName, EToolMenuInsertType InPosition)
		: Name(InName)
		, Position(InPosition)
	{
	}

	bool IsDefault() const { return Position == EToolMenuInsertType::Default; }

	FName Name;
	EToolMenuInsertType Position = EToolMenuInsertType::Default;
};
