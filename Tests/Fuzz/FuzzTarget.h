// Copyright Velmorant. All Rights Reserved.

#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

/** What the program promised, and an input made it break. */
class FBrokenPromise : public std::runtime_error
{
public:
	using std::runtime_error::runtime_error;
};

/** Something that reads files, whatever is in them. */
struct FFuzzTarget
{
	const char* Name; // also of the folder in Inputs

	/** Reads the bytes and holds the outcome against what is promised of it. Throws FBrokenPromise, or dies of it. */
	void (*Check)(std::string_view Input);
};

namespace FuzzTargets
{
	const std::vector<FFuzzTarget>& GetAll();

	/** Null for a name that no target has. */
	const FFuzzTarget* Find(std::string_view Name);

	inline void Promise(bool bKept, std::string_view What)
	{
		if (!bKept)
		{
			throw FBrokenPromise(std::string(What));
		}
	}

	void CheckIni(std::string_view Input);
	void CheckService(std::string_view Input);
	void CheckAsset(std::string_view Input);
	void CheckLayout(std::string_view Input);
	void CheckScript(std::string_view Input);
	void CheckDescriptor(std::string_view Input);
	void CheckHeader(std::string_view Input);
	void CheckText(std::string_view Input);
}
