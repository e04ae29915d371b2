// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Window/DockView.h"

class IWindowServices;

/** Says what to try with the sample property, in which order. */
class FWelcomeDock : public FDockView
{
public:
	FWelcomeDock(IWindowServices& InServices, QWidget* Parent);

	virtual void Refresh() override {}
};
