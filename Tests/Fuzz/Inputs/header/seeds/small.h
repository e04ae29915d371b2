#pragma once
#include "Fuzz.generated.h"
UCLASS()
class UX : public UObject
{
	GENERATED_BODY()
public:
	UPROPERTY(EditAnywhere, meta = (DisplayName = "A"))
	TMap<FName, TArray<int32>> A;
};
