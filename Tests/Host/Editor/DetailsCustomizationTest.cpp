// Copyright Velmorant. All Rights Reserved.

#include "DetailWidgetRow.h"
#include "DetailsTestEditor.h"
#include "IDetailChildrenBuilder.h"
#include "IDetailPropertyRow.h"
#include "IPropertyTypeCustomization.h"
#include "Modules/ModuleManager.h"
#include "PropertyEditorModule.h"
#include "UObject/UnrealType.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Text/STextBlock.h"

namespace DetailsCustomizationTest
{
	TSharedRef<SWidget> MakeText(const TCHAR* Text)
	{
		return SNew(STextBlock).Text(FText::FromString(Text));
	}

	/** What each test fills in: what a customization does. */
	struct FScript
	{
		TFunction<void(TSharedRef<IPropertyHandle>, FDetailWidgetRow&)> Header = [](TSharedRef<IPropertyHandle>, FDetailWidgetRow&) {};
		TFunction<void(TSharedRef<IPropertyHandle>, IDetailChildrenBuilder&)> Children = [](TSharedRef<IPropertyHandle>, IDetailChildrenBuilder&) {};
		int32 NumMade = 0;
		int32 NumAlive = 0;
	};

	class FCustomization : public IPropertyTypeCustomization
	{
	public:
		explicit FCustomization(FScript& InScript)
			: Script(InScript)
		{
			++Script.NumMade;
			++Script.NumAlive;
		}
		virtual ~FCustomization() override { --Script.NumAlive; }

		virtual void CustomizeHeader(TSharedRef<IPropertyHandle> Handle, FDetailWidgetRow& HeaderRow, IPropertyTypeCustomizationUtils&) override
		{
			Script.Header(Handle, HeaderRow);
		}
		virtual void CustomizeChildren(TSharedRef<IPropertyHandle> Handle, IDetailChildrenBuilder& ChildBuilder, IPropertyTypeCustomizationUtils&) override
		{
			Script.Children(Handle, ChildBuilder);
		}

	private:
		FScript& Script;
	};

	/** Takes properties of one name. */
	class FNamed : public IPropertyTypeIdentifier
	{
	public:
		explicit FNamed(FName InName)
			: Name(InName)
		{
		}
		virtual bool IsPropertyTypeCustomized(const IPropertyHandle& Handle) const override { return Handle.GetProperty()->GetFName() == Name; }

	private:
		FName Name;
	};
}

class DetailsCustomization : public FDetailsTestEditor
{
protected:
	using FScript = DetailsCustomizationTest::FScript;

	static FPropertyEditorModule& Module() { return FModuleManager::LoadModuleChecked<FPropertyEditorModule>("PropertyEditor"); }

	static void Register(FName Type, FScript& Script, TSharedPtr<IPropertyTypeIdentifier> Identifier = nullptr)
	{
		Module().RegisterCustomPropertyTypeLayout(Type, FOnGetPropertyTypeCustomizationInstance::CreateLambda([&Script]() -> TSharedRef<IPropertyTypeCustomization> {
			return MakeShared<DetailsCustomizationTest::FCustomization>(Script);
		}),
			Identifier);
	}

	/** The rows of one property, as a person sees them. */
	static std::string Rows(FHostDetailsView& View, const TCHAR* Row)
	{
		FString Reason;
		const TSharedPtr<SWidget> Widget = HostSnapshot::Find(View.GetWidget(), Row, Reason);
		return Widget.IsValid() ? Utf8(HostSnapshot::Take(Widget.ToSharedRef())) : Utf8(Reason);
	}

	FScript Icon; // before the panels of the tests: customizations refer to them
	FScript Sign;
};

using DetailsCustomizationTest::MakeText;

