// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/ContainersFwd.h"
#include "Containers/StringFwd.h"
#include "CoreTypes.h"
#include "Math/MathFwd.h"

class FName;
class FText;
class FOutputDevice;
class FFeedbackContext;
struct FDateTime;
struct FTimespan;
struct FGuid;
