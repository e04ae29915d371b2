// Copyright Velmorant. All Rights Reserved.

#include "Misc/DelayedAutoRegister.h"

#include "Containers/Array.h"
#include "HostDelayedRegistration.h"
#include "HostState.h"

namespace DelayedAutoRegister
{
	struct FRegistration
	{
		EDelayedRegisterRunPhase RunPhase;
		TFunction<void()> Function;
	};

	/** What every editor of this process runs. */
	TArray<FRegistration>& LoadTimeRegistrations()
	{
		static TArray<FRegistration>* const Registrations = new TArray<FRegistration>();
		return *Registrations;
	}

	/** The way of one editor through the phases; made when it reaches the first one. */
	struct FProgress
	{
		int32 NumPhasesReached = 0;
		TArray<FRegistration> Registrations = LoadTimeRegistrations();
	};

	THostState<FProgress> Progress;
}

FDelayedAutoRegisterHelper::FDelayedAutoRegisterHelper(EDelayedRegisterRunPhase RunPhase, TFunction<void()> RegistrationFunction)
{
	using namespace DelayedAutoRegister;
	if (!Progress.IsSet())
	{
		LoadTimeRegistrations().Add({RunPhase, MoveTemp(RegistrationFunction)});
	}
	else if (static_cast<int32>(RunPhase) < Progress->NumPhasesReached)
	{
		RegistrationFunction();
	}
	else
	{
		Progress->Registrations.Add({RunPhase, MoveTemp(RegistrationFunction)});
	}
}

void FDelayedAutoRegisterHelper::RunAndClearDelayedAutoRegisterDelegates(EDelayedRegisterRunPhase RunPhase)
{
	using namespace DelayedAutoRegister;
	FProgress& State = Progress.Get();
	const int32 NumReached = static_cast<int32>(RunPhase) + 1;
	State.NumPhasesReached = State.NumPhasesReached > NumReached ? State.NumPhasesReached : NumReached;

	// By a copy: a registration may construct further helpers.
	const TArray<FRegistration> Due = State.Registrations.FilterByPredicate([RunPhase](const FRegistration& Each) { return Each.RunPhase == RunPhase; });
	State.Registrations.RemoveAll([RunPhase](const FRegistration& Each) { return Each.RunPhase == RunPhase; });
	for (const FRegistration& Registration : Due)
	{
		Registration.Function();
	}
}

void HostDelayedRegistration::RunUpTo(EDelayedRegisterRunPhase RunPhase)
{
	for (int32 Phase = DelayedAutoRegister::Progress->NumPhasesReached; Phase <= static_cast<int32>(RunPhase); ++Phase)
	{
		FDelayedAutoRegisterHelper::RunAndClearDelayedAutoRegisterDelegates(static_cast<EDelayedRegisterRunPhase>(Phase));
	}
}
