// Copyright Velmorant. All Rights Reserved.

#include "BenchmarkPanel.h"

#include "Blueprint/WidgetBlueprintGeneratedClass.h"
#include "HostObjects.h"
#include "HostSnapshot.h"
#include "HostUserWidgets.h"
#include "HostWidgetLayout.h"
#include "UObject/Package.h"
#include "UObject/UnrealType.h"

namespace BenchmarkPanel
{
	UClass* MakeClass(const char* LayoutText)
	{
		TArray<HostWidgetLayout::FProblem> Problems;
		const TSharedPtr<const FWidgetLayout> Layout = HostWidgetLayout::Read(UTF8_TO_TCHAR(LayoutText), Problems);
		checkf(Layout.IsValid(), TEXT("The layout does not fit: %s"), *Problems[0].Message);
		return HostWidgetLayout::MakeClass(Layout.ToSharedRef(), MakeUniqueObjectName(GetTransientPackage(), UClass::StaticClass(), TEXT("BenchmarkPanel_C")), GetTransientPackage());
	}

	int32 FirstArgument(const FFrame& Stack)
	{
		const FProperty* Parameter = Stack.Node->GetOwnProperties()[0];
		const FBoolProperty* Flag = CastField<FBoolProperty>(Parameter);
		return Flag ? *Flag->ContainerPtrToValuePtr<bool>(Stack.Locals) : *CastFieldChecked<FIntProperty>(Parameter)->ContainerPtrToValuePtr<int32>(Stack.Locals);
	}
}

FBenchmarkPanel::FBenchmarkPanel(const char* Layout, const TCHAR* EventName)
	: Class(BenchmarkPanel::MakeClass(Layout))
{
	HostObjects::AddScriptFunction(Class.Get(), EventName, [Event = LastEvent](UObject*, FFrame& Stack, void*) {
		*Event = BenchmarkPanel::FirstArgument(Stack);
	});
	Panel = TStrongObjectPtr<UUserWidget>(FHostUserWidgets::Create(nullptr, Class.Get()));
	Screen = Panel->TakeWidget();
}

bool FBenchmarkPanel::Click(const TCHAR* Widget)
{
	return HostSnapshot::Click(Screen.ToSharedRef(), Widget).bDone;
}

bool FBenchmarkPanel::Type(const TCHAR* Widget, const TCHAR* Text)
{
	return HostSnapshot::Type(Screen.ToSharedRef(), Widget, Text).bDone;
}
