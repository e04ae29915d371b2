// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "AssetTestEditor.h"
#include "HostDetailsView.h"
#include "HostObjects.h"
#include "HostSnapshot.h"
#include "PropertyHandle.h"
#include "TestDetails.h"
#include "TestPrinters.h"
#include "UObject/Package.h"
#include "UObject/StrongObjectPtr.h"

/** Details panels of one object, or of two whose values are alike at first. */
class FDetailsTestEditor : public FAssetTestEditor
{
protected:
	FDetailsTestEditor()
		: First(NewObject<UTestDetails>(CreatePackage(TEXT("/Game/First")), FName(TEXT("First")), RF_Public | RF_Standalone | RF_Transactional))
		, Second(NewObject<UTestDetails>(CreatePackage(TEXT("/Game/Second")), FName(TEXT("Second")), RF_Public | RF_Standalone | RF_Transactional))
	{
	}

	TArray<UObject*> One() const { return {First.Get()}; }
	TArray<UObject*> Both() const { return {First.Get(), Second.Get()}; }

	/** Lets one frame pass. */
	static void Tick() { FTSTicker::GetCoreTicker().Tick(0.0f); }

	static std::string Snapshot(FHostDetailsView& View) { return Utf8(HostSnapshot::Take(View.GetWidget())); }

	/** What a person reads in a row; why not, when it cannot be read. */
	static std::string Read(FHostDetailsView& View, const TCHAR* Row)
	{
		FString Reason;
		const TOptional<FString> Text = HostSnapshot::Read(View.GetWidget(), Row, Reason);
		return Utf8(Text.IsSet() ? Text.GetValue() : Reason);
	}

	/** Empty when the input was taken. */
	static std::string Refusal(const FHostInputResult& Result) { return Result.bDone ? std::string() : Utf8(Result.Reason); }

	static std::string Type(FHostDetailsView& View, const TCHAR* Row, const TCHAR* Text) { return Refusal(HostSnapshot::Type(View.GetWidget(), Row, Text)); }

	TStrongObjectPtr<UTestDetails> First;
	TStrongObjectPtr<UTestDetails> Second;
};
