// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Contract/CompanionContract.h"
#include "Contract/CompanionTables.h"
#include "Contract/TypeIndex.h"

/** Looks for the names that the module expects, one type with its members after the other. */
class FNameCheck
{
public:
	/**
	 * @param InExpected   what the tables declare
	 * @param InCompanions the types of the plugin
	 * @param InReference  the types of the reference companions: what these have, too, has not been renamed
	 */
	FNameCheck(const HeaderTool::FHeader& InExpected, const FTypeIndex& InCompanions, const FTypeIndex& InReference, FContractReport& InReport);

	/** @param Type the names from the type itself up to the next type */
	void Check(const std::vector<FExpectedName>& Type);

	/** Headers in which something was found. */
	const std::set<const FModuleHeader*>& GetHeaders() const { return Headers; }

private:
	void CheckType(const FExpectedName& Name, const FTypePlace& Place);
	void CheckMember(const FExpectedName& Name, const FTypePlace& Type);
	void Compare(const FExpectedName& Name, const FTypePlace& Owner, int Line);
	void CompareSpecifiers(const FExpectedName& Name, const FTypePlace& Owner, int Line, const std::optional<FDeclaration>& Found);
	void ReportTypeMissing(const std::vector<FExpectedName>& Type);
	void ReportMissing(const FExpectedName& Name, const FTypePlace& Type);
	std::string FindRenamed(const FExpectedName& Name, const FTypePlace& Type) const;
	void Report(bool bStops, const FExpectedName& Name, const std::string& Path, int Line, const std::string& Found);

	const HeaderTool::FHeader& Expected;
	const FTypeIndex& Companions;
	const FTypeIndex& Reference;
	FContractReport& Out;
	std::set<const FModuleHeader*> Headers;
};
