// Copyright Velmorant. All Rights Reserved.

#include "Framework/Application/SlateApplication.h"

#include "HostMenus.h"
#include "HostNotifications.h"
#include "HostSlate.h"
#include "HostState.h"
#include "Rendering/SlateRenderer.h"

namespace SlateApplication
{
	class FCountingRenderer : public FSlateRenderer
	{
	public:
		virtual void ReloadTextureResources() override { ++NumReloads; }

		int32 NumReloads = 0;
	};

	struct FState
	{
		TUniquePtr<FSlateApplication> Application;
	};

	static FState& GetState()
	{
		static THostState<FState> State;
		return State.Get();
	}
}

FSlateApplication::FSlateApplication()
	: Renderer(new SlateApplication::FCountingRenderer)
{
}

FSlateApplication::~FSlateApplication() = default;

bool FSlateApplication::IsInitialized()
{
	return SlateApplication::GetState().Application.IsValid();
}

FSlateApplication& FSlateApplication::Get()
{
	checkf(IsInitialized(), TEXT("There is no user interface: FSlateApplication::IsInitialized() says so."));
	return *SlateApplication::GetState().Application;
}

void FSlateApplication::DismissAllMenus()
{
	HostMenus::DismissAll();
}

void HostSlate::Start()
{
	if (!FSlateApplication::IsInitialized())
	{
		SlateApplication::GetState().Application = MakeUnique<FSlateApplication>();
	}
}

void HostSlate::Stop()
{
	HostNotifications::DropStanding();
	SlateApplication::GetState().Application.Reset();
}

int32 HostSlate::GetTextureReloads()
{
	return FSlateApplication::IsInitialized() ? static_cast<SlateApplication::FCountingRenderer*>(FSlateApplication::Get().GetRenderer())->NumReloads : 0;
}
