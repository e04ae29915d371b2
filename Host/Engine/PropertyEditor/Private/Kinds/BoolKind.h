// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Kinds/PropertyKind.h"

/** Yes or no: a check box. */
class FBoolKind final : public FPropertyKind
{
public:
	virtual TSharedRef<SWidget> MakeValue(const TSharedRef<FPropertyNode>& Node) const override;
};
