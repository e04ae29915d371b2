// Copyright Velmorant. All Rights Reserved.

#include "Scripts/ServiceFile.h"

TArray<FRunInput> ServiceFile::MakeInputs(const FString& Path)
{
	TArray<FRunInput> Inputs;
	if (!Path.IsEmpty())
	{
		Inputs.Add({Path, TEXT("VelmorantService"), TEXT("there is no such data file"), TEXT("Name the file that the service answers from.")});
	}
	return Inputs;
}
