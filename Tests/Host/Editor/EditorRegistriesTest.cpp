// Copyright Velmorant. All Rights Reserved.

#include "ActorFactories/ActorFactoryBlueprint.h"
#include "Engine/CollisionProfile.h"
#include "HostDetailsView.h"
#include "HostLog.h"
#include "HostPlacement.h"
#include "HostPropertyEditor.h"
#include "HostSettings.h"
#include "HostSnapshot.h"
#include "IPlacementModeModule.h"
#include "IPropertyTypeCustomization.h"
#include "ISettingsModule.h"
#include "LevelTestEditor.h"
#include "Modules/ModuleManager.h"
#include "PropertyEditorModule.h"
#include "TestActors.h"
#include "UObject/Class.h"

class EditorRegistries : public FLevelTestEditor
{
protected:
	static TSharedRef<FPlaceableItem> MakeItem(UClass* Class)
	{
		return MakeShareable(new FPlaceableItem(nullptr, FAssetData(Class)));
	}

	static std::string NamesOf(const TArray<TSharedRef<FPlaceableItem>>& Items)
	{
		std::string Names;
		for (const TSharedRef<FPlaceableItem>& Item : Items)
		{
			Names += Utf8(Item->NativeName) + ";";
		}
		return Names;
	}
};

namespace EditorRegistriesTest
{
	class FCustomization : public IPropertyTypeCustomization
	{
	public:
		static TSharedRef<IPropertyTypeCustomization> MakeInstance()
		{
			++NumMade;
			return MakeShareable(new FCustomization);
		}

		virtual void CustomizeHeader(TSharedRef<IPropertyHandle>, FDetailWidgetRow&, IPropertyTypeCustomizationUtils&) override {}
		virtual void CustomizeChildren(TSharedRef<IPropertyHandle>, IDetailChildrenBuilder&, IPropertyTypeCustomizationUtils&) override {}

		static inline int32 NumMade = 0;
	};
}

TEST_F(EditorRegistries, NothingIsPlaceableUntilThePlacementModuleIsLoaded)
{
	EXPECT_TRUE(HostPlacement::GetCategories().IsEmpty());
	IPlacementModeModule::Get();
}

TEST_F(EditorRegistries, PlacementItemsComeAndGoWithTheirCategory)
{
	IPlacementModeModule& Placement = IPlacementModeModule::Get();
	EXPECT_FALSE(Placement.RegisterPlaceableItem(TEXT("Tower"), MakeItem(ATestActor::StaticClass())).IsSet());
	Placement.RegisterPlacementCategory(FPlacementCategoryInfo(INVTEXT("Tower"), FSlateIcon(), TEXT("Tower"), FString(), 0, false));
	Placement.RegisterPlaceableItem(TEXT("Tower"), MakeItem(ATestSpecialActor::StaticClass()));
	const TOptional<FPlacementModeID> ID = Placement.RegisterPlaceableItem(TEXT("tower"), MakeItem(ATestActor::StaticClass()));
	ASSERT_TRUE(ID.IsSet());
	EXPECT_EQ(NamesOf(HostPlacement::GetItems(TEXT("Tower"))), "TestSpecialActor;TestActor;");
	Placement.UnregisterPlacementCategory(TEXT("Tower"));
	EXPECT_EQ(Placement.GetRegisteredPlacementCategory(TEXT("Tower")), nullptr);
	EXPECT_TRUE(HostPlacement::GetItems(TEXT("Tower")).IsEmpty());
}

TEST_F(EditorRegistries, ASortableCategoryShowsItsItemsByName)
{
	IPlacementModeModule& Placement = IPlacementModeModule::Get();
	Placement.RegisterPlacementCategory(FPlacementCategoryInfo(INVTEXT("Tower"), FSlateIcon(), TEXT("Tower")));
	Placement.RegisterPlaceableItem(TEXT("Tower"), MakeItem(ATestSpecialActor::StaticClass()));
	Placement.RegisterPlaceableItem(TEXT("Tower"), MakeItem(ATestActor::StaticClass()));
	EXPECT_EQ(NamesOf(HostPlacement::GetItems(TEXT("Tower"))), "TestActor;TestSpecialActor;");
}

