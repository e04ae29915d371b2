// Copyright Velmorant. All Rights Reserved.

#include "Values/PropertyPath.h"

namespace PropertyPath
{
	/** The part of a path up to the next member or element, taken from its front. */
	FString TakePart(FString& InOutPath)
	{
		const bool bElement = InOutPath.StartsWith(TEXT("["));
		int32 End = bElement ? InOutPath.Find(TEXT("]")) + 1 : 0;
		while (!bElement && End < InOutPath.Len() && InOutPath[End] != TEXT('.') && InOutPath[End] != TEXT('['))
		{
			++End;
		}
		const FString Part = InOutPath.Left(End);
		InOutPath = InOutPath.RightChop(End);
		InOutPath.RemoveFromStart(TEXT("."));
		return Part;
	}
}

TSharedPtr<FPropertyNode> PropertyPath::Find(const TSharedRef<FPropertyNode>& Root, const FString& Path)
{
	TSharedPtr<FPropertyNode> Node = Root->HasValues() ? TSharedPtr<FPropertyNode>(Root) : nullptr;
	FString Rest = Path;
	while (Node.IsValid() && !Rest.IsEmpty())
	{
		const FString Part = TakePart(Rest);
		const TSharedRef<FPropertyNode>* Child = Node->GetChildren().FindByPredicate([&Part](const TSharedRef<FPropertyNode>& Each) { return Each->GetPlace().GetName() == Part; });
		Node = Child != nullptr ? TSharedPtr<FPropertyNode>(*Child) : nullptr;
	}
	return Node == Root ? nullptr : Node;
}
