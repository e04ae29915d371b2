// Copyright Velmorant. All Rights Reserved.

#include "Misc/OutputDevice.h"

#include "HostLog.h"
#include "Misc/OutputDeviceHelper.h"
#include "Misc/OutputDeviceRedirector.h"
#include "String/FormatMessage.h"

FOutputDeviceRedirector* GLog = FOutputDeviceRedirector::Get();

FString FOutputDeviceHelper::FormatLogLine(ELogVerbosity::Type Verbosity, const FName& Category, const TCHAR* Message)
{
	FString Line;
	if (!Category.IsNone())
	{
		Category.AppendString(Line);
		Line += TEXT(": ");
	}
	if ((Verbosity & ELogVerbosity::VerbosityMask) != ELogVerbosity::Log)
	{
		Line += ::ToString(Verbosity);
		Line += TEXT(": ");
	}
	Line += Message;
	return Line;
}

FOutputDeviceRedirector* FOutputDeviceRedirector::Get()
{
	static FOutputDeviceRedirector* Log = new FOutputDeviceRedirector; // never destroyed: static objects log when they go
	return Log;
}

void FOutputDeviceRedirector::AddOutputDevice(FOutputDevice* OutputDevice)
{
	OutputDevices.AddUnique(OutputDevice);
}

void FOutputDeviceRedirector::RemoveOutputDevice(FOutputDevice* OutputDevice)
{
	OutputDevices.Remove(OutputDevice);
}

void FOutputDeviceRedirector::Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category)
{
	HostLog::Record(Category, Verbosity, V);
	// A device may add or remove devices while it takes the line.
	const TArray<FOutputDevice*> Receivers = OutputDevices;
	for (FOutputDevice* Receiver : Receivers)
	{
		if (OutputDevices.Contains(Receiver))
		{
			Receiver->Serialize(V, Verbosity, Category);
		}
	}
}

void FOutputDeviceRedirector::Flush()
{
	for (FOutputDevice* OutputDevice : OutputDevices)
	{
		OutputDevice->Flush();
	}
}
