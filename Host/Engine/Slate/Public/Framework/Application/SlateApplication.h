// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Templates/UniquePtr.h"

class FSlateRenderer;

/** The user interface of a running editor. There is none before the editor brought it up, and none in a program without windows. */
class SLATE_API FSlateApplication
{
public:
	virtual ~FSlateApplication();

	static bool IsInitialized();

	/** Only while IsInitialized(). */
	static FSlateApplication& Get();

	FSlateRenderer* GetRenderer() const { return Renderer.Get(); }

	/** Closes every menu that is open. */
	void DismissAllMenus();

protected:
	FSlateApplication();

private:
	friend class FHostSlateAccess;

	TUniquePtr<FSlateRenderer> Renderer;
};
