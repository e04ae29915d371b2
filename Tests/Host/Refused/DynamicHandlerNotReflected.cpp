// refused: a dynamic handler that is no reflected function
// compiler: TheHandlerOfADynamicDelegateMustBeAUFunction
// Copyright Velmorant. All Rights Reserved.

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "UObject/ScriptMacros.h"

DECLARE_DYNAMIC_MULTICAST_DELEGATE_OneParam(FOnFinishPicked, bool, bPicked);

class UFinishPanel : public UObject
{
public:
	static constexpr const char* ReflectedFunctionNames[] = {"ReceivedOther", nullptr};

	void Bind()
	{
		OnPicked.AddUniqueDynamic(this, &UFinishPanel::ReceivedPick);
	}

	FOnFinishPicked OnPicked;

	void ReceivedPick(bool) {}
};
