// Copyright Velmorant. All Rights Reserved.

#include "IPropertyRowGenerator.h"

#include "HostDetailsView.h"
#include "IDetailTreeNode.h"
#include "PropertyEditorModule.h"
#include "PropertyHandle.h"
#include "Rows/SDetailsRow.h"
#include "Widgets/SNullWidget.h"

namespace PropertyRowGenerator
{
	class FNode final : public IDetailTreeNode
	{
	public:
		FNode(const TSharedRef<FHostDetailsView>& InView, const TSharedRef<SDetailsRow>& InRow)
			: View(InView)
			, Row(InRow)
		{
		}

		//~ Begin IDetailTreeNode
		virtual FNodeWidgets CreateNodeWidgets() const override
		{
			FNodeWidgets Widgets;
			if (Row->GetNameWidget() == SNullWidget::NullWidget)
			{
				Widgets.WholeRowWidget = Row->GetValueWidget();
			}
			else
			{
				Widgets.NameWidget = Row->GetNameWidget();
				Widgets.ValueWidget = Row->GetValueWidget();
			}
			return Widgets;
		}

		virtual void GetChildren(TArray<TSharedRef<IDetailTreeNode>>& OutChildren, const bool&) override
		{
			for (const TSharedRef<SDetailsRow>& Each : Row->GetRows())
			{
				OutChildren.Add(MakeShared<FNode>(View, Each));
			}
		}

		virtual TSharedPtr<IPropertyHandle> CreatePropertyHandle() const override
		{
			return Row->GetTag().IsNone() ? nullptr : View->FindHandle(Row->GetTag().ToString());
		}

		virtual FName GetNodeName() const override
		{
			const TSharedPtr<IPropertyHandle> Handle = CreatePropertyHandle();
			if (Handle.IsValid())
			{
				return Handle->GetProperty()->GetFName();
			}
			return Row->IsHeading() ? FName(Row->GetTitle()) : FName();
		}
		//~ End IDetailTreeNode

	private:
		TSharedRef<FHostDetailsView> View;
		TSharedRef<SDetailsRow> Row;
	};

	class FGenerator final : public IPropertyRowGenerator
	{
	public:
		//~ Begin IPropertyRowGenerator
		virtual void SetObjects(const TArray<UObject*>& InObjects) override
		{
			View = MakeShared<FHostDetailsView>(InObjects);
			Roots.Empty();
			for (const TSharedRef<SDetailsRow>& Category : View->GetCategories())
			{
				Roots.Add(MakeShared<FNode>(View.ToSharedRef(), Category));
			}
		}

		virtual const TArray<TSharedRef<IDetailTreeNode>>& GetRootTreeNodes() const override { return Roots; }
		//~ End IPropertyRowGenerator

	private:
		TSharedPtr<FHostDetailsView> View; // null without objects
		TArray<TSharedRef<IDetailTreeNode>> Roots;
	};
}

TSharedRef<IPropertyRowGenerator> FPropertyEditorModule::CreatePropertyRowGenerator(const FPropertyRowGeneratorArgs&)
{
	return MakeShared<PropertyRowGenerator::FGenerator>();
}
