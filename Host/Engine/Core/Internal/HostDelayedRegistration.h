// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Misc/DelayedAutoRegister.h"

/** Brings the delayed registrations of an editor that comes up forward. */
namespace HostDelayedRegistration
{
	/** Runs every phase up to and including RunPhase that the running editor has not reached yet, in order. */
	CORE_API void RunUpTo(EDelayedRegisterRunPhase RunPhase);
}
