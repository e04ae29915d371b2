// Copyright Velmorant. All Rights Reserved.

#include "CoreMinimal.h"
#include "DetailWidgetRow.h"
#include "IDetailChildrenBuilder.h"
#include "IDetailTreeNode.h"
#include "IPropertyTypeCustomization.h"
#include "Modules/ModuleManager.h"
#include "PropertyEditorModule.h"
#include "PropertyHandle.h"
#include "Support/Beliefs.h"
#include "Support/DetailRows.h"
#include "Support/TestFlags.h"
#include "Support/TestListener.h"
#include "UObject/UnrealType.h"
#include "Widgets/Text/STextBlock.h"

#if WITH_DEV_AUTOMATION_TESTS

namespace CustomizationsTest
{
	/** What the customizations of one registration were asked for. */
	struct FAsked
	{
		int32 NumHeaders = 0;
		int32 NumChildren = 0;
	};

	/** Counts what is asked of it, and puts a row of its own below. */
	class FCustomization final : public IPropertyTypeCustomization
	{
	public:
		explicit FCustomization(const TSharedRef<FAsked>& InAsked)
			: Asked(InAsked)
		{
		}

		virtual void CustomizeHeader(TSharedRef<IPropertyHandle> PropertyHandle, FDetailWidgetRow& HeaderRow, IPropertyTypeCustomizationUtils&) override
		{
			++Asked->NumHeaders;
			HeaderRow.NameContent()[PropertyHandle->CreatePropertyNameWidget()];
		}

		virtual void CustomizeChildren(TSharedRef<IPropertyHandle> PropertyHandle, IDetailChildrenBuilder& ChildBuilder, IPropertyTypeCustomizationUtils&) override
		{
			++Asked->NumChildren;
			ChildBuilder.AddProperty(PropertyHandle->GetChildHandle("Kind").ToSharedRef());
			ChildBuilder.AddCustomRow(INVTEXT("Velmorant filter")).NameContent()[SNew(STextBlock).Text(INVTEXT("Velmorant row"))];
		}

	private:
		TSharedRef<FAsked> Asked;
	};

	/** Takes the properties of one name. */
	class FIdentifier final : public IPropertyTypeIdentifier
	{
	public:
		explicit FIdentifier(FName InProperty)
			: Property(InProperty)
		{
		}

		virtual bool IsPropertyTypeCustomized(const IPropertyHandle& PropertyHandle) const override
		{
			return PropertyHandle.GetProperty() && PropertyHandle.GetProperty()->GetFName() == Property;
		}

	private:
		FName Property;
	};

	/** Registered for the length of a scope. */
	class FRegistration
	{
	public:
		explicit FRegistration(FName InType, const TSharedPtr<IPropertyTypeIdentifier>& InIdentifier = nullptr)
			: Type(InType)
			, Identifier(InIdentifier)
		{
			GetModule().RegisterCustomPropertyTypeLayout(Type, FOnGetPropertyTypeCustomizationInstance::CreateLambda([Asked = Asked] { return MakeShared<FCustomization>(Asked); }), Identifier);
		}
		~FRegistration() { GetModule().UnregisterCustomPropertyTypeLayout(Type, Identifier); }
		FRegistration(const FRegistration&) = delete;
		FRegistration& operator=(const FRegistration&) = delete;

		const TSharedRef<FAsked> Asked = MakeShared<FAsked>();

	private:
		static FPropertyEditorModule& GetModule() { return FModuleManager::LoadModuleChecked<FPropertyEditorModule>("PropertyEditor"); }

		FName Type;
		TSharedPtr<IPropertyTypeIdentifier> Identifier;
	};
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantCustomizationTest, "Velmorant.Engine.Details.Customization", VelmorantTests::Flags)

bool FVelmorantCustomizationTest::RunTest(const FString&)
{
	const CustomizationsTest::FRegistration Registration("VelmorantTestSpecialChoice");
	const FVelmorantDetailRows Rows({UVelmorantTestListener::Make(TEXT("Oak")), UVelmorantTestListener::Make(TEXT("Ash"))});
	TestEqual(TEXT("several objects have one customization of their struct, named without its F"), Registration.Asked->NumHeaders, 1);
	const TSharedPtr<IDetailTreeNode> Row = Rows.Find("SpecialChoice");
	if (!TestValid(TEXT("the struct has a row"), Row))
	{
		return false;
	}
	TestEqualSensitive(TEXT("with the rows that the customization adds, in its order"), *FString::Join(FVelmorantDetailRows::CollectNames(Row.ToSharedRef()), TEXT(", ")), TEXT("Kind, Velmorant row"));
	TestEqual(TEXT("asked for once"), Registration.Asked->NumChildren, 1);
	return true;
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantCustomizedTypesTest, "Velmorant.Engine.Details.CustomizedTypes", VelmorantTests::Flags)

bool FVelmorantCustomizedTypesTest::RunTest(const FString&)
{
	using namespace CustomizationsTest;
	UVelmorantTestListener* Object = UVelmorantTestListener::Make(TEXT("Oak"));
	const auto ShowRows = [Object] { return FVelmorantDetailRows({Object}); };
	const FRegistration OfBase("VelmorantTestChoice");
	ShowRows();
	VelmorantTests::RecordBelief(*this, TEXT("customizations of a super struct show structs below it"), OfBase.Asked->NumHeaders == 2);
	{
		const FRegistration Own("VelmorantTestSpecialChoice");
		ShowRows();
		TestEqual(TEXT("a struct's own customization shows it, whatever its super struct has"), Own.Asked->NumHeaders, 1);
		const FRegistration Identified("VelmorantTestSpecialChoice", MakeShared<FIdentifier>("SpecialChoice"));
		ShowRows();
		VelmorantTests::RecordBelief(*this, TEXT("a registration with an identifier comes before one without"), Identified.Asked->NumHeaders == 1 && Own.Asked->NumHeaders == 1);
	}
	const int32 NumBefore = OfBase.Asked->NumHeaders;
	const FRegistration Newer("VelmorantTestChoice");
	ShowRows();
	VelmorantTests::RecordBelief(*this, TEXT("a second registration of a type replaces the first"), Newer.Asked->NumHeaders > 0 && OfBase.Asked->NumHeaders == NumBefore);
	return true;
}

#endif
