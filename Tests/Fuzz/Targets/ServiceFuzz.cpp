// Copyright Velmorant. All Rights Reserved.
// Data of the reference service: data, or one sentence that says where and what.

#include "Containers/StringConv.h"
#include "FuzzTarget.h"
#include "ServiceData.h"
#include "ServiceDataReader.h"

void FuzzTargets::CheckService(std::string_view Input)
{
	FString Problem;
	const TOptional<FServiceData> Data = ServiceDataReader::Read(Input, TEXT("/Data"), Problem);
	Promise(Data.IsSet() == Problem.IsEmpty(), "there is data, or a reason why not");
	const bool bPlaced = Problem.StartsWith(TEXT("line ")) || Problem.StartsWith(TEXT("/")) || Problem.StartsWith(TEXT("the document"));
	if (!Data.IsSet() && !bPlaced)
	{
		throw FBrokenPromise("the reason names a place: " + std::string(TCHAR_TO_UTF8(*Problem)));
	}
	for (int32 Index = 0; Data.IsSet() && Index < Data->Users.Num(); ++Index)
	{
		Promise(!Data->Users[Index].UserName.IsEmpty() && !Data->Users[Index].Password.IsEmpty(), "users have a name and a password");
	}
}
