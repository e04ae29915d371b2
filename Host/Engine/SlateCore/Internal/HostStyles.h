// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"

struct FSlateBrush;

/** One brush that was put into a style set. */
struct FHostBrushRegistration
{
	FName Key;
	const FSlateBrush* Brush = nullptr; // good while the style set lives
};

/** What is known of the running editor's style sets. */
namespace HostStyles
{
	/** Names of the registered style sets, in order of registration. */
	TArray<FName> GetRegisteredStyles();

	/** All brushes ever set in a registered style set, in order, repeated keys included. Empty when there is no such set. */
	TArray<FHostBrushRegistration> GetBrushRegistrations(FName StyleName);

	/** The brush of a key in the first registered set that has it; null when none has. */
	const FSlateBrush* FindBrush(FName Key);
}
