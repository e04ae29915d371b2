// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/UnrealString.h"
#include "Templates/Function.h"

class UPackage;

/** What the object system keeps for the running editor: its transient package, and who loads the others. */
class FEditorPackages
{
public:
	static FEditorPackages& Get();

	/** Made when it is first asked for. */
	UPackage* GetTransientPackage();
	/** It was destroyed. */
	void ForgetTransientPackage() { TransientPackage = nullptr; }

	TFunction<UPackage*(const FString& LongPackageName)> Loader;

private:
	UPackage* TransientPackage = nullptr; // rooted
};
