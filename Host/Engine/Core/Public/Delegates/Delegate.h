// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Delegates/DelegateCombinations.h"
#include "Delegates/DelegateSignatureImpl.inl"
#include "Delegates/IDelegateInstance.h"

DECLARE_DELEGATE(FSimpleDelegate);
DECLARE_MULTICAST_DELEGATE(FSimpleMulticastDelegate);
