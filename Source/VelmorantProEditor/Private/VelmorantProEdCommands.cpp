// Copyright Velmorant. All Rights Reserved.

#include "VelmorantProEdCommands.h"

#include "VelmorantEditorStyle.h"

#define LOCTEXT_NAMESPACE "FVelmorantProEditor"

FVelmorantProEdCommands::FVelmorantProEdCommands()
	: TCommands<FVelmorantProEdCommands>(
		  TEXT("VelmorantProEdCommands"),
		  LOCTEXT("VelmorantProEdCommands_Desc", "VelmorantProEdCommands Settings"),
		  NAME_None,
		  FVelmorantEditorStyle::GetStyleSetName())
{
}

void FVelmorantProEdCommands::RegisterCommands()
{
	UI_COMMAND(VelmorantCommand_OpenMenu, "Register User", "Open Velmorant Options", EUserInterfaceActionType::Button, FInputChord());
	UI_COMMAND(VelmorantPro_OpenProSettings, "Velmorant Pro Settings", "Open Velmorant Pro Settings panel", EUserInterfaceActionType::Button, FInputChord());
	UI_COMMAND(VelmorantPro_OpenProUISettings, "Velmorant Pro UI Settings", "Open Velmorant Pro UI Settings panel", EUserInterfaceActionType::Button, FInputChord());
	UI_COMMAND(VelmorantSDK_OpenSDKSettings, "Velmorant SDK Settings", "Open Velmorant SDK Settings panel", EUserInterfaceActionType::Button, FInputChord());
}

#undef LOCTEXT_NAMESPACE