TEST_F(EditorRegistries, APlaceableItemIsNamedAfterItsAssetUnlessToldOtherwise)
{
	const FAssetData SunSky(TEXT("/Game/SunSky"), TEXT("/Game"), TEXT("SunSky"), FTopLevelAssetPath(TEXT("/Script/Engine"), TEXT("Blueprint")));
	const FPlaceableItem Plain(*UActorFactoryBlueprint::StaticClass(), SunSky);
	EXPECT_EQ(Utf8(Plain.DisplayName.ToString()), "SunSky");
	EXPECT_EQ(Utf8(Plain.NativeName), "SunSky");
	EXPECT_TRUE(Plain.Factory->IsA<UActorFactoryBlueprint>());
	const FPlaceableItem Named(*UActorFactoryBlueprint::StaticClass(), SunSky, "Sun.Thumbnail", "Sun.Icon", TOptional<FLinearColor>(), TOptional<int32>(), INVTEXT("Sun Sky Velmorant"));
	EXPECT_EQ(Utf8(Named.DisplayName.ToString()), "Sun Sky Velmorant");
	EXPECT_EQ(Named.ClassThumbnailBrushOverride, FName("Sun.Thumbnail"));
	EXPECT_EQ(Named.ClassIconBrushOverride, FName("Sun.Icon"));
}

TEST_F(EditorRegistries, TheNewestLayoutOfAPropertyTypeCounts)
{
	using EditorRegistriesTest::FCustomization;
	FPropertyEditorModule& Editor = FModuleManager::LoadModuleChecked<FPropertyEditorModule>("PropertyEditor");
	bool bOldUsed = false;
	Editor.RegisterCustomPropertyTypeLayout("Finish", FOnGetPropertyTypeCustomizationInstance::CreateLambda([&bOldUsed] {
		bOldUsed = true;
		return FCustomization::MakeInstance();
	}));
	Editor.RegisterCustomPropertyTypeLayout("Finish", FOnGetPropertyTypeCustomizationInstance::CreateStatic(&FCustomization::MakeInstance));
	Editor.NotifyCustomizationModuleChanged();
	EXPECT_EQ(HostPropertyEditor::GetCustomizedTypes(), TArray<FName>{"Finish"});
	EXPECT_EQ(HostPropertyEditor::GetNumChangeNotes(), 1);
	const int32 NumMade = FCustomization::NumMade;
	EXPECT_TRUE(HostPropertyEditor::MakeCustomization("finish").IsValid());
	EXPECT_EQ(FCustomization::NumMade, NumMade + 1);
	EXPECT_FALSE(bOldUsed) << "the later registration replaces the earlier one";
	Editor.UnregisterCustomPropertyTypeLayout("Finish");
	EXPECT_FALSE(HostPropertyEditor::MakeCustomization("Finish").IsValid());
}

TEST_F(EditorRegistries, ASettingsPageShowsTheSettingsOfItsSection)
{
	ISettingsModule& Settings = FModuleManager::LoadModuleChecked<ISettingsModule>("Settings");
	EXPECT_FALSE(HostSettings::GetOpenPage().IsSet());
	Settings.ShowViewer("Project", "Engine", "CollisionProfile");
	const TOptional<HostSettings::FOpenPage> Page = HostSettings::GetOpenPage();
	ASSERT_TRUE(Page.IsSet());
	EXPECT_EQ(Page->Settings, UCollisionProfile::Get());
	EXPECT_EQ(Utf8(HostSnapshot::Take(Page->Content.ToSharedRef())).rfind("vertical\n  text \"Project - Engine - Collision\"\n", 0), 0u);
	EXPECT_EQ(Page->Details->GetObjects(), TArray<UObject*>{UCollisionProfile::Get()});

	EXPECT_TRUE(HostSettings::Close());
	EXPECT_FALSE(HostSettings::Close());
	EXPECT_FALSE(HostSettings::GetOpenPage().IsSet());
}

TEST_F(EditorRegistries, AnUnknownSettingsPageIsLoggedWithThoseThatThereAre)
{
	ISettingsModule& Settings = FModuleManager::LoadModuleChecked<ISettingsModule>("Settings");
	Settings.ShowViewer("Project", "Engine", "CollisionProfile");
	Settings.ShowViewer("Project", "Plugins", "CollisionProfile"); // under another heading
	EXPECT_EQ(Utf8(HostSettings::GetOpenPage()->Address.ToString()), "Project/Engine/CollisionProfile") << "the viewer stays as it was";
	const FHostLogLine& Line = HostLog::GetLines().Last();
	EXPECT_EQ(Line.Verbosity, ELogVerbosity::Warning);
	EXPECT_EQ(Utf8(Line.Text).rfind("There is no settings page Project/Plugins/CollisionProfile. There are: ", 0), 0u) << Utf8(Line.Text);
	EXPECT_NE(Utf8(Line.Text).find("Project/Engine/CollisionProfile"), std::string::npos);
}
