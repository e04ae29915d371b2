// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreTypes.h"
#include "Logging/LogVerbosity.h"
#include "UObject/NameTypes.h"

/** A source of log lines, and how talkative it may be at present. */
class FLogCategoryBase
{
public:
	FLogCategoryBase(const FName& InCategoryName, ELogVerbosity::Type InDefaultVerbosity, ELogVerbosity::Type InCompileTimeVerbosity);

	const FName& GetCategoryName() const { return CategoryName; }
	bool IsSuppressed(ELogVerbosity::Type Level) const { return Level > Verbosity; }
	/** Never beyond what has been compiled in. */
	void SetVerbosity(ELogVerbosity::Type NewVerbosity);

private:
	ELogVerbosity::Type Verbosity;
	const ELogVerbosity::Type CompileTimeVerbosity;
	const FName CategoryName;
};

template<ELogVerbosity::Type InDefaultVerbosity, ELogVerbosity::Type InCompileTimeVerbosity>
class FLogCategory : public FLogCategoryBase
{
public:
	static constexpr ELogVerbosity::Type CompileTimeVerbosity = InCompileTimeVerbosity;

	explicit FLogCategory(const FName& InCategoryName)
		: FLogCategoryBase(InCategoryName, InDefaultVerbosity, InCompileTimeVerbosity)
	{
	}
};
