// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/Array.h"
#include "CoreTypes.h"
#include "Misc/OutputDevice.h"

/** The log: hands each line to all devices that have been added, in the order they were added. Host: each line is recorded as well. */
class FOutputDeviceRedirector final : public FOutputDevice
{
public:
	static FOutputDeviceRedirector* Get();

	/** The device must be removed before it goes away. Adding it again does nothing. */
	void AddOutputDevice(FOutputDevice* OutputDevice);
	void RemoveOutputDevice(FOutputDevice* OutputDevice);

	//~ Begin FOutputDevice
	virtual void Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category) override;
	virtual void Flush() override;
	//~ End FOutputDevice

private:
	TArray<FOutputDevice*> OutputDevices;
};

/** Never null. */
extern FOutputDeviceRedirector* GLog;
