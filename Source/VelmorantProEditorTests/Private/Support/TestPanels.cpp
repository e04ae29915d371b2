// Copyright Velmorant. All Rights Reserved.

#include "Support/TestPanels.h"

void UVelmorantTestDuplicationList::ProcessEvent(UFunction* Function, void* Parms)
{
	if (Function->GetFName() == FName(TEXT("OnDuplicationsList")))
	{
		Items.Empty();
		for (UVlmEWUnitVolumeDuplication_Item* Item : *static_cast<TArray<UVlmEWUnitVolumeDuplication_Item*>*>(Parms))
		{
			Items.Add(Item);
		}
	}
	Super::ProcessEvent(Function, Parms);
}
