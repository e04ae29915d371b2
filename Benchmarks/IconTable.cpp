// Copyright Velmorant. All Rights Reserved.

#include "IconTable.h"

#include "FontIconData.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"
#include "VelmorantProUISettings.h"

UDataTable* IconTable::Make(int64 NumIcons)
{
	UDataTable* Table = NewObject<UDataTable>(CreatePackage(Package), TEXT("Large"), RF_Public | RF_Standalone | RF_Transactional);
	Table->RowStruct = FFontIconRow::StaticStruct();
	for (int64 Index = 0; Index < NumIcons; ++Index)
	{
		const int32 Number = static_cast<int32>(Index);
		FFontIconRow Row;
		Row.Label = FString::Printf(TEXT("Icon number %d"), Number);
		Row.Character = FString::Printf(TEXT("%c"), static_cast<TCHAR>(0xE000 + Number % 0x1900));
		Row.IconStyles.Add(Styles[0]);
		if (Number % 2 == 0)
		{
			Row.IconStyles.Add(Styles[1]);
		}
		Row.SearchTags = {TEXT("house"), FString::Printf(TEXT("group %d"), Number / 10), FString::Printf(TEXT("word-%d"), Number)};
		Table->AddRow(GetIconName(Index), Row);
	}
	return Table;
}

FName IconTable::GetIconName(int64 Index)
{
	return FName(FString::Printf(TEXT("icon-%d-round"), static_cast<int32>(Index)));
}

void IconTable::EnterInSettings()
{
	FFontIconSource& Source = GetMutableDefault<UVelmorantProUISettings>()->FontIcons.AddDefaulted_GetRef();
	Source.FontID = FontID;
	Source.IconDataTable = FSoftObjectPath(FString(Package) + TEXT(".Large"));
}
