#include "Lamp.h"

// As the header tool writes it, and so read by nobody as a source: tables, of which one for each class names the one above, functions that
// data call, and registrations.
struct FTable
{
	FTable& (*Super)();
	void (*Thunks[2])(void*, int, void*);
	void (*Make)();
};

struct UReflectedBase;

template<typename T>
FTable& ClassOf();

struct Z_Statics_UReflectedBase
{
	static inline FTable Z_Record = {nullptr, {}, nullptr};
};

template<>
FTable& ClassOf<UReflectedBase>()
{
	return Z_Statics_UReflectedBase::Z_Record;
}

struct Z_Statics_UReflected
{
	static void Make() { UReflected Made; }

	static inline FTable Z_Record = {&ClassOf<UReflectedBase>, {&UReflected::execOpen, &UReflected::execUnneededClose}, &Make};
};

void UReflected::execOpen(void* Context, int, void*)
{
	static_cast<UReflected*>(Context)->Open();
}

void UReflected::execUnneededClose(void* Context, int, void*)
{
	static_cast<UReflected*>(Context)->UnneededClose();
}

void IPluggable::Execute_OnPlugged()
{
}

FTable* GRegistered = nullptr;

struct FRegistrar
{
	explicit FRegistrar(FTable& Table) { GRegistered = &Table; }
};

static FRegistrar Z_Registrar{Z_Statics_UReflected::Z_Record};
