// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Subsystems/Subsystem.h"
#include "Subsystems/SubsystemCollection.h"
#include "EditorSubsystem.generated.h"

/** Made when the editor starts, gone when it exits. Get one with GEditor->GetEditorSubsystem(). */
UCLASS(Abstract)
class EDITORSUBSYSTEM_API UEditorSubsystem : public USubsystem
{
	GENERATED_BODY()
};
