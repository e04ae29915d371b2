// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Window/DockView.h"

#include "HostDetailsView.h"

#include <memory>

class IWindowServices;
class FWidgetRoot;

/** The properties of what is selected. */
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
	IWindowServices& Services;
	std::unique_ptr<FHostDetailsView> View; // of the running editor; goes with it
	QLabel* Empty;
};
