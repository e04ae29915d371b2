// Copyright Velmorant. All Rights Reserved.

#include "HostSnapshot.h"

namespace HostSnapshotText
{
	static const TCHAR* const Bullets = TEXT("\u2022\u2022\u2022\u2022\u2022\u2022");

	/** What the value of a widget reads as; a secret shows that it is there, not how long it is. */
	FString ReadableValue(const FHostWidgetDescription& Description)
	{
		const FString Value = Description.Value.Get(FString());
		return Description.bPassword && !Value.IsEmpty() ? FString(Bullets) : Value;
	}

	FString Escape(const FString& Text)
	{
		FString Result;
		for (const TCHAR Character : Text)
		{
			switch (Character)
			{
				case TEXT('\n'): Result += TEXT("\\n"); break;
				case TEXT('\r'): Result += TEXT("\\r"); break;
				case TEXT('\t'): Result += TEXT("\\t"); break;
				case TEXT('\\'): Result += TEXT("\\\\"); break;
				case TEXT('"'): Result += TEXT("\\\""); break;
				default: Result += Character; break;
			}
		}
		return Result;
	}

	const TCHAR* GetCheckWord(ECheckBoxState State)
	{
		switch (State)
		{
			case ECheckBoxState::Checked: return TEXT("checked");
			case ECheckBoxState::Unchecked: return TEXT("unchecked");
			default: return TEXT("undetermined");
		}
	}

	TArray<FString> FactsOf(const FHostWidgetDescription& Description)
	{
		TArray<FString> Facts;
		if (!Description.bVisible)
		{
			Facts.Add(TEXT("hidden"));
		}
		if (!Description.bEnabled)
		{
			Facts.Add(TEXT("disabled"));
		}
		if (Description.Checked.IsSet())
		{
			Facts.Add(GetCheckWord(Description.Checked.GetValue()));
		}
		if (Description.bSelected)
		{
			Facts.Add(TEXT("selected"));
		}
		if (Description.bBusy && Description.bVisible)
		{
			Facts.Add(TEXT("busy"));
		}
		if (Description.bReadOnly)
		{
			Facts.Add(TEXT("read-only"));
		}
		if (!Description.Error.IsEmpty())
		{
			Facts.Add(FString(TEXT("error: ")) + Escape(Description.Error));
		}
		Facts.Append(Description.Notes);
		if (!Description.ToolTip.IsEmpty())
		{
			Facts.Add(FString(TEXT("tip: ")) + Escape(Description.ToolTip));
		}
		return Facts;
	}

	FString LineOf(const FHostWidgetDescription& Description)
	{
		FString Line = Description.Role;
		if (!Description.Name.IsNone())
		{
			Line += TEXT(" ") + Description.Name.ToString();
		}
		if (!Description.Label.IsEmpty())
		{
			Line += TEXT(" [") + Escape(Description.Label) + TEXT("]");
		}
		if (Description.Value.IsSet())
		{
			Line += TEXT(" \"") + Escape(ReadableValue(Description)) + TEXT("\"");
		}
		const TArray<FString> Facts = FactsOf(Description);
		if (Facts.Num() > 0)
		{
			Line += TEXT(" (") + FString::Join(Facts, TEXT(", ")) + TEXT(")");
		}
		return Line;
	}

	void Append(SWidget& Widget, int32 Depth, FString& InOutText)
	{
		const FHostWidgetDescription Description = FHostWidgetAccess::Describe(Widget);
		if (!Description.bTransparent)
		{
			for (int32 Level = 0; Level < Depth; ++Level)
			{
				InOutText += TEXT("  ");
			}
			InOutText += LineOf(Description) + TEXT("\n");
			++Depth;
		}
		if (Description.bVisible && !Description.bSealed)
		{
			for (const TSharedRef<SWidget>& Child : FHostWidgetAccess::ChildrenOf(Widget))
			{
				Append(*Child, Depth, InOutText);
			}
		}
	}
}

namespace HostSnapshotFind
{
	/** A widget with what its parents do to it. */
	struct FSeen
	{
		TSharedRef<SWidget> Widget;
		FHostWidgetDescription Description;
		bool bPartOfOther = false; // inside a sealed widget: only its name can mean it
	};

