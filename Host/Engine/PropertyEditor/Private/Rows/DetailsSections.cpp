// Copyright Velmorant. All Rights Reserved.

#include "Rows/DetailsSections.h"

#include "HostParts.h"
#include "HostWidgetLook.h"
#include "PropertyEditorRegistrations.h"
#include "Rows/DetailsCategories.h"
#include "Values/PropertyNode.h"
#include "Widgets/Input/SButton.h"

#define LOCTEXT_NAMESPACE "DetailsView"

namespace DetailsSections
{
	/** Buttons side by side. */
	class SButtonRow : public SHostPartList
	{
	public:
		SLATE_BEGIN_ARGS(SButtonRow)
			{
			}
		SLATE_END_ARGS()

		void Construct(const FArguments&) {}

	protected:
		virtual void DescribeLookToHost(FHostWidgetLook& OutLook) const override { OutLook.Arrangement = EHostArrangement::Row; }
	};

	/** By the category's whole name, or by that of the category around it. */
	bool HasCategory(const FPropertySection& Section, const FString& Category)
	{
		FString Outermost = Category;
		Category.Split(TEXT("|"), &Outermost, nullptr);
		return Section.HasAddedCategory(FName(*Category)) || Section.HasAddedCategory(FName(*Outermost));
	}
}

FDetailsSections::FDetailsSections(TFunction<void(FName)> InOnPicked)
	: OnPicked(MoveTemp(InOnPicked))
	, Buttons(SNew(DetailsSections::SButtonRow))
{
}

bool FDetailsSections::Show(const FString& Category, const UClass* Class) const
{
	if (Picked.IsNone())
	{
		return true;
	}
	return FPropertyEditorRegistrations().FindSections(Class).ContainsByPredicate([&](const TSharedRef<FPropertySection>& Each) {
		return Each->GetName() == Picked && DetailsSections::HasCategory(*Each, Category);
	});
}

void FDetailsSections::MakeButtons(FPropertyNode& Root)
{
	Buttons->Clear();
	bool bAny = false;
	for (const TSharedRef<FPropertySection>& Each : FPropertyEditorRegistrations().FindSections(Root.GetShown().FindCommonClass()))
	{
		const bool bHasRows = Root.GetChildren().ContainsByPredicate([&Each](const TSharedRef<FPropertyNode>& Node) {
			return DetailsSections::HasCategory(*Each, FDetailsCategories::FindCategory(*Node->GetProperty()));
		});
		if (bHasRows)
		{
			AddButton(Each->GetName(), Each->GetDisplayName());
			bAny = true;
		}
	}
	if (bAny)
	{
		AddButton(FName(), LOCTEXT("AllSections", "All"));
	}
}

void FDetailsSections::AddButton(FName Name, const FText& Label)
{
	// clang-format off
	Buttons->AddPart(
		SNew(SButton)
		.Tag(Name) // a section may be labelled like the category it shows
		.Text(Label)
		.OnClicked_Lambda([this, Name]()
		{
			OnPicked(Name);
			return FReply::Handled();
		}));
	// clang-format on
}

TSharedRef<SWidget> FDetailsSections::GetButtons() const
{
	return Buttons;
}

#undef LOCTEXT_NAMESPACE
