// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Framework/Commands/Commands.h"

/** The toolkit's editor commands. */
class FVelmorantProEdCommands : public TCommands<FVelmorantProEdCommands>
{
public:
	FVelmorantProEdCommands();

	//~ Begin TCommands
	virtual void RegisterCommands() override;
	//~ End TCommands

	/** Stands for the toolbar menu as a whole; no action is mapped to it. */
	TSharedPtr<FUICommandInfo> VelmorantCommand_OpenMenu;

	TSharedPtr<FUICommandInfo> VelmorantPro_OpenProSettings;
	TSharedPtr<FUICommandInfo> VelmorantPro_OpenProUISettings;
	TSharedPtr<FUICommandInfo> VelmorantSDK_OpenSDKSettings;
};