TEST_F(DetailsCustomization, FillsTheRowOfThePropertyAndThoseBelow)
{
	Icon.Header = [](TSharedRef<IPropertyHandle> Handle, FDetailWidgetRow& Row) {
		// clang-format off
		Row
		.NameContent()
		[
			Handle->CreatePropertyNameWidget()
		]
		.ValueContent()
		.MinDesiredWidth(250.0f)
		[
			MakeText(TEXT("glyph"))
		];
		// clang-format on
	};
	Icon.Children = [](TSharedRef<IPropertyHandle> Handle, IDetailChildrenBuilder& Builder) {
		Builder.AddProperty(Handle->GetChildHandle(FName(TEXT("Tint"))).ToSharedRef());
		Builder.AddCustomRow(FText::FromString(TEXT("Filter"))).NameContent()[MakeText(TEXT("Icon List"))].ValueContent()[SNew(SButton).Text(FText::FromString(TEXT("Pick")))];
		Builder.AddProperty(Handle->GetChildHandle(FName(TEXT("Font"))).ToSharedRef()).DisplayName(FText::FromString(TEXT("Family"))).IsEnabled(false);
		Builder.AddCustomRow(FText::GetEmpty()).ValueContent()[MakeText(TEXT("without a name"))];
	};
	Register(TEXT("TestIcon"), Icon);
	FHostDetailsView View(One());
	EXPECT_EQ(Rows(View, TEXT("Sign.Icon")), R"snap(row Sign.Icon [Icon] "glyph"
  row Sign.Icon.Tint [Tint] "(R=1.000000,G=0.500000,B=0.000000,A=1.000000)" (edit)
    swatch "(R=1.000000,G=0.500000,B=0.000000,A=1.000000)"
  row [Icon List]
    button [Pick]
  row Sign.Icon.Font [Family] "Harbor" (disabled, edit, tip: Font)
  row "without a name"
)snap");
	EXPECT_EQ(Type(View, TEXT("Sign.Icon.Font"), TEXT("Hill")), "The row \"Sign.Icon.Font\" is disabled.");

	View.SetFilter(TEXT("filter"));
	EXPECT_EQ(Rows(View, TEXT("Sign.Icon")), "row Sign.Icon [Icon] \"glyph\"\n  row [Icon List]\n    button [Pick]\n") << "found by the search text of the custom row";
}

TEST_F(DetailsCustomization, HasOneInstancePerPropertyThatLivesAsLongAsItsRows)
{
	First->Icons.SetNum(2);
	Icon.Header = [](TSharedRef<IPropertyHandle>, FDetailWidgetRow& Row) { Row.NameContent()[MakeText(TEXT("icon"))]; };
	Register(TEXT("TestIcon"), Icon);
	{
		FHostDetailsView View(Both());
		EXPECT_EQ(Icon.NumMade, 1) << "the sign's; only elements that both objects have show";
		Second->Icons.SetNum(2);
		Tick();
		EXPECT_EQ(Icon.NumMade, 3);
		EXPECT_EQ(Icon.NumAlive, 3);
		First->Icons.Empty();
		Tick();
		EXPECT_EQ(Icon.NumAlive, 1);
		View.SetObjects({});
		EXPECT_EQ(Icon.NumAlive, 0);
		View.SetObjects(One());
		EXPECT_EQ(Icon.NumAlive, 1);
	}
	EXPECT_EQ(Icon.NumAlive, 0);
}

TEST_F(DetailsCustomization, AnEmptyHeaderRowIsLeftOutAndItsRowsTakeItsPlace)
{
	Icon.Children = [](TSharedRef<IPropertyHandle> Handle, IDetailChildrenBuilder& Builder) { Builder.AddProperty(Handle->GetChildHandle(FName(TEXT("Font"))).ToSharedRef()); };
	Register(TEXT("TestIcon"), Icon);
	FHostDetailsView View(One());
	EXPECT_EQ(Rows(View, TEXT("Sign")), "row Sign [Sign]\n  row Sign.Title [Title] \"\" (edit)\n  row Sign.Icon.Font [Font] \"Harbor\" (edit)\n");
	EXPECT_EQ(Icon.NumAlive, 1) << "kept with the row that is left";
}

TEST_F(DetailsCustomization, WorksInsideAnother)
{
	Sign.Header = [](TSharedRef<IPropertyHandle>, FDetailWidgetRow& Row) { Row.NameContent()[MakeText(TEXT("a sign"))]; };
	Sign.Children = [](TSharedRef<IPropertyHandle> Handle, IDetailChildrenBuilder& Builder) { Builder.AddProperty(Handle->GetChildHandle(FName(TEXT("Icon"))).ToSharedRef()); };
	Icon.Header = [](TSharedRef<IPropertyHandle>, FDetailWidgetRow& Row) { Row.NameContent()[MakeText(TEXT("an icon"))]; };
	Icon.Children = [](TSharedRef<IPropertyHandle> Handle, IDetailChildrenBuilder& Builder) { Builder.AddProperty(Handle); };
	Register(TEXT("TestSign"), Sign);
	Register(TEXT("TestIcon"), Icon);
	FHostDetailsView View(One());
	const std::string Text = Rows(View, TEXT("Sign"));
	EXPECT_EQ(Text.find("row Sign [a sign]\n  row Sign.Icon [an icon]\n    row Sign.Icon [Icon]\n      row Sign.Icon.Font [Font]"), 0u)
		<< "a customization that adds its own property means the plain one: " << Text;
}

