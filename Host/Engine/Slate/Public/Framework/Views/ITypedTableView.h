// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"

namespace ESelectionMode
{
	enum Type : int
	{
		None,
		Single,
		SingleToggle,
		Multi,
	};
}

/** What rows know of the view that shows them. */
template<typename ItemType>
class ITypedTableView
{
public:
	virtual ~ITypedTableView() = default;
};
