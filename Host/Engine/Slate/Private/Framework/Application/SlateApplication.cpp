// Copyright Velmorant. All Rights Reserved.

#include "Framework/Application/SlateApplication.h"

#include "HostMenus.h"
#include "HostNotifications.h"
#include "HostSlate.h"
#include "HostState.h"
#include "Misc/App.h"
#include "Rendering/SlateRenderer.h"

namespace SlateApplication
{
	struct FState
	{
		TUniquePtr<FSlateApplication> Application;
		int32 NumTextureReloads = 0;
	};

	FState& GetState()
	{
		static THostState<FState> State;
		return State.Get();
	}

	class FCountingRenderer : public FSlateRenderer
	{
	public:
		virtual void ReloadTextureResources() override { ++GetState().NumTextureReloads; }
	};

	/** Never null: where nothing can be drawn, the renderer does nothing. */
	TUniquePtr<FSlateRenderer> MakeRenderer()
	{
		return FApp::CanEverRender() ? TUniquePtr<FSlateRenderer>(new FCountingRenderer) : MakeUnique<FSlateRenderer>();
	}
}

class FHostSlateAccess
{
public:
	static TUniquePtr<FSlateApplication> Make() { return TUniquePtr<FSlateApplication>(new FSlateApplication()); }
};

FSlateApplication::FSlateApplication()
	: Renderer(SlateApplication::MakeRenderer())
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
		SlateApplication::GetState().Application = FHostSlateAccess::Make();
	}
}

void HostSlate::Stop()
{
	HostNotifications::DropStanding();
	SlateApplication::GetState().Application.Reset();
}

int32 HostSlate::GetTextureReloads()
{
	return SlateApplication::GetState().NumTextureReloads;
}
