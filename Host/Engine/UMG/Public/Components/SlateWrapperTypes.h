// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Containers/EnumAsByte.h"
#include "Layout/Visibility.h"
#include "Styling/SlateTypes.h"
#include "Types/SlateEnums.h"
#include "UObject/ObjectMacros.h"

#include "SlateWrapperTypes.generated.h"

/** EVisibility as a reflected enum. */
UENUM(BlueprintType)
enum class ESlateVisibility : uint8
{
	Visible,
	Collapsed,
	Hidden,
	HitTestInvisible,
	SelfHitTestInvisible,
};

/** FSizeParam::ESizeRule as a reflected enum. */
UENUM(BlueprintType)
namespace ESlateSizeRule
{
	enum Type : int
	{
		Automatic,
		Fill,
	};
}

/** How much room a slot takes along its box: what its widget asks for, or a share of what is left. */
USTRUCT(BlueprintType)
struct UMG_API FSlateChildSize
{
	GENERATED_BODY()

	FSlateChildSize() = default;
	FSlateChildSize(ESlateSizeRule::Type InSizeRule)
		: SizeRule(InSizeRule)
	{
	}

	/** The share, among all that fill. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	float Value = 1.0f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	TEnumAsByte<ESlateSizeRule::Type> SizeRule = ESlateSizeRule::Fill;
};
