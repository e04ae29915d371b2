// Copyright Velmorant. All Rights Reserved.

#include "HostSnapshot.h"
#include "UiTestEditor.h"
#include "Widgets/Input/SSearchBox.h"

class SearchBox : public FUiTestEditor
{
protected:
	SearchBox()
	{
		// clang-format off
		SAssignNew(Box, SSearchBox)
			.OnTextChanged_Lambda([this](const FText& Text) { Heard.Add(Text.ToString()); })
			.OnTextCommitted_Lambda([this](const FText& Text, ETextCommit::Type) { Heard.Add(TEXT("Enter ") + Text.ToString()); });
		// clang-format on
	}

	TArray<FString> Heard;
	TSharedPtr<SSearchBox> Box;
};

TEST_F(SearchBox, TellsOfEveryKeyAndOfEnter)
{
	EXPECT_EQ(Utf8(HostSnapshot::Take(Box.ToSharedRef())), "search [Search] \"\"\n");
	EXPECT_EQ(Refusal(HostSnapshot::Type(Box.ToSharedRef(), TEXT("Search"), TEXT("oak"))), "");
	EXPECT_EQ(Heard, (TArray<FString>{TEXT("o"), TEXT("oa"), TEXT("oak"), TEXT("Enter oak")}));
	Heard.Empty();
	HostSnapshot::Type(Box.ToSharedRef(), TEXT("Search"), TEXT("oak"));
	EXPECT_EQ(Heard, TArray<FString>{TEXT("Enter oak")}) << "nothing new was typed";
	EXPECT_EQ(Utf8(Box->GetText().ToString()), "oak");
}

TEST_F(SearchBox, ItsButtonClearsItAndTells)
{
	EXPECT_EQ(Refusal(HostSnapshot::Click(Box.ToSharedRef(), TEXT("Clear"))), "The button \"Clear\" is hidden.") << "there is nothing to clear";
	Box->SetText(FText::FromString(TEXT("oak")));
	Heard.Empty();
	EXPECT_EQ(Refusal(HostSnapshot::Click(Box.ToSharedRef(), TEXT("Clear"))), "");
	EXPECT_EQ(Heard, TArray<FString>{TEXT("")});
	EXPECT_TRUE(Box->GetText().IsEmpty());
}