TEST_F(DetailsCustomization, RowsOfPropertiesTakeOtherWidgetsAndHide)
{
	bool bHidden = false;
	Icon.Header = [](TSharedRef<IPropertyHandle>, FDetailWidgetRow& Row) { Row.NameContent()[MakeText(TEXT("icon"))]; };
	Icon.Children = [&bHidden](TSharedRef<IPropertyHandle> Handle, IDetailChildrenBuilder& Builder) {
		IDetailPropertyRow& Row = Builder.AddProperty(Handle->GetChildHandle(FName(TEXT("IconName"))).ToSharedRef());
		Row.CustomWidget().NameContent()[MakeText(TEXT("Pictogram"))].ValueContent()[MakeText(TEXT("drawn"))];
		Row.Visibility(TAttribute<EVisibility>::CreateLambda([&bHidden]() { return bHidden ? EVisibility::Collapsed : EVisibility::Visible; }));
	};
	Register(TEXT("TestIcon"), Icon);
	FHostDetailsView View(One());
	EXPECT_EQ(Rows(View, TEXT("Sign.Icon")), "row Sign.Icon [icon]\n  row Sign.Icon.IconName [Pictogram] \"drawn\"\n");
	bHidden = true;
	EXPECT_EQ(Type(View, TEXT("Pictogram"), TEXT("boat")), "The row \"Pictogram\" is hidden.");
}

TEST_F(DetailsCustomization, OpenPanelsShowItOnceTheyAreTold)
{
	FHostDetailsView View(One());
	Icon.Header = [](TSharedRef<IPropertyHandle>, FDetailWidgetRow& Row) { Row.NameContent()[MakeText(TEXT("customized"))]; };
	Register(TEXT("TestIcon"), Icon);
	Tick();
	EXPECT_EQ(Icon.NumMade, 0);
	Module().NotifyCustomizationModuleChanged();
	EXPECT_EQ(Rows(View, TEXT("Sign.Icon")), "row Sign.Icon [customized]\n");
	Module().UnregisterCustomPropertyTypeLayout(TEXT("TestIcon"));
	Module().NotifyCustomizationModuleChanged();
	EXPECT_EQ(Icon.NumAlive, 0);
	EXPECT_EQ(Read(View, TEXT("Sign.Icon.Font")), "Harbor");
}

TEST_F(DetailsCustomization, MayAnnounceAnotherWhileThePanelIsBeingFilled)
{
	Sign.Header = [this](TSharedRef<IPropertyHandle>, FDetailWidgetRow& Row) {
		Row.NameContent()[MakeText(TEXT("a sign"))];
		if (Sign.NumMade == 1)
		{
			Module().NotifyCustomizationModuleChanged();
		}
	};
	Register(TEXT("TestSign"), Sign);
	FHostDetailsView View({});
	View.SetObjects(One());
	EXPECT_EQ(Sign.NumMade, 2);
	EXPECT_EQ(Sign.NumAlive, 1);
	EXPECT_EQ(View.GetRowTitles().FilterByPredicate([](const FString& Title) { return Title.StartsWith(TEXT("a sign")); }).Num(), 1);
}

TEST_F(DetailsCustomization, GoesToDerivedTypesAndByIdentifierFirst)
{
	FScript Identified;
	Icon.Header = [](TSharedRef<IPropertyHandle>, FDetailWidgetRow& Row) { Row.NameContent()[MakeText(TEXT("any icon"))]; };
	Identified.Header = [](TSharedRef<IPropertyHandle>, FDetailWidgetRow& Row) { Row.NameContent()[MakeText(TEXT("this icon"))]; };
	Register(TEXT("TestIcon"), Icon);
	Register(TEXT("TestIcon"), Identified, MakeShared<DetailsCustomizationTest::FNamed>(FName(TEXT("BigIcon"))));
	{
		FHostDetailsView View({NewObject<UTestSpecialDetails>()});
		EXPECT_EQ(Rows(View, TEXT("Sign.Icon")), "row Sign.Icon [any icon]\n");
		EXPECT_EQ(Rows(View, TEXT("BigIcon")), "row BigIcon [this icon]\n") << "a struct derived from the customized one";
	}
	Module().UnregisterCustomPropertyTypeLayout(TEXT("TestIcon"), nullptr);
	FHostDetailsView View({NewObject<UTestSpecialDetails>()});
	EXPECT_EQ(Read(View, TEXT("Sign.Icon.Font")), "Harbor") << "the identified one stays, for its property alone";
	EXPECT_EQ(Rows(View, TEXT("BigIcon")), "row BigIcon [this icon]\n");
}

TEST_F(DetailsCustomization, NameWidgetsTakeAnotherName)
{
	Icon.Header = [](TSharedRef<IPropertyHandle> Handle, FDetailWidgetRow& Row) {
		const TSharedPtr<IPropertyHandle> Contrast = Handle->GetChildHandle(FName(TEXT("bUseContrast")));
		Row.NameContent()[Contrast->CreatePropertyNameWidget(FText::FromString(TEXT("Contrast")))].ValueContent()[MakeText(TEXT("drawn"))];
	};
	Register(TEXT("TestIcon"), Icon);
	FHostDetailsView View(One());
	EXPECT_EQ(Rows(View, TEXT("Sign.Icon")), "row Sign.Icon [Contrast] \"drawn\" (tip: Use Contrast)\n");
}
