// refused: a dynamic handler whose parameters differ from the delegate's
// compiler: no matching function for call to 'FOnFinishPicked::__Internal_AddUniqueDynamic(
// Copyright Velmorant. All Rights Reserved.

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "UObject/ScriptMacros.h"

DECLARE_DYNAMIC_MULTICAST_DELEGATE_OneParam(FOnFinishPicked, bool, bPicked);

class UFinishPanel : public UObject
{
public:
	static constexpr const char* ReflectedFunctionNames[] = {"ReceivedPick", nullptr};

	void Bind()
	{
		OnPicked.AddUniqueDynamic(this, &UFinishPanel::ReceivedPick);
	}

	FOnFinishPicked OnPicked;

	void ReceivedPick(const bool&) {}
};
