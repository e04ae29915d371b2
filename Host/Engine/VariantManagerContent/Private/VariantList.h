// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"
#include "VariantNameIndex.h"

class UVariant;
class UVariantSet;

namespace VariantList
{
	/** Takes the element out of the set or asset it is in, if any. */
	void LeaveParent(UVariant& Variant);
	void LeaveParent(UVariantSet& VariantSet);
}

/**
 * The children of a variant set or of a level variant sets asset: an array that the owner keeps and saves, looked up by text.
 * The index is made when it is first asked for and kept right from then on.
 */
template<typename ElementType>
class TVariantList
{
public:
	/** Both outlive the list. */
	TVariantList(UObject& InOwner, TArray<ElementType*>& InElements)
		: Owner(InOwner)
		, Elements(InElements)
	{
	}

	/** Index -1, or too large, appends. */
	void Add(const TArray<ElementType*>& NewElements, int32 Index)
	{
		Owner.Modify();
		int32 At = Index < 0 || Index > Elements.Num() ? Elements.Num() : Index;
		const TArray<ElementType*> Incoming = TakeOut(NewElements, At);
		const bool bAppends = At == Elements.Num();
		FVariantNameIndex& KnownNames = GetNames();
		for (ElementType* Element : Incoming)
		{
			MoveIntoOwner(*Element);
			const FString Text = Element->GetDisplayText().ToString();
			const FString UniqueText = KnownNames.MakeUniqueText(Text);
			if (!UniqueText.Equals(Text))
			{
				Element->SetDisplayText(FText::FromString(UniqueText));
			}
			KnownNames.Append(Element, UniqueText); // where it belongs, or only for the texts of those behind it
		}
		for (int32 Offset = 0; Offset < Incoming.Num(); ++Offset)
		{
			Elements.Insert(Incoming[Offset], At + Offset);
		}
		if (!bAppends)
		{
			Invalidate();
		}
	}

	void Remove(const TArray<ElementType*>& OldElements)
	{
		TSet<ElementType*> Leaving;
		for (ElementType* Element : OldElements)
		{
			if (FindElement(Element) != INDEX_NONE)
			{
				Leaving.Add(Element);
			}
		}
		if (Leaving.Num() == 0)
		{
			return;
		}
		Owner.Modify();
		Elements.RemoveAll([&Leaving](ElementType* Element) { return Leaving.Contains(Element); });
		Invalidate();
		for (ElementType* Element : Leaving)
		{
			MoveInto(*Element, *GetTransientPackage());
		}
	}

	ElementType* FindByText(const FString& Text)
	{
		const int32 Position = GetNames().FindText(Text);
		return Position != INDEX_NONE ? Elements[Position] : nullptr;
	}

	int32 FindElement(const ElementType* Element) { return GetNames().FindElement(Element); }

	/** The display text of one child, or of somebody who only has this owner as outer, is another now. */
	void NoteTextChanged(const ElementType& Element)
	{
		if (bIndexed)
		{
			Names.ChangeText(&Element, Element.GetDisplayText().ToString());
		}
	}

	/** The elements are others now, after loading or an undo: entries that could not be read are dropped. */
	void NoteElementsChanged()
	{
		Elements.RemoveAll([](const ElementType* Element) { return Element == nullptr; });
		Invalidate();
	}

private:
	/** The valid ones, each once, taken out of wherever they are. At follows the place it means when own children before it leave. */
	TArray<ElementType*> TakeOut(const TArray<ElementType*>& NewElements, int32& At)
	{
		TArray<ElementType*> Incoming;
		TSet<ElementType*> Moved;
		TSet<ElementType*> Seen;
		const int32 OldAt = At;
		for (ElementType* Element : NewElements)
		{
			bool bSeen = false;
			Seen.Add(Element, &bSeen);
			if (!IsValid(Element) || bSeen)
			{
				continue;
			}
			Incoming.Add(Element);
			const int32 OldPosition = FindElement(Element);
			if (OldPosition == INDEX_NONE)
			{
				VariantList::LeaveParent(*Element);
				continue;
			}
			Moved.Add(Element);
			At -= OldPosition < OldAt ? 1 : 0;
		}
		if (Moved.Num() > 0)
		{
			Elements.RemoveAll([&Moved](ElementType* Element) { return Moved.Contains(Element); });
			Invalidate();
		}
		return Incoming;
	}

	void MoveIntoOwner(ElementType& Element)
	{
		if (Element.GetOuter() != &Owner)
		{
			MoveInto(Element, Owner);
		}
	}

	static void MoveInto(ElementType& Element, UObject& NewOuter)
	{
		const bool bNameIsFree = StaticFindObjectFast(nullptr, &NewOuter, Element.GetFName()) == nullptr;
		const FName NewName = bNameIsFree ? Element.GetFName() : MakeUniqueObjectName(&NewOuter, Element.GetClass());
		Element.Rename(*NewName.ToString(), &NewOuter, REN_DontCreateRedirectors);
	}

	void Invalidate() { bIndexed = false; }

	FVariantNameIndex& GetNames()
	{
		if (!bIndexed || Names.Num() != Elements.Num())
		{
			Names.Reset();
			for (const ElementType* Element : Elements)
			{
				Names.Append(Element, Element->GetDisplayText().ToString());
			}
			bIndexed = true;
		}
		return Names;
	}

	UObject& Owner;
	TArray<ElementType*>& Elements;
	FVariantNameIndex Names;
	bool bIndexed = false; // whether Names tells the same as Elements
};
