// Copyright Velmorant. All Rights Reserved.

#include "VelmorantUISubsystem.h"

#include "Engine/Engine.h"
#include "VelmorantProUILog.h"
#include "VelmorantProUISettings.h"
#include "VelmorantUIStyleConfiguration.h"

namespace VelmorantUISubsystem
{
	const FFontIconSource* FindSource(FName FontID)
	{
		const TArray<FFontIconSource>& Sources = GetDefault<UVelmorantProUISettings>()->FontIcons;
		return FontID.IsNone() ? nullptr : Sources.FindByPredicate([FontID](const FFontIconSource& Source) { return Source.FontID == FontID; });
	}

	TArray<FName> GetIDs(const TArray<FVelmorantPaletteColor>& Colors)
	{
		TArray<FName> IDs;
		for (const FVelmorantPaletteColor& Entry : Colors)
		{
			IDs.Add(Entry.ID);
		}
		return IDs;
	}

	/** The styles of all icons, in the order in which they first occur. */
	TArray<FName> GetOccurringStyles(const UDataTable& Table)
	{
		TArray<FName> Styles;
		Table.ForeachRow<FFontIconRow>(TEXT("VelmorantUISubsystem"), [&Styles](const FName&, const FFontIconRow& Row) {
			for (const FName Style : Row.IconStyles)
			{
				Styles.AddUnique(Style);
			}
		});
		return Styles;
	}
}

UVelmorantUISubsystem* UVelmorantUISubsystem::Get()
{
	return GEngine != nullptr ? GEngine->GetEngineSubsystem<UVelmorantUISubsystem>() : nullptr;
}

TArray<FName> UVelmorantUISubsystem::GetAllFontIconOptions() const
{
	TArray<FName> IDs;
	for (const FFontIconSource& Source : GetDefault<UVelmorantProUISettings>()->FontIcons)
	{
		IDs.Add(Source.FontID);
	}
	return IDs;
}

TArray<FName> UVelmorantUISubsystem::GetAllFontIconsStylesNames(FName FontID) const
{
	const FFontIconData Data = GetFontIconDataByID(FontID);
	if (Data.IconDataTable == nullptr)
	{
		return {};
	}
	TArray<FName> Occurring = VelmorantUISubsystem::GetOccurringStyles(*Data.IconDataTable);
	if (Data.Font == nullptr)
	{
		return Occurring;
	}
	TArray<FName> Styles;
	for (const FTypefaceEntry& Typeface : Data.Font->CompositeFont.DefaultTypeface.Fonts)
	{
		if (Occurring.Remove(Typeface.Name) > 0)
		{
			Styles.Add(Typeface.Name);
		}
	}
	Styles.Append(Occurring);
	return Styles;
}

TArray<FName> UVelmorantUISubsystem::GetAllIconsNames(FName FontID) const
{
	const FFontIconData Data = GetFontIconDataByID(FontID);
	return Data.IconDataTable != nullptr ? Data.IconDataTable->GetRowNames() : TArray<FName>();
}

FFontIconData UVelmorantUISubsystem::GetFontIconDataByID(FName FontID) const
{
	FFontIconData Data;
	const FFontIconSource* Source = VelmorantUISubsystem::FindSource(FontID);
	if (Source == nullptr)
	{
		return Data;
	}
	Data.FontID = Source->FontID;
	Data.Font = Load(Source->Font);
	Data.IconDataTable = Load(Source->IconDataTable);
	if (Data.IconDataTable != nullptr && (Data.IconDataTable->RowStruct == nullptr || !Data.IconDataTable->RowStruct->IsChildOf(FFontIconRow::StaticStruct())))
	{
		Complain(Source->IconDataTable.ToSoftObjectPath(), TEXT("its rows are no icons"));
		Data.IconDataTable = nullptr;
	}
	return Data;
}

TArray<FName> UVelmorantUISubsystem::GetAllColorSimpleOptions() const
{
	const UVelmorantUIStyleConfiguration* Style = GetStyleConfiguration();
	return Style != nullptr ? VelmorantUISubsystem::GetIDs(Style->SimpleColors) : TArray<FName>();
}

TArray<FName> UVelmorantUISubsystem::GetAllColorStyleOptions() const
{
	const UVelmorantUIStyleConfiguration* Style = GetStyleConfiguration();
	return Style != nullptr ? VelmorantUISubsystem::GetIDs(Style->StyleColors) : TArray<FName>();
}

FLinearColor UVelmorantUISubsystem::GetVelmorantColorByID(FName ID, bool bUseContrast) const
{
	const UVelmorantUIStyleConfiguration* Style = GetStyleConfiguration();
	const FVelmorantPaletteColor* Entry = Style != nullptr ? Style->FindColor(ID) : nullptr;
	if (Entry == nullptr)
	{
		return FLinearColor(1.0f, 0.0f, 1.0f, 1.0f); // stands out in every picture
	}
	return bUseContrast ? Entry->ContrastColor : Entry->Color;
}

UVelmorantUIStyleConfiguration* UVelmorantUISubsystem::GetStyleConfiguration() const
{
	return Load(GetDefault<UVelmorantProUISettings>()->StyleConfiguration);
}

template<typename AssetType>
AssetType* UVelmorantUISubsystem::Load(const TSoftObjectPtr<AssetType>& Asset) const
{
	if (Asset.IsNull())
	{
		return nullptr;
	}
	AssetType* Loaded = Asset.Get();
	if (Loaded == nullptr)
	{
		Loaded = Cast<AssetType>(StaticLoadObject(AssetType::StaticClass(), nullptr, *Asset.ToString(), nullptr, LOAD_Quiet));
	}
	if (Loaded == nullptr)
	{
		Complain(Asset.ToSoftObjectPath(), *FString::Printf(TEXT("there is no such %s"), *AssetType::StaticClass()->GetName()));
	}
	return Loaded;
}

void UVelmorantUISubsystem::Complain(const FSoftObjectPath& Asset, const TCHAR* Problem) const
{
	bool bAlreadySaid = false;
	Complaints.Add(Asset.ToString() + Problem, &bAlreadySaid);
	UE_CLOG(!bAlreadySaid, LogVelmorantProUI, Warning, TEXT("The Velmorant Pro UI settings name %s: %s."), *Asset.ToString(), Problem);
}
