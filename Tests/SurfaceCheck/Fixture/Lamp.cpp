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

// As the header tool writes it: tables, of which one for each class names the one above, and registrations.
struct FTable
{
	FTable& (*Super)();
	void (*Thunks[2])(void*, int, void*);
};

struct UReflectedBase;

template<typename T>
FTable& ClassOf();

struct Z_Statics_UReflectedBase
{
	static inline FTable Z_Record = {nullptr, {}};
};

template<>
FTable& ClassOf<UReflectedBase>()
{
	return Z_Statics_UReflectedBase::Z_Record;
}

struct Z_Statics_UReflected
{
	static inline FTable Z_Record = {&ClassOf<UReflectedBase>, {&UReflected::execOpen, &UReflected::execUnneededClose}};
};

void UReflected::execOpen(void* Context, int, void*)
{
	static_cast<UReflected*>(Context)->Open();
}

void UReflected::execUnneededClose(void* Context, int, void*)
{
	static_cast<UReflected*>(Context)->UnneededClose();
}

void UReflected::Open()
{
}

void UReflected::UnneededClose()
{
}

FTable* GRegistered = nullptr;

struct FRegistrar
{
	explicit FRegistrar(FTable& Table) { GRegistered = &Table; }
};

static FRegistrar Z_Registrar{Z_Statics_UReflected::Z_Record};
