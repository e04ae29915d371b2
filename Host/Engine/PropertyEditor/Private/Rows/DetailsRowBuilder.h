// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Rows/SDetailsRow.h"

class FDetailsPropertyRow;
class FPropertyNode;

enum class ECustomizeType : uint8
{
	Yes,
	No, // a customization shows the property it stands for as if it were not there
};

/** Turns properties into rows: as their customizations say, or else with the property's own name and value and its members below. */
namespace DetailsRowBuilder
{
	/** One row, or, when a customization leaves its row empty, those below it. */
	TArray<TSharedRef<SDetailsRow>> MakeRows(const TSharedRef<FPropertyNode>& Node, ECustomizeType Customize = ECustomizeType::Yes);

	/** The same for a property that a customization added. */
	TArray<TSharedRef<SDetailsRow>> MakeRows(const FDetailsPropertyRow& Wanted, ECustomizeType Customize);

	/** A row that a customization filled. */
	TSharedRef<SDetailsRow> MakeCustomRow(const FDetailWidgetRow& Content, const FString& SearchWords);
}
