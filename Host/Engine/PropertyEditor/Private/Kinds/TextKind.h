// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Kinds/PropertyKind.h"

/** Texts that can be translated: what is typed is taken as it is. */
class FTextKind final : public FPropertyKind
{
public:
	virtual void CommitText(FPropertyNode& Node, const FText& Typed) const override;
};
