// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "HostReflection/Records.h"

/** The body of the few classes that the object system itself is made of; their records are written by hand. */
#define HOST_ROOT_CLASS_BODY(TClass, TSuper) \
public: \
	using Super = TSuper; \
	using ThisClass = TClass; \
	static UClass* StaticClass(); \
	static const TCHAR* StaticPackage() \
	{ \
		return TEXT("/Script/CoreUObject"); \
	} \
	static constexpr const char* ReflectedFunctionNames[] = {nullptr}; \
	TClass(const TClass&) = delete; \
	TClass& operator=(const TClass&) = delete; \
	friend struct Z_Statics_##TClass; \
	friend struct UE::Reflection::FTypeBuilder;
