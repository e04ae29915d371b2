// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "HostJson.h"

class UClass;
class UObject;
class UWidgetBlueprintGeneratedClass;
struct FWidgetLayout;

/**
 * Widget layouts: data that stands in for widget blueprints. A layout names a native panel class and holds a tree of named widgets,
 * what the panel's Blueprint events do, and what is called when widgets raise events. The format is described in Docs/Layouts.md.
 */
namespace HostWidgetLayout
{
	/** What is wrong with a layout, and where. */
	struct FProblem
	{
		FString Pointer; // JSON pointer into the document
		FString Message; // a sentence without its full stop
		FString Remedy; // may be empty
	};

	/**
	 * Reads a layout and checks it whole: classes, names, bindings, events, functions, arguments, values.
	 * @return null when anything is wrong; OutProblems then holds all of it.
	 */
	TSharedPtr<const FWidgetLayout> Read(const FString& Json, TArray<FProblem>& OutProblems);
	TSharedPtr<const FWidgetLayout> Read(const FHostJson& Json, TArray<FProblem>& OutProblems);

	/** The native panel class that the layout is for. */
	UClass* GetParentClass(const FWidgetLayout& Layout);

	/** The class of a layout, derived from its parent class: "<Name>" in Outer. Its widgets have the layout's tree. */
	UWidgetBlueprintGeneratedClass* MakeClass(const TSharedRef<const FWidgetLayout>& Layout, FName Name, UObject* Outer);

	/** A class by path ("/Script/UMG.TextBlock"), by plain name ("TextBlock"), or of a widget blueprint by asset path. Null with a reason. */
	UClass* FindClass(const FString& Text, FString& OutReason);
}
