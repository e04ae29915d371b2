// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "UObject/ObjectMacros.h"
#include "EditorNotificationCompletionState.generated.h"

/** How an editor notification stands: the Blueprint face of the notification item's own state. */
UENUM(BlueprintType)
enum class EEditorNotificationCompletionState : uint8
{
	CS_None = 0,
	CS_Pending = 1,
	CS_Success = 2,
	CS_Fail = 3
};
