// Copyright Velmorant. All Rights Reserved.

#include "Styling/SlateStyleRegistry.h"

#include "HostState.h"
#include "HostStyles.h"
#include "Styling/SlateStyle.h"

namespace SlateStyleRegistry
{
	struct FRegistry
	{
		TArray<const ISlateStyle*> Styles; // in order of registration
	};

	FRegistry& Get()
	{
		static THostState<FRegistry> State;
		return State.Get();
	}

	int32 IndexOf(const FName& StyleName)
	{
		return Get().Styles.IndexOfByPredicate([&StyleName](const ISlateStyle* Style) { return Style->GetStyleSetName() == StyleName; });
	}
}

void FSlateStyleRegistry::RegisterSlateStyle(const ISlateStyle& InSlateStyle)
{
	const int32 Index = SlateStyleRegistry::IndexOf(InSlateStyle.GetStyleSetName());
	if (!ensureMsgf(Index == INDEX_NONE, TEXT("Slate Style '%s' was already registered."), *InSlateStyle.GetStyleSetName().ToString()))
	{
		SlateStyleRegistry::Get().Styles[Index] = &InSlateStyle;
		return;
	}
	SlateStyleRegistry::Get().Styles.Add(&InSlateStyle);
}

void FSlateStyleRegistry::UnRegisterSlateStyle(const ISlateStyle& InSlateStyle)
{
	SlateStyleRegistry::Get().Styles.Remove(&InSlateStyle);
}

void FSlateStyleRegistry::UnRegisterSlateStyle(const FName StyleName)
{
	const int32 Index = SlateStyleRegistry::IndexOf(StyleName);
	if (Index != INDEX_NONE)
	{
		SlateStyleRegistry::Get().Styles.RemoveAt(Index);
	}
}

const ISlateStyle* FSlateStyleRegistry::FindSlateStyle(const FName& InSlateStyleName)
{
	const int32 Index = SlateStyleRegistry::IndexOf(InSlateStyleName);
	return Index == INDEX_NONE ? nullptr : SlateStyleRegistry::Get().Styles[Index];
}

class FHostStyleAccess
{
public:
	static TArray<FHostBrushRegistration> GetRegistrations(const FSlateStyleSet& Style)
	{
		TArray<FHostBrushRegistration> Result;
		for (const FSlateStyleSet::FRegisteredBrush& Registered : Style.RegisteredBrushes)
		{
			Result.Add({Registered.Key, Registered.Brush.Get()});
		}
		return Result;
	}
};

TArray<FName> HostStyles::GetRegisteredStyles()
{
	TArray<FName> Result;
	for (const ISlateStyle* Style : SlateStyleRegistry::Get().Styles)
	{
		Result.Add(Style->GetStyleSetName());
	}
	return Result;
}

TArray<FHostBrushRegistration> HostStyles::GetBrushRegistrations(FName StyleName)
{
	const FSlateStyleSet* Style = dynamic_cast<const FSlateStyleSet*>(FSlateStyleRegistry::FindSlateStyle(StyleName));
	return Style ? FHostStyleAccess::GetRegistrations(*Style) : TArray<FHostBrushRegistration>();
}

const FSlateBrush* HostStyles::FindBrush(FName Key)
{
	for (const ISlateStyle* Style : SlateStyleRegistry::Get().Styles)
	{
		if (const FSlateBrush* Brush = Style->GetOptionalBrush(Key, nullptr, nullptr))
		{
			return Brush;
		}
	}
	return nullptr;
}
