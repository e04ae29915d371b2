// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreTypes.h"

#include <stdexcept>
#include <string>

/**
 * A failed check, a fatal log line or another condition that the engine does not survive. It has been printed and logged when it is
 * raised. Programs end with its message; tests may expect it. Nothing between the check and those catches it.
 */
class FHostAssertionFailure : public std::logic_error
{
public:
	FHostAssertionFailure(const std::string& InMessage, const std::string& InExpression)
		: std::logic_error(InMessage)
		, Expression(InExpression)
	{
	}

	/** The source text of the condition; empty for fatal log lines. UTF-8, as is what(). */
	const std::string& GetExpression() const { return Expression; }

private:
	std::string Expression;
};
