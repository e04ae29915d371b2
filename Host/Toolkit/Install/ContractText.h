// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Contract/CompanionContract.h"

namespace ContractText
{
	/** Tables of modules and headers, then what differs. */
	void Print(const FContractReport& Report);
}
