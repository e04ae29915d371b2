// Copyright Velmorant. All Rights Reserved.
// The kept inputs of all fuzz targets, in every run of the tests: seeds, and whatever once broke a promise.

#include "FileBytes.h"
#include "FuzzTarget.h"

#include <filesystem>
#include <gtest/gtest.h>

class FuzzInputs : public testing::TestWithParam<FFuzzTarget>
{
protected:
	static inline const std::filesystem::path Root = VELMORANT_SOURCE_DIR "/Tests/Fuzz/Inputs";

	static void Check(const std::string& Input)
	{
		try
		{
			GetParam().Check(Input);
		}
		catch (const FBrokenPromise& Broken)
		{
			ADD_FAILURE() << "a promise was broken: " << Broken.what();
		}
	}
};

TEST_P(FuzzInputs, KeepWhatIsPromisedWhereverTheyEnd)
{
	int NumFiles = 0;
	for (const auto& Entry : std::filesystem::recursive_directory_iterator(Root / GetParam().Name))
	{
		if (!Entry.is_regular_file() || Entry.path().filename() == "dictionary")
		{
			continue;
		}
		SCOPED_TRACE(Entry.path().string());
		const std::string Whole = ReadBytes(Entry.path());
		Check(Whole);
		for (size_t Cut = 1; Cut < 24; ++Cut)
		{
			SCOPED_TRACE(Whole.size() * Cut / 24);
			Check(Whole.substr(0, Whole.size() * Cut / 24));
		}
		++NumFiles;
	}
	EXPECT_GT(NumFiles, 1) << "hardly any input was found";
}

INSTANTIATE_TEST_SUITE_P(Targets, FuzzInputs, testing::ValuesIn(FuzzTargets::GetAll()), [](const testing::TestParamInfo<FFuzzTarget>& Info) { return Info.param.Name; });
