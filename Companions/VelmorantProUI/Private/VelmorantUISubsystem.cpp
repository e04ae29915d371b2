// Copyright Velmorant. All Rights Reserved.

#include "VelmorantUISubsystem.h"

#include "Engine/Engine.h"
#include "Styling/AppStyle.h"
#include "VelmorantColorHandler.h"
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
		Complain(FString::Printf(TEXT("The Velmorant Pro UI settings name %s: its rows are no icons."), *Source->IconDataTable.ToString()));
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

FLinearColor UVelmorantUISubsystem::ResolveColor(const FVelmorantColorHandler& Handler) const
{
	FLinearColor Color = Handler.ColorMode == EVelmorantColorMode::Custom ? Handler.ColorCustom : GetVelmorantColorByID(Handler.ColorID, Handler.bUseContrast);
	if (Handler.bOverrideOpacity)
	{
		Color.A = Handler.OpacityOverride;
	}
	return Color;
}

FSlateFontInfo UVelmorantUISubsystem::GetFontStyleByID(FName ID) const
{
	FSlateFontInfo Info = FAppStyle::GetFontStyle("NormalFont");
	const UVelmorantUIStyleConfiguration* Style = GetStyleConfiguration();
	const FVelmorantFontStyle* Entry = Style != nullptr ? Style->FindFontStyle(ID) : nullptr;
	if (Entry == nullptr)
	{
		if (Style != nullptr) // without one, nobody said how texts look
		{
			Complain(FString::Printf(TEXT("%s has no font style \"%s\"."), *Style->GetPathName(), *ID.ToString()));
		}
		return Info;
	}
	if (const UFont* Font = Load(Entry->Font))
	{
		Info.FontObject = const_cast<UFont*>(Font);
	}
	if (!Entry->Typeface.IsNone())
	{
		Info.TypefaceFontName = Entry->Typeface;
	}
	Info.Size = Entry->Size;
	return Info;
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
		Complain(FString::Printf(TEXT("The Velmorant Pro UI settings name %s: there is no such %s."), *Asset.ToString(), *AssetType::StaticClass()->GetName()));
	}
	return Loaded;
}

void UVelmorantUISubsystem::Complain(const FString& Problem) const
{
	bool bAlreadySaid = false;
	Complaints.Add(Problem, &bAlreadySaid);
	UE_CLOG(!bAlreadySaid, LogVelmorantProUI, Warning, TEXT("%s"), *Problem);
}
