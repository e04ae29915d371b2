// Copyright Velmorant. All Rights Reserved.

#include "Install/StyleImages.h"

#include "HostPlugins.h"
#include "HostStyles.h"
#include "Interfaces/IPluginManager.h"
#include "Styling/SlateBrush.h"
#include "Install/ToolkitData.h"
#include "VelmorantEditorStyle.h"

TArray<FString> StyleImages::List()
{
	HostPlugins::Discover({ToolkitData::GetCompanionsFolder()}); // the style set asks where the toolkit's plugin is
	FVelmorantEditorStyle::Initialize();
	const FString Resources = IPluginManager::Get().FindPlugin(TEXT("VelmorantPro"))->GetBaseDir() / TEXT("Resources/");
	TArray<FString> Images;
	for (const FHostBrushRegistration& Registration : HostStyles::GetBrushRegistrations(FVelmorantEditorStyle::GetStyleSetName()))
	{
		FString Path = Registration.Brush->GetResourceName().ToString().RightChop(Resources.Len());
		Path.RemoveFromStart(TEXT("/"));
		Images.AddUnique(Path);
	}
	FVelmorantEditorStyle::Shutdown();
	Images.Sort();
	return Images;
}
