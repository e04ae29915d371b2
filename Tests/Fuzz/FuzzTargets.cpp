// Copyright Velmorant. All Rights Reserved.

#include "FuzzTarget.h"

namespace FuzzTargets
{
	const std::vector<FFuzzTarget>& GetAll()
	{
		static const std::vector<FFuzzTarget> Targets = {
			{"ini", &CheckIni},
			{"service", &CheckService},
			{"asset", &CheckAsset},
			{"layout", &CheckLayout},
			{"script", &CheckScript},
			{"descriptor", &CheckDescriptor},
			{"header", &CheckHeader},
			{"text", &CheckText},
		};
		return Targets;
	}

	const FFuzzTarget* Find(std::string_view Name)
	{
		for (const FFuzzTarget& Target : GetAll())
		{
			if (Name == Target.Name)
			{
				return &Target;
			}
		}
		return nullptr;
	}
}
