// Copyright Velmorant. All Rights Reserved.

#include "Support/DetailRows.h"

#include "IDetailTreeNode.h"
#include "IPropertyRowGenerator.h"
#include "Modules/ModuleManager.h"
#include "PropertyEditorModule.h"
#include "Support/WidgetText.h"

namespace VelmorantDetailRows
{
	TArray<TSharedRef<IDetailTreeNode>> GetRowsBelow(const TSharedRef<IDetailTreeNode>& Row)
	{
		TArray<TSharedRef<IDetailTreeNode>> Rows;
		Row->GetChildren(Rows);
		return Rows;
	}

	TSharedPtr<IDetailTreeNode> Find(const TArray<TSharedRef<IDetailTreeNode>>& Rows, FName Property)
	{
		for (const TSharedRef<IDetailTreeNode>& Row : Rows)
		{
			if (Row->CreatePropertyHandle().IsValid() && Row->GetNodeName() == Property)
			{
				return Row;
			}
			if (const TSharedPtr<IDetailTreeNode> Below = Find(GetRowsBelow(Row), Property))
			{
				return Below;
			}
		}
		return nullptr;
	}
}

FVelmorantDetailRows::FVelmorantDetailRows(const TArray<UObject*>& Objects)
	: Generator(FModuleManager::LoadModuleChecked<FPropertyEditorModule>("PropertyEditor").CreatePropertyRowGenerator(FPropertyRowGeneratorArgs()))
{
	Generator->SetObjects(Objects);
}

TSharedPtr<IDetailTreeNode> FVelmorantDetailRows::Find(FName Property) const
{
	return VelmorantDetailRows::Find(Generator->GetRootTreeNodes(), Property);
}

TArray<FString> FVelmorantDetailRows::CollectNames(const TSharedRef<IDetailTreeNode>& Row)
{
	TArray<FString> Names;
	for (const TSharedRef<IDetailTreeNode>& Below : VelmorantDetailRows::GetRowsBelow(Row))
	{
		const TSharedPtr<SWidget> Name = Below->CreateNodeWidgets().NameWidget;
		Names.Append(Name.IsValid() ? VelmorantTests::CollectTexts(Name.ToSharedRef()) : TArray<FString>());
		Names.Append(CollectNames(Below));
	}
	return Names;
}

int32 FVelmorantDetailRows::CountWidgets(const TSharedRef<IDetailTreeNode>& Row, const TCHAR* Class)
{
	const FNodeWidgets Widgets = Row->CreateNodeWidgets();
	int32 Number = 0;
	for (const TSharedPtr<SWidget>& Widget : {Widgets.NameWidget, Widgets.ValueWidget, Widgets.WholeRowWidget})
	{
		Number += Widget.IsValid() ? VelmorantTests::CountWidgets(Widget.ToSharedRef(), Class) : 0;
	}
	for (const TSharedRef<IDetailTreeNode>& Below : VelmorantDetailRows::GetRowsBelow(Row))
	{
		Number += CountWidgets(Below, Class);
	}
	return Number;
}
