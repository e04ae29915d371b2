// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Window/DockView.h"

#include "GameFramework/Actor.h"
#include "HostDetailsView.h"
#include "UObject/WeakObjectPtr.h"

#include <memory>
#include <vector>

class IWindowServices;
class FWidgetRoot;

/** The properties of what was selected last: in the level, whose selection it follows, or elsewhere. */
class FDetailsDock : public FDockView
{
public:
	FDetailsDock(IWindowServices& InServices, QWidget* Parent);
	virtual ~FDetailsDock() override;

	void Inspect(const TArray<UObject*>& Objects);

	//~ Begin FDockView
	virtual void Refresh() override;
	virtual void LetGo() override;
	//~ End FDockView

private:
	void FollowSelection();

	IWindowServices& Services;
	std::unique_ptr<FHostDetailsView> View; // of the running editor; goes with it
	std::vector<TWeakObjectPtr<AActor>> Followed; // the level's selection when it was looked at last
	QLabel* Empty;
	QScrollArea* Area;
};
