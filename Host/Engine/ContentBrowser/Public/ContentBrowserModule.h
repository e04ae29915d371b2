// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "IContentBrowserSingleton.h"
#include "Modules/ModuleInterface.h"
#include "Modules/ModuleManager.h"
#include "Templates/UniquePtr.h"

/** Owns the content browser of the running editor. */
class CONTENTBROWSER_API FContentBrowserModule : public IModuleInterface
{
public:
	FContentBrowserModule();
	virtual ~FContentBrowserModule() override;

	virtual IContentBrowserSingleton& Get() const;

	//~ Begin IModuleInterface
	virtual void StartupModule() override;
	//~ End IModuleInterface

private:
	TUniquePtr<IContentBrowserSingleton> ContentBrowser;
};
