#include "Lamp.h"

namespace Lamp
{
	int NumLamps = 0;

	void CountLamp()
	{
		++NumLamps;
	}

	void UnneededCount()
	{
		--NumLamps;
	}

	void UnneededClick()
	{
	}

	// Nobody uses it, though the address sanitizer lists it with all variables.
	void (*UnneededClicks[])() = {&UnneededClick};

	class FWallSocket : public FSocket
	{
	public:
		void Plug() override { CountLamp(); }
		void UnneededUnplug() override { UnneededCount(); }
	};
}

void FLamp::Shine()
{
	Lamp::CountLamp();
}

void FLamp::Pulse()
{
	Shine();
}

void FLamp::UnneededFlicker()
{
	Shine();
}

void FLamp::Clean()
{
	Wipe();
}

void FLamp::UnneededRepaint()
{
	UnneededScratch();
}

void FLamp::Wipe()
{
}

void FLamp::UnneededScratch()
{
}

FLamp& GetLamp()
{
	static FLamp Result;
	return Result;
}

FSocket& GetSocket()
{
	static Lamp::FWallSocket Result;
	return Result;
}

void Blink()
{
	GetLamp().Blink();
}

void UReflected::Open()
{
}

void UReflected::UnneededClose()
{
}
