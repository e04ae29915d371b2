// Copyright Velmorant. All Rights Reserved.

#include "Run/DetailsPanels.h"

int32 FDetailsPanels::IndexOf(const FString& Name) const
{
	return Panels.IndexOfByPredicate([&Name](const FPanel& Panel) { return Panel.Name == Name; });
}

void FDetailsPanels::Show(const FString& Name, const TArray<UObject*>& Objects)
{
	if (FHostDetailsView* View = Find(Name))
	{
		View->SetObjects(Objects);
		return;
	}
	FPanel& Panel = Panels.AddDefaulted_GetRef();
	Panel.Name = Name;
	Panel.View = MakeUnique<FHostDetailsView>(Objects);
}

FHostDetailsView* FDetailsPanels::Find(const FString& Name) const
{
	const int32 Index = IndexOf(Name);
	return Index != INDEX_NONE ? Panels[Index].View.Get() : nullptr;
}

TArray<FString> FDetailsPanels::GetNames() const
{
	TArray<FString> Names;
	for (const FPanel& Panel : Panels)
	{
		Names.Add(Panel.Name);
	}
	return Names;
}

bool FDetailsPanels::Close(const FString& Name)
{
	const int32 Index = IndexOf(Name);
	if (Index != INDEX_NONE)
	{
		Panels.RemoveAt(Index);
	}
	return Index != INDEX_NONE;
}
