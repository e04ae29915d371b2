// refused: an object that is not made by NewObject()
// compiler: use of deleted function 'static void* UObject::operator new(std::size_t)'
// Copyright Velmorant. All Rights Reserved.

#include "CoreMinimal.h"
#include "UObject/Package.h"

UObject* MakeObject()
{
	return new UPackage(FObjectInitializer::Get());
}