	void Collect(const TSharedRef<SWidget>& Widget, const FSeen* Parent, TArray<FSeen>& OutSeen)
	{
		FSeen Seen{Widget, FHostWidgetAccess::Describe(*Widget)};
		if (Parent)
		{
			Seen.Description.bEnabled &= Parent->Description.bEnabled;
			Seen.Description.bVisible &= Parent->Description.bVisible;
			Seen.bPartOfOther = Parent->bPartOfOther || Parent->Description.bSealed;
		}
		OutSeen.Add(Seen);
		for (const TSharedRef<SWidget>& Child : FHostWidgetAccess::ChildrenOf(*Widget))
		{
			Collect(Child, &Seen, OutSeen);
		}
	}

	/** 0: not meant; the higher, the better the text fits. */
	int32 Fit(const FSeen& Seen, const FString& Text)
	{
		const FHostWidgetDescription& Description = Seen.Description;
		if (!Description.Name.IsNone() && Description.Name.ToString().Equals(Text, ESearchCase::IgnoreCase))
		{
			return 5;
		}
		if (Description.bTransparent || Seen.bPartOfOther)
		{
			return 0;
		}
		if (!Description.Label.IsEmpty() && Description.Label.Equals(Text))
		{
			return 4;
		}
		const bool bRow = Description.Role == TEXT("item");
		if ((bRow || Description.Role == TEXT("text")) && FHostWidgetAccess::TextOf(*Seen.Widget).Equals(Text))
		{
			return bRow ? 3 : 1; // the row rather than the text in it
		}
		if (bRow && FHostWidgetAccess::ShowsText(*Seen.Widget, Text))
		{
			return 2;
		}
		return Description.ToolTip.Equals(Text) && !Text.IsEmpty() ? 1 : 0;
	}

	TOptional<FSeen> FindOne(const TArray<FSeen>& All, const FString& Text, FString& OutReason)
	{
		const FSeen* Best = nullptr;
		int32 BestFit = 0;
		int32 NumBest = 0;
		for (const FSeen& Seen : All)
		{
			const int32 TextFit = Fit(Seen, Text);
			const int32 ThisFit = TextFit == 0 ? 0 : TextFit + (Seen.Description.bVisible ? 10 : 0);
			if (ThisFit > BestFit)
			{
				Best = &Seen;
				BestFit = ThisFit;
				NumBest = 1;
			}
			else if (ThisFit > 0 && ThisFit == BestFit)
			{
				++NumBest;
			}
		}
		if (NumBest == 1)
		{
			return *Best;
		}
		OutReason = NumBest == 0 ? FString::Printf(TEXT("There is no widget \"%s\"."), *Text)
								 : FString::Printf(TEXT("\"%s\" means %d widgets; say which one, as in Outer/%s."), *Text, NumBest, *Text);
		return {};
	}

	TOptional<FSeen> FindSeen(const TSharedRef<SWidget>& Root, const FString& Text, FString& OutReason)
	{
		TArray<FSeen> All;
		Collect(Root, nullptr, All);
		FString Whole;
		if (TOptional<FSeen> Found = FindOne(All, Text, Whole))
		{
			return Found; // a label may hold a slash of its own
		}
		FString Outer;
		FString Inner;
		if (!Text.Split(TEXT("/"), &Outer, &Inner) || Outer.IsEmpty() || Inner.IsEmpty())
		{
			OutReason = Whole;
			return {};
		}
		const TOptional<FSeen> Parent = FindOne(All, Outer, OutReason);
		if (!Parent.IsSet())
		{
			return {};
		}
		TOptional<FSeen> Found = FindSeen(Parent.GetValue().Widget, Inner, OutReason);
		if (Found.IsSet())
		{
			Found.GetValue().Description.bEnabled &= Parent.GetValue().Description.bEnabled;
			Found.GetValue().Description.bVisible &= Parent.GetValue().Description.bVisible;
		}
		return Found;
	}

	FHostInputResult GiveIfReachable(const FSeen& Seen, const FHostInput& Input)
	{
		if (!Seen.Description.bVisible)
		{
			return FHostInputResult::Refused(TEXT("is hidden"));
		}
		return Seen.Description.bEnabled ? FHostWidgetAccess::Give(Seen.Widget, Input) : FHostInputResult::Refused(TEXT("is disabled"));
	}

