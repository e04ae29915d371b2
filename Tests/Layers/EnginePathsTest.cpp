// Copyright Velmorant. All Rights Reserved.
// What stands on the engine must find the same headers there: EnginePaths.txt lists those that the engine has.

#include "Layers.h"

#include <algorithm>
#include <fstream>
#include <gmock/gmock.h>
#include <iterator>
#include <sstream>

namespace EnginePathsTest
{
	namespace fs = std::filesystem;
	using Layers::FLayer;
	using FPaths = std::set<std::string>;

	const fs::path Root = VELMORANT_SOURCE_DIR;

	/** "Module path" each. */
	FPaths ReadEnginePaths()
	{
		FPaths Result;
		std::ifstream File(Root / "Tests/Layers/EnginePaths.txt");
		for (std::string Line; std::getline(File, Line);)
		{
			EXPECT_TRUE(Line[0] == '#' || Result.insert(Line).second) << Line << " is listed twice";
		}
		EXPECT_GT(Result.size(), 200u);
		return Result;
	}

	/** Those that the engine does not have. */
	FPaths FindUnknown(const FPaths& Paths)
	{
		const FPaths Known = ReadEnginePaths();
		FPaths Result;
		std::set_difference(Paths.begin(), Paths.end(), Known.begin(), Known.end(), std::inserter(Result, Result.end()));
		return Result;
	}

	std::string PathBelow(const fs::path& File, const fs::path& Folder)
	{
		return fs::relative(File, Folder).generic_string();
	}

	/** "Module path" of each header that is offered under a path of the engine. */
	FPaths FindOfferedPaths()
	{
		FPaths Result;
		for (const FLayer& Layer : Layers::All())
		{
			for (const fs::path& File : Layer.Sources)
			{
				if (Layers::IsBelow(Layer.Folder, Root / "Host/Engine") && Layers::IsBelow(File, Layer.Folder / "Public"))
				{
					Result.insert(Layer.Name + " " + PathBelow(File, Layer.Folder / "Public"));
				}
			}
		}
		return Result;
	}

	/** The same of what the product and the companions include from elsewhere. */
	FPaths FindIncludedPaths()
	{
		FPaths Result;
		for (const FLayer& Layer : Layers::All())
		{
			const bool bInEngine = Layers::IsBelow(Layer.Folder, Root / "Source") || Layers::IsBelow(Layer.Folder, Root / "Companions");
			for (const fs::path& File : bInEngine ? Layer.Sources : std::vector<fs::path>())
			{
				for (const std::string& Include : Layers::IncludesOf(File))
				{
					const auto Offer = Layers::Offers().find(Include);
					if (Offer != Layers::Offers().end() && Layers::IsBelow(Offer->second.File, Root / "Host"))
					{
						Result.insert(Offer->second.Module + " " + Include);
					}
				}
			}
		}
		return Result;
	}
}

using namespace EnginePathsTest;
using testing::IsEmpty;

TEST(EnginePaths, TheHostOffersNoOthers)
{
	EXPECT_THAT(FindUnknown(FindOfferedPaths()), IsEmpty()) << "what only the host has belongs into Internal, or into Detail if public headers are made of it";
}

TEST(EnginePaths, ProductAndCompanionsIncludeNoOthers)
{
	const FPaths Included = FindIncludedPaths();
	EXPECT_GT(Included.size(), 80u);
	EXPECT_THAT(FindUnknown(Included), IsEmpty()) << "the engine has no such header";
}
