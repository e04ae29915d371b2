// Copyright Velmorant. All Rights Reserved.

#include "Contract/TypeIndex.h"

#include <algorithm>

void FTypeIndex::Add(const FModuleHeaders& Module)
{
	for (const std::unique_ptr<FModuleHeader>& Header : Module.Headers)
	{
		for (const FDeclaredType& Type : Header->Types)
		{
			Types.emplace(Type.Name, FTypePlace{Header.get(), &Type});
		}
	}
}

FTypePlace FTypeIndex::Find(const std::string& Type, const std::string& IncludePath) const
{
	FTypePlace Found;
	const auto [First, End] = Types.equal_range(Type);
	for (auto Each = First; Each != End; ++Each)
	{
		const bool bWanted = Each->second.Header->GetIncludePath() == IncludePath;
		Found = Found.Header == nullptr || bWanted ? Each->second : Found;
	}
	return Found;
}

std::vector<FTypePlace> FTypeIndex::GetChain(const FTypePlace& Type) const
{
	std::vector<FTypePlace> Chain = {Type};
	for (size_t Index = 0; Index < Chain.size(); ++Index)
	{
		const std::vector<std::string> Bases = Chain[Index].Type->Bases;
		for (const std::string& Base : Bases)
		{
			const FTypePlace Found = Find(Base);
			const bool bKnown = std::any_of(Chain.begin(), Chain.end(), [&Found](const FTypePlace& Each) { return Each.Type == Found.Type; });
			if (Found.Type != nullptr && !bKnown)
			{
				Chain.push_back(Found);
			}
		}
	}
	return Chain;
}

FTypePlace FTypeIndex::FindMember(const FTypePlace& Type, const std::string& Member) const
{
	for (const FTypePlace& Each : GetChain(Type))
	{
		if (Each.Type->Members.count(Member) > 0)
		{
			return Each;
		}
	}
	return FTypePlace();
}

bool FTypeIndex::DerivesFrom(const FTypePlace& Type, const std::string& Base) const
{
	const std::vector<FTypePlace> Chain = GetChain(Type);
	return std::any_of(Chain.begin(), Chain.end(), [&Base](const FTypePlace& Each) { return std::find(Each.Type->Bases.begin(), Each.Type->Bases.end(), Base) != Each.Type->Bases.end(); });
}
