// Copyright Velmorant. All Rights Reserved.

#include "VlmWidgetTransformFields.h"

#include "VlmNumberField.h"

bool UVlmWidgetTransformFields::CheckNumbers()
{
	bool bAllNumbers = true;
	for (UVlmNumberField* Field : GetFields())
	{
		bAllNumbers &= Field->CheckNumber(); // all of them: each tells its own error
	}
	return bAllNumbers;
}

FWidgetTransform UVlmWidgetTransformFields::GetTransform() const
{
	return FWidgetTransform(FVector2D(MoveX->GetNumber(), MoveY->GetNumber()), FVector2D(ScaleX->GetNumber(), ScaleY->GetNumber()),
		FVector2D(ShearX->GetNumber(), ShearY->GetNumber()), static_cast<float>(Angle->GetNumber()));
}

void UVlmWidgetTransformFields::SetTransform(const FWidgetTransform& InTransform)
{
	MoveX->SetNumber(InTransform.Translation.X);
	MoveY->SetNumber(InTransform.Translation.Y);
	ScaleX->SetNumber(InTransform.Scale.X);
	ScaleY->SetNumber(InTransform.Scale.Y);
	ShearX->SetNumber(InTransform.Shear.X);
	ShearY->SetNumber(InTransform.Shear.Y);
	Angle->SetSingleNumber(InTransform.Angle);
}

void UVlmWidgetTransformFields::ClearTransform()
{
	for (UVlmNumberField* Field : GetFields())
	{
		Field->ClearNumber();
	}
}
