// Copyright Velmorant. All Rights Reserved.
// Long lists in the window: rows exist only for what is seen.

#include "TestHeaders.h"

#include "BareViewHost.h"
#include "HostClock.h"
#include "Look/Theme.h"
#include "QtText.h"
#include "Widgets/ItemsView.h"
#include "Widgets/Text/STextBlock.h"
#include "Widgets/TextView.h"
#include "Widgets/Views/SListView.h"
#include "Widgets/Views/STableRow.h"
#include "Widgets/WidgetRoot.h"

namespace ItemsAreaTest
{
	using FItem = TSharedPtr<FString>;

	class LongList : public testing::Test
	{
	protected:
		LongList()
		{
			Theme::Apply(Theme::EKind::Dark);
			for (int32 Index = 0; Index < NumItems; ++Index)
			{
				Items.Add(MakeShared<FString>(FString::Printf(TEXT("Unit %06d"), Index)));
			}
			// clang-format off
			SAssignNew(List, SListView<FItem>)
				.ListItemsSource(&Items)
				.SelectionMode(ESelectionMode::Single)
				.OnGenerateRow_Lambda([this](FItem Item, const TSharedRef<STableViewBase>& Owner) -> TSharedRef<ITableRow>
				{
					++NumRowsMade;
					return SNew(STableRow<FItem>, Owner)[SNew(STextBlock).Text(FText::FromString(*Item))];
				});
			// clang-format on
			Root = std::make_unique<FWidgetRoot>(Host, [this] { return TSharedPtr<SWidget>(List); });
			Root->resize(300, 400);
			Root->show();
			Frame();
		}

		void Frame()
		{
			HostClock::Advance(0.01);
			for (int Pass = 0; Pass < 2; ++Pass)
			{
				Root->Refresh();
				QApplication::processEvents();
			}
		}

		FItemsArea& GetArea() { return *dynamic_cast<FItemsArea*>(Root->findChild<QAbstractScrollArea*>()); }

		/** Of the rows that can be seen. */
		QStringList GetSeen()
		{
			QStringList Texts;
			for (QWidget* const Each : Root->findChildren<QWidget*>())
			{
				const FTextLabel* const Label = dynamic_cast<const FTextLabel*>(Each);
				if (Label != nullptr && !Label->visibleRegion().isEmpty())
				{
					Texts.append(Label->GetText());
				}
			}
			Texts.sort();
			return Texts;
		}

		static constexpr int32 NumItems = 100000;

		FBareViewHost Host;
		TArray<FItem> Items;
		TSharedPtr<SListView<FItem>> List;
		std::unique_ptr<FWidgetRoot> Root;
		int NumRowsMade = 0;
	};
}

using ItemsAreaTest::LongList;

TEST_F(LongList, MakesRowsForWhatIsSeenAlone)
{
	const QStringList Seen = GetSeen();
	ASSERT_FALSE(Seen.isEmpty());
	EXPECT_EQ(Seen.first(), QStringLiteral("Unit 000000"));
	EXPECT_LT(NumRowsMade, 100);

	GetArea().verticalScrollBar()->setValue(GetArea().verticalScrollBar()->maximum());
	Frame();
	EXPECT_EQ(GetSeen().last(), QStringLiteral("Unit 099999")) << "the last one is reached, and whole";
	EXPECT_LT(NumRowsMade, 200);
}

TEST_F(LongList, FollowsTheKeyboardAndTheEditor)
{
	QTest::keyClick(&GetArea(), Qt::Key_End);
	Frame();
	ASSERT_EQ(List->GetNumItemsSelected(), 1);
	EXPECT_EQ(*List->GetSelectedItems()[0], TEXT("Unit 099999"));
	EXPECT_TRUE(GetSeen().contains(QStringLiteral("Unit 099999")));

	QTest::keyClick(&GetArea(), Qt::Key_Up);
	Frame();
	EXPECT_EQ(*List->GetSelectedItems()[0], TEXT("Unit 099998"));

	List->RequestScrollIntoView(Items[500]);
	Frame();
	EXPECT_TRUE(GetSeen().contains(QStringLiteral("Unit 000500"))) << "the editor may scroll as well";
}

TEST_F(LongList, SelectsTheRowThatIsClicked)
{
	for (QWidget* const Each : Root->findChildren<QWidget*>())
	{
		const FTextLabel* const Label = dynamic_cast<const FTextLabel*>(Each);
		if (Label != nullptr && Label->GetText() == QLatin1String("Unit 000003"))
		{
			QTest::mouseClick(Each, Qt::LeftButton);
			break;
		}
	}
	ASSERT_EQ(List->GetNumItemsSelected(), 1);
	EXPECT_EQ(*List->GetSelectedItems()[0], TEXT("Unit 000003"));
}
