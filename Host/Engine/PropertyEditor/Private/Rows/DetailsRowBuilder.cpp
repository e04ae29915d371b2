// Copyright Velmorant. All Rights Reserved.

#include "Rows/DetailsRowBuilder.h"

#include "IPropertyTypeCustomization.h"
#include "PropertyEditorRegistrations.h"
#include "Rows/DetailsChildren.h"
#include "Values/PropertyHandleImpl.h"
#include "Values/PropertyWidgets.h"

namespace DetailsRowBuilder
{
	/** A row on its way: what stands in it, what lies below it, who made it. */
	struct FDraft
	{
		TSharedRef<FDetailWidgetRow> Content = MakeShared<FDetailWidgetRow>();
		TArray<TSharedRef<SDetailsRow>> Rows;
		TSharedPtr<IPropertyTypeCustomization> Customization;
		TSharedPtr<FPropertyNode> Container;
	};

	void FillByCustomization(const TSharedRef<FPropertyNode>& Node, const TSharedRef<IPropertyHandle>& Handle, FDraft& Draft)
	{
		IPropertyTypeCustomizationUtils Utils;
		FDetailsChildren Children(Node);
		Draft.Customization->CustomizeHeader(Handle, *Draft.Content, Utils);
		Draft.Customization->CustomizeChildren(Handle, Children, Utils);
		Draft.Rows = Children.MakeRows();
	}

	void FillByDefault(const FDetailsPropertyRow& Wanted, FDraft& Draft)
	{
		const TSharedRef<FPropertyNode>& Node = Wanted.Node;
		// clang-format off
		(*Draft.Content)
		.NameContent()
		[
			PropertyWidgets::MakeName(Node, Wanted.Name, FText::GetEmpty())
		]
		.ValueContent()
		[
			PropertyWidgets::MakeValue(Node)
		]
		.ExtensionContent()
		[
			PropertyWidgets::MakeExtension(Node)
		];
		// clang-format on
		if (Node->GetKind().IsContainer())
		{
			Draft.Container = Node;
		}
		else if (!Node->GetKind().IsShownWhole(*Node->GetProperty()))
		{
			for (const TSharedRef<FPropertyNode>& Child : Node->GetChildren())
			{
				Draft.Rows.Append(MakeRows(Child));
			}
		}
	}

	TSharedRef<SDetailsRow> MakeRow(const FDetailsPropertyRow& Wanted, const FDraft& Draft)
	{
		const TSharedRef<FPropertyNode>& Node = Wanted.Node;
		// clang-format off
		const TSharedRef<SDetailsRow> Row =
			SNew(SDetailsRow, *Draft.Content)
			.Tag(FName(*Node->GetPath().Left(NAME_SIZE - 1)))
			.Visibility(Wanted.VisibilityAttribute)
			.IsEnabled(Wanted.EnabledAttribute)
			.SearchWords(Node->GetPlace().GetName() + TEXT(" ") + Node->GetPlace().GetDisplayName().ToString())
			.Customization(Draft.Customization)
			.Container(Draft.Container);
		// clang-format on
		for (const TSharedRef<SDetailsRow>& Each : Draft.Rows)
		{
			Row->AddRow(Each);
		}
		return Row;
	}

	TArray<TSharedRef<SDetailsRow>> MakeRows(const TSharedRef<FPropertyNode>& Node, ECustomizeType Customize)
	{
		return MakeRows(FDetailsPropertyRow(Node), Customize);
	}

	TArray<TSharedRef<SDetailsRow>> MakeRows(const FDetailsPropertyRow& Wanted, ECustomizeType Customize)
	{
		FDraft Draft;
		const TSharedPtr<IPropertyHandle> Handle = FPropertyHandle::Make(Wanted.Node);
		if (!Handle->IsValidHandle() || Wanted.Node->IsRoot())
		{
			return {};
		}
		if (Customize == ECustomizeType::Yes)
		{
			Draft.Customization = FPropertyEditorRegistrations().MakeCustomization(*Handle);
		}
		if (Draft.Customization.IsValid())
		{
			FillByCustomization(Wanted.Node, Handle.ToSharedRef(), Draft);
		}
		else
		{
			FillByDefault(Wanted, Draft);
		}
		if (Wanted.CustomContent.IsValid())
		{
			Draft.Content = Wanted.CustomContent.ToSharedRef();
			if (!Wanted.bShowChildrenOfCustom)
			{
				Draft.Rows.Empty();
				Draft.Container.Reset();
			}
		}
		if (Draft.Customization.IsValid() && !Draft.Content->HasAnyContent())
		{
			for (const TSharedRef<SDetailsRow>& Row : Draft.Rows)
			{
				Row->KeepCustomization(Draft.Customization.ToSharedRef());
			}
			return Draft.Rows;
		}
		return {MakeRow(Wanted, Draft)};
	}

	TSharedRef<SDetailsRow> MakeCustomRow(const FDetailWidgetRow& Content, const FString& SearchWords)
	{
		return SNew(SDetailsRow, Content).SearchWords(SearchWords);
	}
}
