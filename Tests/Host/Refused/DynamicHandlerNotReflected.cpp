// refused: a dynamic handler that is no reflected function
// compiler: TheHandlerOfADynamicDelegateMustBeAUFunction
// Copyright Velmorant. All Rights Reserved.

#include "Components/CheckBox.h"
#include "CoreMinimal.h"

class UFinishPanel : public UCheckBox
{
public:
	static constexpr const char* ReflectedFunctionNames[] = {"ReceivedOther", nullptr};

	void Bind()
	{
		OnCheckStateChanged.AddUniqueDynamic(this, &UFinishPanel::ReceivedCheck);
	}

	void ReceivedCheck(bool) {}
};
