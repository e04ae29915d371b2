// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/EnumAsByte.h"
#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "EngineTypes.generated.h"

/** What kind of world it is. The host knows editor worlds only; the others name what it never makes. */
namespace EWorldType
{
	enum Type : int
	{
		None,
		Game,
		Editor,
		PIE,
		EditorPreview,
		GamePreview,
		GameRPC,
		Inactive,
	};
}

/** What to do when an actor would be spawned inside something. Host: nothing collides, so every method spawns. */
UENUM(BlueprintType)
enum class ESpawnActorCollisionHandlingMethod : uint8
{
	Undefined,
	AlwaysSpawn,
	AdjustIfPossibleButAlwaysSpawn,
	AdjustIfPossibleButDontSpawnIfColliding,
	DontSpawnIfColliding,
};

/** The channels of collision: object types and traces. Those from ECC_GameTraceChannel1 on belong to the project. */
UENUM(BlueprintType)
enum ECollisionChannel : int
{
	ECC_WorldStatic,
	ECC_WorldDynamic,
	ECC_Pawn,
	ECC_Visibility,
	ECC_Camera,
	ECC_PhysicsBody,
	ECC_Vehicle,
	ECC_Destructible,
	ECC_EngineTraceChannel1,
	ECC_EngineTraceChannel2,
	ECC_EngineTraceChannel3,
	ECC_EngineTraceChannel4,
	ECC_EngineTraceChannel5,
	ECC_EngineTraceChannel6,
	ECC_GameTraceChannel1,
	ECC_GameTraceChannel2,
	ECC_GameTraceChannel3,
	ECC_GameTraceChannel4,
	ECC_GameTraceChannel5,
	ECC_GameTraceChannel6,
	ECC_GameTraceChannel7,
	ECC_GameTraceChannel8,
	ECC_GameTraceChannel9,
	ECC_GameTraceChannel10,
	ECC_GameTraceChannel11,
	ECC_GameTraceChannel12,
	ECC_GameTraceChannel13,
	ECC_GameTraceChannel14,
	ECC_GameTraceChannel15,
	ECC_GameTraceChannel16,
	ECC_GameTraceChannel17,
	ECC_GameTraceChannel18,
	ECC_OverlapAll_Deprecated UMETA(Hidden),
	ECC_MAX,
};

/** What happens when something meets a channel. */
UENUM(BlueprintType)
enum ECollisionResponse : int
{
	ECR_Ignore,
	ECR_Overlap,
	ECR_Block,
	ECR_MAX,
};

/** What a body's collision is used for. */
UENUM(BlueprintType)
namespace ECollisionEnabled
{
	enum Type : int
	{
		NoCollision,
		QueryOnly,
		PhysicsOnly,
		QueryAndPhysics,
		ProbeOnly,
		QueryAndProbe,
	};
}

/** The response to one channel, by the channel's name. */
USTRUCT()
struct ENGINE_API FResponseChannel
{
	GENERATED_BODY()

	FResponseChannel() = default;

	UPROPERTY()
	FName Channel;

	UPROPERTY()
	TEnumAsByte<ECollisionResponse> Response = ECR_Block;
};

/** The responses to all channels. Starts by blocking everything. */
USTRUCT()
struct ENGINE_API FCollisionResponseContainer
{
	GENERATED_BODY()

	FCollisionResponseContainer() { SetAllChannels(ECR_Block); }

	/** @return whether that changed anything; false for what is no channel. */
	bool SetResponse(ECollisionChannel Channel, ECollisionResponse NewResponse);

	void SetAllChannels(ECollisionResponse NewResponse);

	ECollisionResponse GetResponse(ECollisionChannel Channel) const;

private:
	uint8 Responses[32];
};

/** An old name in config files and the one that stands for it now. */
USTRUCT()
struct ENGINE_API FRedirector
{
	GENERATED_BODY()

	UPROPERTY()
	FName OldName;

	UPROPERTY()
	FName NewName;
};
