// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Components/Image.h"
#include "VelmorantSDKTypes.h"
#include "VlmImage.generated.h"

/** The toolkit's image: shows pictures as the service sends them. */
UCLASS()
class VELMORANTPROUI_API UVlmImage : public UImage
{
	GENERATED_BODY()

public:
	/**
	 * Shows a picture no larger than asked for, with its proportions kept; small ones are not enlarged. The tint stays. Data that is
	 * neither PNG nor JPEG leaves the image as it is.
	 */
	UFUNCTION(BlueprintCallable, Category = "Velmorant|Image")
	void SetImageFromData(const FImageObjectData& Image, EImageRequestSize Size);

	/** Shows no picture any more. */
	UFUNCTION(BlueprintCallable, Category = "Velmorant|Image")
	void ClearImage();

	/** The file that shows, as the service sent it; empty when it shows something else. Whoever draws the image decodes it. */
	const TArray<uint8>& GetPictureFile() const { return PictureFile; }

private:
	TArray<uint8> PictureFile;
};
