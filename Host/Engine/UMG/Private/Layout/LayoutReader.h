// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "HostJsonMembers.h"
#include "HostWidgetLayout.h"
#include "Layout/LayoutTypes.h"

#include <initializer_list>
#include <string>

/** Reads one layout document. Goes on after a problem, so that one reading tells all of them. */
class FLayoutReader
{
public:
	using FJson = FHostJson;

	explicit FLayoutReader(TArray<HostWidgetLayout::FProblem>& InProblems)
		: Problems(InProblems)
	{
	}

	/** Null when there were problems. */
	TSharedPtr<FWidgetLayout> Read(const FJson& Document);
	TSharedPtr<FWidgetLayout> Read(const FString& Text);

private:
	//~ The document
	bool ReadParentClass(const FJson& Document);
	void ReadTree(const FJson& Document);
	void CheckBindings();
	void ReadObjects(const FJson& Document);
	/** All names first: functions may call each other. */
	void ReadFunctionNames(const FJson& Document);
	void ReadFunctions(const FJson& Document);
	bool ReadObject(const std::string& Name, const FJson& Json, FLayoutObject& OutObject);
	void ReadEvents(const FJson& Document);
	void ReadCalls(const FJson& Document);

	//~ Widgets
	bool ReadWidget(const FJson& Json, const FString& Pointer, FLayoutWidget& OutWidget);
	UClass* ReadWidgetClass(const FJson& Json, const FString& Pointer);
	/** Whether widgets and objects can have that name. */
	static bool CanBeNamed(const FString& Text);
	void ReadWidgetName(const FJson& Json, const FString& Pointer, FLayoutWidget& OutWidget);
	void ReadChildren(const FJson& Json, const FString& Pointer, FLayoutWidget& OutWidget);
	/** Values are checked once all widgets are known. */
	void ReadAssignments(const FJson& Json, const FString& Pointer, TArray<FLayoutAssignment>& OutAssignments);
	void CheckAssignments(const TArray<FLayoutAssignment>& Assignments, UClass& Class);
	void CheckWidgetValues(const FLayoutWidget& Widget);

	//~ Actions
	TArray<FLayoutAction> ReadActions(const FJson& Json, const FString& Pointer, const UFunction& Event, bool bCanCallParent);
	TArray<FLayoutAction> ReadActionList(const FJson& Json, const FString& Pointer, bool bCanCallParent);
	bool ReadAction(const FJson& Json, const FString& Pointer, bool bCanCallParent, FLayoutAction& OutAction);
	bool ReadSet(const FJson& Json, const FString& Pointer, FLayoutAction& OutAction);
	bool ReadCall(const FJson& Json, const FString& Pointer, bool bCanCallParent, FLayoutAction& OutAction);
	/** Complains when Blueprints cannot call it. */
	bool CheckCall(const UClass& Class, const UFunction& Function, const FString& Pointer);
	bool ReadBranches(const FJson& Json, const FString& Pointer, bool bCanCallParent, const UFunction& Function, FLayoutAction& OutAction);
	bool ReadArguments(const FJson& Json, const FString& Pointer, UFunction& Function, FLayoutFunctionCall& OutCall);
	/** The function that a member of the document names. Null, with a complaint, when there is none. */
	UFunction* ReadFunction(const FJson& Json, const char* Key, const FString& Pointer, FLayoutFunctionCall& OutCall);
	/** "Widget.Member", or "Member" of the panel. Null when there is no such widget. */
	UClass* ReadTarget(const FJson& Json, const FString& Pointer, FName& OutTarget, FName& OutMember);
	UClass* ReadLibrary(const FString& Text, const FString& Pointer, FLayoutFunctionCall& OutCall);

	//~ Values
	/** Constants as they read in a text; unset for null and for what is no scalar. */
	static TOptional<FString> ScalarText(const FJson& Json);
	TSharedPtr<FLayoutValue> ReadValue(const FJson& Json, const FString& Pointer);
	bool ReadText(const FString& Text, FLayoutValue& OutValue);
	bool ReadChoice(const FJson& Json, FLayoutValue& OutValue);
	bool ReadResult(const FJson& Json, FLayoutValue& OutValue);
	bool ReadList(const FJson& Json, FLayoutValue& OutValue);
	bool ReadCondition(const FJson& Json, const FString& Pointer, FLayoutCondition& OutCondition);
	void CheckValue(const FLayoutValue& Value, const FProperty* Property);
	void CheckCondition(const FLayoutCondition& Condition);

	//~ Complaints
	void Complain(const FString& Pointer, const FString& Message, const FString& Remedy = FString());
	bool CheckKeys(const FJson& Json, const FString& Pointer, std::initializer_list<const char*> Known);
	/** Members, and texts that are names, all the way down. */
	void CheckNameLengths(const FJson& Json, const FString& Pointer);
	/** The string member of an object; unset when it is missing or no string, which is a problem. */
	TOptional<FString> ReadString(const FJson& Json, const char* Key, const FString& Pointer);

	TArray<HostWidgetLayout::FProblem>& Problems;
	TSharedPtr<FWidgetLayout> Layout;
	FLayoutTypes Types;
	bool bTreeIsKnown = false; // before that, not every name is
	UClass* Scratch = nullptr; // derived from the parent class, to try events out on
};

/** JSON pointers: "/Tree/Children/2". */
namespace LayoutPointer
{
	FString Child(const FString& Pointer, const std::string& Key);
	FString Child(const FString& Pointer, std::size_t Index);
}
