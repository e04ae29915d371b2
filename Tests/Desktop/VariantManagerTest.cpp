// Copyright Velmorant. All Rights Reserved.
// Level variant sets beside the configurator that they were made from.

#include "DesktopFixture.h"

#include "HostContentBrowser.h"
#include "HostPackages.h"
#include "IAssetTools.h"
#include "LevelVariantSets.h"
#include "QtText.h"
#include "Variant.h"
#include "VariantSet.h"
#include "VelmorantConfiguratorDataAsset.h"
#include "VelmorantEditorUtilitiesLibrary.h"

class VariantManagerDock : public FDesktopTest
{
protected:
	/** A configurator with one room and two groups, and the level variant sets that the toolkit makes of it. */
	void Make()
	{
		Configurator = CastChecked<UVelmorantConfiguratorDataAsset>(
			IAssetTools::Get().CreateAsset(TEXT("Garden"), TEXT("/Game"), UVelmorantConfiguratorDataAsset::StaticClass(), nullptr));
		Configurator->ConfiguratorName = FName("Garden");
		FVelmorantConfigRoom Room;
		Room.Name = TEXT("Kitchen");
		Room.Groups = {MakeGroup(TEXT("Floor"), {TEXT("Oak"), TEXT("Stone")}), MakeGroup(TEXT("Front"), {TEXT("White")})};
		Configurator->ConfiguratorUnit.Rooms = {Room};
		UVelmorantEditorUtilitiesLibrary::CreateVariantSetFromConfigurator(Configurator);
		Sets = CastChecked<ULevelVariantSets>(Configurator->LevelVariantSets.ResolveObject());
		HostContentBrowser::SetSelection({FAssetData(Sets)});
		Show();
	}

	FVelmorantConfigGroup MakeGroup(const TCHAR* Name, const TArray<FString>& Products)
	{
		FVelmorantConfigGroup Group;
		Group.Name = Name;
		for (const FString& Each : Products)
		{
			FVelmorantConfigProduct Product;
			Product.Name = Each;
			Group.Products.Add(Product);
		}
		return Group;
	}

	void Show()
	{
		GetWindow().ShowDock(QStringLiteral("VariantManager"));
		QApplication::processEvents();
		Let(0.0);
	}

	/** "Set: variant=state …" of everything that shows. */
	QStringList Read()
	{
		Let(0.0);
		QStringList Lines;
		const QTreeWidget& Tree = Find<QTreeWidget>("Variants");
		for (int Index = 0; Index < Tree.topLevelItemCount(); ++Index)
		{
			const QTreeWidgetItem& Set = *Tree.topLevelItem(Index);
			QString Line = Describe(Set) + QLatin1Char(':');
			for (int Child = 0; Child < Set.childCount(); ++Child)
			{
				Line += Set.child(Child)->isHidden() ? QString() : QLatin1Char(' ') + Describe(*Set.child(Child));
			}
			if (!Set.isHidden())
			{
				Lines.append(Line);
			}
		}
		return Lines;
	}

	QString Describe(const QTreeWidgetItem& Item)
	{
		return Item.text(1).isEmpty() ? Item.text(0) : Item.text(0) + QLatin1Char('=') + Item.text(1);
	}

	UVelmorantConfiguratorDataAsset* Configurator = nullptr;
	ULevelVariantSets* Sets = nullptr;
};

TEST_F(VariantManagerDock, MarksWhatTheConfiguratorHasAndTheSetsHaveNotAndTheOtherWayRound)
{
	Open();
	Make();
	const QString Floor = QtText::From(Sets->GetVariantSet(0)->GetDisplayText());
	const QString Front = QtText::From(Sets->GetVariantSet(1)->GetDisplayText());
	EXPECT_EQ(Read(), (QStringList{Floor + QStringLiteral(": Oak Stone"), Front + QStringLiteral(": White")}));
	EXPECT_EQ(Find<QLabel>("VariantsConfigurator").text(), QStringLiteral("Garden"));

	// The configurator moves on.
	TArray<FVelmorantConfigGroup>& Groups = Configurator->ConfiguratorUnit.Rooms[0].Groups;
	Groups[0] = MakeGroup(TEXT("Floor"), {TEXT("OAK"), TEXT("Cork")});
	Groups[1] = MakeGroup(TEXT("Handles"), {TEXT("Brass")});
	const QStringList Lines = Read();
	ASSERT_EQ(Lines.size(), 3);
	EXPECT_EQ(Lines[0], Floor + QStringLiteral(": Oak Stone=stale Cork=missing")) << "case does not count";
	EXPECT_EQ(Lines[1], Front + QStringLiteral("=stale: White=stale"));
	EXPECT_TRUE(Lines[2].endsWith(QStringLiteral("=missing: Brass=missing"))) << Lines[2].toStdString();
	EXPECT_EQ(Find<QLabel>("VariantsSummary").text(), QStringLiteral("3 sets · 5 variants · 3 missing · 3 stale"));

	// What the toolkit adds is what was marked as missing; what is stale it leaves.
	UVelmorantEditorUtilitiesLibrary::CreateVariantSetFromConfigurator(Configurator);
	EXPECT_EQ(Find<QLabel>("VariantsSummary").text().count(QStringLiteral("missing")), 1) << "until the next frame";
	Let(0.0);
	EXPECT_EQ(Find<QLabel>("VariantsSummary").text(), QStringLiteral("3 sets · 5 variants · 3 stale"));

	Find<QCheckBox>("VariantsDifferences").setChecked(true);
	EXPECT_EQ(Read(), (QStringList{Floor + QStringLiteral(": Stone=stale"), Front + QStringLiteral("=stale: White=stale")}));
}

TEST_F(VariantManagerDock, ANamesakeBehindAnotherIsNeverFound)
{
	Open();
	Make();
	UVariantSet* const Second = NewObject<UVariantSet>(Sets);
	Sets->AddVariantSets({Second});
	Second->SetDisplayText(Sets->GetVariantSet(0)->GetDisplayText());
	const QStringList Lines = Read();
	ASSERT_EQ(Lines.size(), 3);
	EXPECT_FALSE(Lines[0].contains(QStringLiteral("stale")));
	EXPECT_TRUE(Lines[2].contains(QStringLiteral("=stale"))) << Lines[2].toStdString();
}

TEST_F(VariantManagerDock, SaysWhyThereIsNothingAndTakesNoSidesWithoutAConfigurator)
{
	Open();
	Show();
	EXPECT_TRUE(Find<QLabel>("VariantsEmpty").text().contains(QStringLiteral("no level variant sets"))) << Find<QLabel>("VariantsEmpty").text().toStdString();
	EXPECT_FALSE(Find<QComboBox>("VariantsAsset").isEnabled());

	Make();
	Configurator->LevelVariantSets.Reset();
	Configurator->MarkPackageDirty();
	HostContentBrowser::SetSelection({FAssetData(Configurator)});
	EXPECT_EQ(Read().size(), 2) << "what its sets would be";
	EXPECT_TRUE(Read()[0].contains(QStringLiteral("=missing")));
	HostContentBrowser::SetSelection({FAssetData(Sets)});
	const QStringList Alone = Read();
	EXPECT_EQ(Alone.filter(QStringLiteral("=")), QStringList()) << "nothing refers to it: nothing is known";
	EXPECT_TRUE(Find<QLabel>("VariantsConfigurator").text().startsWith(QStringLiteral("No configurator")));
}
