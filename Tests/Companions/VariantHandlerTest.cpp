// Copyright Velmorant. All Rights Reserved.

#include "VelmorantVariantHandler.h"

#include "ToolkitTest.h"

class VariantHandler : public FToolkitTest
{
};

TEST_F(VariantHandler, NamesVariantSetsAsTheSettingsSay)
{
	StartEditor();
	const auto Combine = [] { return ToUtf8(UVelmorantVariantHandler::CombineVariantSet(TEXT("Kitchen"), TEXT("Fronts"))); };
	EXPECT_EQ(Combine(), "Kitchen - Fronts");

	WriteProjectFile("Config/DefaultGame.ini", "[/Script/VelmorantPro.VelmorantProSettings]\nVariantSetSeparator=\" / \"\nbGroupBeforeRoom=True\n");
	StartEditor();
	EXPECT_EQ(Combine(), "Fronts / Kitchen");
}
