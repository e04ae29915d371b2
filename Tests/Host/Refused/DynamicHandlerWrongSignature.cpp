// refused: a dynamic handler whose parameters differ from the delegate's
// compiler: no matching function for call to 'FOnCheckBoxComponentStateChanged::__Internal_AddUniqueDynamic(
// Copyright Velmorant. All Rights Reserved.

#include "Components/CheckBox.h"
#include "CoreMinimal.h"

class UFinishPanel : public UCheckBox
{
public:
	static constexpr const char* ReflectedFunctionNames[] = {"ReceivedCheck", nullptr};

	void Bind()
	{
		OnCheckStateChanged.AddUniqueDynamic(this, &UFinishPanel::ReceivedCheck);
	}

	void ReceivedCheck(const bool&) {}
};
