// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Model.h"

namespace HeaderTool
{
	class FDiagnostics;
	class FTypeTable;

	/** Where a type stands: that decides what it may be. */
	enum class ETypePlace
	{
		Member,
		Parameter,
		Return,
	};

	struct FTypeContext
	{
		std::string Path;
		std::string What; // "UPROPERTY type", "parameter 'Size' of 'Resize': type"
		ETypePlace Place = ETypePlace::Member;
		const FClass* Scope = nullptr; // null at file scope
		bool bBlueprint = false; // visible to Blueprints, which know fewer types
	};

	/** Finds out what Type is, and reports a type that cannot stand where it does, with what to use instead. */
	void CheckType(FTypeUse& Type, const FTypeContext& Context, const FTypeTable& Types, FDiagnostics& Diagnostics);
}
