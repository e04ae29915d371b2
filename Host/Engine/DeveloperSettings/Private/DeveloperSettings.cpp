// Copyright Velmorant. All Rights Reserved.

#include "Engine/DeveloperSettings.h"

#include "Modules/ModuleManager.h"
#include "UObject/Class.h"

IMPLEMENT_MODULE(FDefaultModuleImpl, DeveloperSettings)

namespace DeveloperSettings
{
	bool IsUserPreference(FName ConfigName)
	{
		return ConfigName == FName(TEXT("EditorPerProjectUserSettings")) || ConfigName == FName(TEXT("EditorSettings"));
	}
}

FName UDeveloperSettings::GetContainerName() const
{
	return DeveloperSettings::IsUserPreference(GetClass()->ClassConfigName) ? FName(TEXT("Editor")) : FName(TEXT("Project"));
}

FName UDeveloperSettings::GetCategoryName() const
{
	const FName ConfigName = GetClass()->ClassConfigName;
	for (const TCHAR* Own : {TEXT("Engine"), TEXT("Game"), TEXT("Editor")})
	{
		if (ConfigName == FName(Own))
		{
			return FName(Own);
		}
	}
	return FName(TEXT("General"));
}

FName UDeveloperSettings::GetSectionName() const
{
	return GetClass()->GetFName();
}
