// Copyright Velmorant. All Rights Reserved.

#include "TestPanel.h"

#include "Blueprint/WidgetBlueprintGeneratedClass.h"
#include "Editor.h"
#include "EditorAssetLibrary.h"
#include "EditorUtilitySubsystem.h"
#include "EditorUtilityWidgetBlueprint.h"
#include "HostObjects.h"
#include "HostTabs.h"
#include "HostUserWidgets.h"
#include "HostWidgetLayout.h"
#include "TestPrinters.h"
#include "ToolkitTest.h"
#include "UObject/Package.h"
#include "UObject/UnrealType.h"

#include <gtest/gtest.h>

namespace TestPanel
{
	using FEvents = std::shared_ptr<std::vector<std::string>>;

	/** The first argument as text, in parentheses; nothing for an event without, or with one that has no short text. */
	std::string Describe(const FFrame& Stack)
	{
		const TArray<FProperty*> Parameters = Stack.Node->GetOwnProperties();
		FProperty* First = Parameters.IsEmpty() ? nullptr : Parameters[0];
		if (const FBoolProperty* Flag = CastField<FBoolProperty>(First))
		{
			return *Flag->ContainerPtrToValuePtr<bool>(Stack.Locals) ? "(true)" : "(false)";
		}
		if (!CastField<FIntProperty>(First) && !CastField<FStrProperty>(First) && !CastField<FEnumProperty>(First))
		{
			return "";
		}
		FString Text;
		First->ExportTextItem_InContainer(Text, Stack.Locals, nullptr, nullptr, PPF_None);
		return "(" + ToUtf8(Text) + ")";
	}

	/** @param Name as it is to be recorded. */
	UFunction::FScriptBody MakeRecorder(const FEvents& Events, const std::string& Name)
	{
		return [Events, Name](UObject*, FFrame& Stack, void*) {
			Events->push_back(Name + Describe(Stack));
		};
	}

	UClass* MakeClass(const char* LayoutText)
	{
		TArray<HostWidgetLayout::FProblem> Problems;
		const TSharedPtr<const FWidgetLayout> Layout = HostWidgetLayout::Read(UTF8_TO_TCHAR(LayoutText), Problems);
		for (const HostWidgetLayout::FProblem& Problem : Problems)
		{
			ADD_FAILURE() << ToUtf8(Problem.Pointer) << ": " << ToUtf8(Problem.Message);
		}
		check(Layout.IsValid());
		return HostWidgetLayout::MakeClass(Layout.ToSharedRef(), MakeUniqueObjectName(GetTransientPackage(), UClass::StaticClass(), TEXT("TestPanel_C")), GetTransientPackage());
	}
}

FTestPanel::FTestPanel(const char* Layout, std::initializer_list<const TCHAR*> EventNames, UObject* Outer)
	: Class(TestPanel::MakeClass(Layout))
{
	for (const TCHAR* Name : EventNames)
	{
		HostObjects::AddScriptFunction(Class.Get(), Name, TestPanel::MakeRecorder(Events, ToUtf8(FString(Name))));
	}
	Panel = TStrongObjectPtr<UUserWidget>(FHostUserWidgets::Create(Outer, Class.Get()));
}

void FTestPanel::Show()
{
	Screen = Panel->TakeWidget();
}

void FTestPanel::Hide()
{
	Screen.Reset();
}

void FTestScreen::Expect(const FHostInputResult& Result) const
{
	EXPECT_TRUE(Result.bDone) << ToUtf8(Result.Reason);
}

void FTestScreen::Click(const TCHAR* Widget)
{
	Expect(HostSnapshot::Click(Screen.ToSharedRef(), Widget));
}

void FTestScreen::Type(const TCHAR* Widget, const TCHAR* Text)
{
	Expect(HostSnapshot::Type(Screen.ToSharedRef(), Widget, Text));
}

void FTestScreen::Choose(const TCHAR* Widget, const TCHAR* Option)
{
	Expect(HostSnapshot::Choose(Screen.ToSharedRef(), Widget, Option));
}

void FTestScreen::Check(const TCHAR* Widget, bool bOn)
{
	Expect(HostSnapshot::Check(Screen.ToSharedRef(), Widget, bOn));
}

std::string FTestScreen::Read(const TCHAR* Widget) const
{
	FString Reason;
	const TOptional<FString> Text = HostSnapshot::Read(Screen.ToSharedRef(), Widget, Reason);
	EXPECT_TRUE(Text.IsSet()) << ToUtf8(Reason);
	return Text.IsSet() ? ToUtf8(Text.GetValue()) : std::string();
}

std::vector<std::string> FTestScreen::Options(const TCHAR* Widget) const
{
	FString Reason;
	const std::vector<std::string> Options = ToUtf8(HostSnapshot::GetOptions(Screen.ToSharedRef(), Widget, Reason));
	EXPECT_TRUE(Reason.IsEmpty()) << ToUtf8(Reason);
	return Options;
}

FHostWidgetDescription FTestScreen::Look(const TCHAR* Widget) const
{
	FString Reason;
	const TOptional<FHostWidgetDescription> Seen = HostSnapshot::Describe(Screen.ToSharedRef(), Widget, Reason);
	EXPECT_TRUE(Seen.IsSet()) << ToUtf8(Reason);
	return Seen.Get(FHostWidgetDescription());
}

std::string FTestScreen::Snapshot() const
{
	return ToUtf8(HostSnapshot::Take(Screen.ToSharedRef()));
}

FTestTab::FTestTab(const TCHAR* Asset)
{
	UEditorUtilityWidgetBlueprint* Blueprint = Cast<UEditorUtilityWidgetBlueprint>(UEditorAssetLibrary::LoadAsset(Asset));
	check(Blueprint);
	GEditor->GetEditorSubsystem<UEditorUtilitySubsystem>()->SpawnAndRegisterTabAndGetID(Blueprint, Id);
	Screen = HostTabs::Find(Id.ToString()).Content;
	check(Screen.IsValid());
}

FTestTab::~FTestTab()
{
	if (Screen.IsValid() && GEditor)
	{
		Screen.Reset();
		GEditor->GetEditorSubsystem<UEditorUtilitySubsystem>()->CloseTabByID(Id);
	}
}

std::vector<std::string> FTestPanel::TakeEvents()
{
	return std::exchange(*Events, {});
}

void FTestPanel::ListenTo(const TCHAR* Delegate, const TCHAR* Widget)
{
	UObject* const Owner = Widget ? static_cast<UObject*>(Find<UWidget>(Widget)) : Panel.Get();
	const FMulticastDelegateProperty* Property = FindFProperty<FMulticastDelegateProperty>(Owner->GetClass(), Delegate);
	ASSERT_NE(Property, nullptr);
	const FName Listener(*(FString(TEXT("Heard_")) + Delegate));
	ASSERT_NE(HostObjects::AddScriptListener(Class.Get(), Listener, *Property, TestPanel::MakeRecorder(Events, ToUtf8(FString(Delegate)))), nullptr);

	FScriptDelegate Binding;
	Binding.BindUFunction(Panel.Get(), Listener);
	Property->AddDelegate(Binding, Owner);
}
