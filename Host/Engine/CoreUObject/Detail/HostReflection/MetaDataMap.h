// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/Map.h"
#include "Containers/UnrealString.h"
#include "HostReflection/Records.h"
#include "UObject/NameTypes.h"

namespace UE::Reflection
{
	/** Key-value metadata of one reflected thing: generated records until someone asks, a map from then on. Keys ignore case. */
	class FMetaDataMap
	{
	public:
		void SetRecords(const FMetaDataRecord* InRecords, int32 InNum);

		const FString* Find(FName Key) const;

	private:
		void Unpack() const;

		mutable const FMetaDataRecord* Records = nullptr;
		mutable int32 NumRecords = 0; // 0 once unpacked
		mutable TMap<FName, FString> Values;
	};
}
