// Copyright Velmorant. All Rights Reserved.

#include "Run/ScriptExtension.h"

namespace ScriptExtension
{
	FScriptExtension& GetCurrent()
	{
		static FScriptExtension Current;
		return Current;
	}

	void Set(const FScriptExtension& Extension)
	{
		GetCurrent() = Extension;
	}

	const FScriptExtension& Get()
	{
		return GetCurrent();
	}
}
