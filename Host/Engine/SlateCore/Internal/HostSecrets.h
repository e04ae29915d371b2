// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/UnrealString.h"

/**
 * What password fields held since the program began. A text that one widget calls a secret is one wherever else it turns up: in a
 * property, a log line, a message. Who prints anything hides it there.
 */
namespace HostSecrets
{
	void Note(const FString& Secret);

	/**
	 * The text with bullets in the place of secrets, as many whatever their length. Secrets of less than four characters are hidden where
	 * they stand alone: "a" would be everywhere.
	 */
	FString Hide(const FString& Text);
}