	FHostInputResult Give(const TSharedRef<SWidget>& Root, const FString& Widget, const FHostInput& Input)
	{
		FString Reason;
		const TOptional<FSeen> Seen = FindSeen(Root, Widget, Reason);
		if (!Seen.IsSet())
		{
			return FHostInputResult::Refused(Reason);
		}
		const FHostWidgetDescription& Description = Seen.GetValue().Description;
		FHostInputResult Result = GiveIfReachable(Seen.GetValue(), Input);
		if (!Result.bDone)
		{
			Result.Reason = FString::Printf(TEXT("The %s \"%s\" %s."), *Description.Role, *Widget, *Result.Reason);
		}
		return Result;
	}
}

FString HostSnapshot::Take(const TSharedRef<SWidget>& Root)
{
	FString Text;
	HostSnapshotText::Append(*Root, 0, Text);
	return Text;
}

TSharedPtr<SWidget> HostSnapshot::Find(const TSharedRef<SWidget>& Root, const FString& Widget, FString& OutReason)
{
	const TOptional<HostSnapshotFind::FSeen> Seen = HostSnapshotFind::FindSeen(Root, Widget, OutReason);
	return Seen.IsSet() ? TSharedPtr<SWidget>(Seen.GetValue().Widget) : nullptr;
}

TArray<FString> HostSnapshot::GetNames(const TSharedRef<SWidget>& Root)
{
	TArray<HostSnapshotFind::FSeen> All;
	HostSnapshotFind::Collect(Root, nullptr, All);
	TArray<FString> Names;
	for (const HostSnapshotFind::FSeen& Seen : All)
	{
		const FHostWidgetDescription& Description = Seen.Description;
		const FString Name = Description.Name.IsNone() ? Description.Label : Description.Name.ToString();
		if (Description.bVisible && !Description.bTransparent && !Seen.bPartOfOther && !Name.IsEmpty())
		{
			Names.AddUnique(Name);
		}
	}
	return Names;
}

TOptional<FHostWidgetDescription> HostSnapshot::Describe(const TSharedRef<SWidget>& Root, const FString& Widget, FString& OutReason)
{
	const TOptional<HostSnapshotFind::FSeen> Seen = HostSnapshotFind::FindSeen(Root, Widget, OutReason);
	if (!Seen.IsSet())
	{
		return {};
	}
	FHostWidgetDescription Description = Seen.GetValue().Description;
	if (Description.Value.IsSet())
	{
		Description.Value = HostSnapshotText::ReadableValue(Description);
	}
	return Description;
}

TOptional<FString> HostSnapshot::Read(const TSharedRef<SWidget>& Root, const FString& Widget, FString& OutReason)
{
	const TOptional<FHostWidgetDescription> Description = Describe(Root, Widget, OutReason);
	if (!Description.IsSet())
	{
		return {};
	}
	if (Description.GetValue().Value.IsSet())
	{
		return Description.GetValue().Value;
	}
	if (!Description.GetValue().Label.IsEmpty())
	{
		return Description.GetValue().Label;
	}
	return FHostWidgetAccess::TextOf(*Find(Root, Widget, OutReason));
}

TArray<FString> HostSnapshot::GetOptions(const TSharedRef<SWidget>& Root, const FString& Widget, FString& OutReason)
{
	const TSharedPtr<SWidget> Found = Find(Root, Widget, OutReason);
	return Found.IsValid() ? FHostWidgetAccess::OptionsOf(Found.ToSharedRef()) : TArray<FString>();
}

FHostInputResult HostSnapshot::Click(const TSharedRef<SWidget>& Root, const FString& Widget)
{
	return HostSnapshotFind::Give(Root, Widget, FHostInput());
}

FHostInputResult HostSnapshot::Type(const TSharedRef<SWidget>& Root, const FString& Widget, const FString& Text)
{
	return HostSnapshotFind::Give(Root, Widget, FHostInput{EHostInput::Type, Text, false});
}

FHostInputResult HostSnapshot::Choose(const TSharedRef<SWidget>& Root, const FString& Widget, const FString& Option)
{
	return HostSnapshotFind::Give(Root, Widget, FHostInput{EHostInput::Choose, Option, false});
}

FHostInputResult HostSnapshot::Check(const TSharedRef<SWidget>& Root, const FString& Widget, bool bOn)
{
	return HostSnapshotFind::Give(Root, Widget, FHostInput{EHostInput::Check, FString(), bOn});
}
