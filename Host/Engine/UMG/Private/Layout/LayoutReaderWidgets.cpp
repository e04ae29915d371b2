// Copyright Velmorant. All Rights Reserved.

#include "Blueprint/UserWidget.h"
#include "Components/ContentWidget.h"
#include "Layout/LayoutAccess.h"
#include "Layout/LayoutReader.h"

namespace LayoutReaderWidgets
{
	using FJson = FLayoutReader::FJson;

	const FJson* Find(const FJson& Object, const char* Key)
	{
		const auto Found = Object.find(Key);
		return Found != Object.end() ? &*Found : nullptr;
	}

	bool IsBound(const FProperty& Property, bool& bOutOptional)
	{
		bOutOptional = Property.HasMetaData(TEXT("BindWidgetOptional")) || Property.GetBoolMetaData(FName(TEXT("OptionalWidget")));
		return bOutOptional || Property.HasMetaData(TEXT("BindWidget"));
	}
}

UClass* FLayoutReader::ReadWidgetClass(const FJson& Json, const FString& Pointer)
{
	const TOptional<FString> ClassName = ReadString(Json, "Class", Pointer);
	if (!ClassName.IsSet())
	{
		return nullptr;
	}
	const FString ClassPointer = LayoutPointer::Child(Pointer, std::string("Class"));
	FString Reason;
	UClass* Class = HostWidgetLayout::FindClass(ClassName.GetValue(), Reason);
	if (!Class)
	{
		Complain(ClassPointer, Reason);
		return nullptr;
	}
	if (!Class->IsChildOf<UWidget>() || Class->HasAnyClassFlags(CLASS_Abstract))
	{
		Complain(ClassPointer, FString::Printf(TEXT("%s is not a widget that can be made"), *Class->GetName()));
		return nullptr;
	}
	Layout->UsedClasses.Add(TStrongObjectPtr<UClass>(Class));
	return Class;
}

bool FLayoutReader::CanBeNamed(const FString& Text)
{
	return Text.Len() < NAME_SIZE && !FName(*Text).IsNone() && Text != TEXT("self") && !Text.Contains(TEXT(".")) && !Text.Contains(TEXT("/"));
}

void FLayoutReader::ReadWidgetName(const FJson& Json, const FString& Pointer, FLayoutWidget& OutWidget)
{
	if (!LayoutReaderWidgets::Find(Json, "Name"))
	{
		return;
	}
	const TOptional<FString> Name = ReadString(Json, "Name", Pointer);
	if (!Name.IsSet())
	{
		return;
	}
	const FString NamePointer = LayoutPointer::Child(Pointer, std::string("Name"));
	if (!CanBeNamed(Name.GetValue()))
	{
		Complain(NamePointer, FString::Printf(TEXT("'%s' cannot be the name of a widget"), *Name.GetValue()));
		return;
	}
	OutWidget.Name = FName(*Name.GetValue());
	if (Types.Widgets.Contains(OutWidget.Name))
	{
		Complain(NamePointer, FString::Printf(TEXT("another widget is named '%s'; case does not tell them apart"), *Name.GetValue()));
	}
	else
	{
		Types.Widgets.Add(OutWidget.Name, OutWidget.Class);
	}
}

bool FLayoutReader::ReadWidget(const FJson& Json, const FString& Pointer, FLayoutWidget& OutWidget)
{
	if (!Json.is_object())
	{
		Complain(Pointer, TEXT("a widget is a JSON object"));
		return false;
	}
	CheckKeys(Json, Pointer, {"Class", "Name", "Comment", "Properties", "Slot", "Children"});
	OutWidget.Pointer = Pointer;
	OutWidget.Class = ReadWidgetClass(Json, Pointer);
	if (!OutWidget.Class)
	{
		return false;
	}
	ReadWidgetName(Json, Pointer, OutWidget);
	if (const FJson* Properties = LayoutReaderWidgets::Find(Json, "Properties"))
	{
		ReadAssignments(*Properties, LayoutPointer::Child(Pointer, std::string("Properties")), OutWidget.Properties);
	}
	if (const FJson* Slot = LayoutReaderWidgets::Find(Json, "Slot"))
	{
		ReadAssignments(*Slot, LayoutPointer::Child(Pointer, std::string("Slot")), OutWidget.Slot);
	}
	ReadChildren(Json, Pointer, OutWidget);
	return true;
}

void FLayoutReader::ReadChildren(const FJson& Json, const FString& Pointer, FLayoutWidget& OutWidget)
{
	const FJson* Children = LayoutReaderWidgets::Find(Json, "Children");
	if (!Children)
	{
		return;
	}
	const FString ChildrenPointer = LayoutPointer::Child(Pointer, std::string("Children"));
	if (!Children->is_array())
	{
		Complain(ChildrenPointer, TEXT("children are a JSON array of widgets"));
		return;
	}
	if (!OutWidget.Class->IsChildOf<UPanelWidget>())
	{
		Complain(ChildrenPointer, FString::Printf(TEXT("a %s has no children"), *OutWidget.Class->GetName()));
		return;
	}
	if (OutWidget.Class->IsChildOf<UContentWidget>() && Children->size() > 1)
	{
		Complain(ChildrenPointer, FString::Printf(TEXT("a %s has one child, not %d"), *OutWidget.Class->GetName(), static_cast<int32>(Children->size())),
			TEXT("Put them into a VerticalBox or HorizontalBox."));
		return;
	}
	for (std::size_t Index = 0; Index < Children->size(); ++Index)
	{
		FLayoutWidget Child;
		if (ReadWidget((*Children)[Index], LayoutPointer::Child(ChildrenPointer, Index), Child))
		{
			OutWidget.Children.Add(MoveTemp(Child));
		}
	}
}

void FLayoutReader::ReadAssignments(const FJson& Json, const FString& Pointer, TArray<FLayoutAssignment>& OutAssignments)
{
	if (!Json.is_object())
	{
		Complain(Pointer, TEXT("properties are a JSON object"));
		return;
	}
	for (const auto& Member : Json.items())
	{
		if (const TSharedPtr<FLayoutValue> Value = ReadValue(Member.value(), LayoutPointer::Child(Pointer, Member.key())))
		{
			OutAssignments.Add({FName(*FString(UTF8_TO_TCHAR(Member.key().c_str()))), Value});
		}
	}
}

void FLayoutReader::CheckAssignments(const TArray<FLayoutAssignment>& Assignments, UClass& Class)
{
	for (const FLayoutAssignment& Assignment : Assignments)
	{
		const LayoutTypes::FSetter Setter = LayoutTypes::FindSetter(Class, Assignment.Property);
		if (!Setter.IsValid())
		{
			Complain(Assignment.Value->Pointer, FString::Printf(TEXT("%s has no property '%s'"), *Class.GetName(), *Assignment.Property.ToString()));
			continue;
		}
		if (!Setter.Function && !LayoutAccess::CanDesign(*Setter.Property))
		{
			Complain(Assignment.Value->Pointer, FString::Printf(TEXT("'%s' of %s cannot be set in a layout"), *Assignment.Property.ToString(), *Class.GetName()),
				TEXT("Make it EditAnywhere or BlueprintReadWrite."));
			continue;
		}
		CheckValue(*Assignment.Value, Setter.Property);
	}
}

void FLayoutReader::CheckWidgetValues(const FLayoutWidget& Widget)
{
	CheckAssignments(Widget.Properties, *Widget.Class);
	for (const FLayoutWidget& Child : Widget.Children)
	{
		CheckAssignments(Child.Slot, *Widget.Class->GetDefaultObject<UPanelWidget>()->GetSlotClassForHost());
		CheckWidgetValues(Child);
	}
}

void FLayoutReader::CheckBindings()
{
	for (TFieldIterator<FObjectProperty> It(Layout->ParentClass); It; ++It)
	{
		const FObjectProperty& Property = **It;
		bool bOptional = false;
		if (!LayoutReaderWidgets::IsBound(Property, bOptional))
		{
			continue;
		}
		UClass* const* Class = Types.Widgets.Find(Property.GetFName());
		if (!Class && !bOptional)
		{
			Complain(TEXT("/Tree"), FString::Printf(TEXT("panel %s needs a widget named '%s' of class %s, and the layout has none"), *Layout->ParentClass->GetName(), *Property.GetName(), *Property.PropertyClass->GetName()),
				TEXT("Add it to the tree."));
		}
		else if (Class && !(*Class)->IsChildOf(Property.PropertyClass))
		{
			Complain(TEXT("/Tree"), FString::Printf(TEXT("panel %s binds the widget '%s' as a %s, but here it is a %s"), *Layout->ParentClass->GetName(), *Property.GetName(), *Property.PropertyClass->GetName(), *(*Class)->GetName()));
		}
	}
}
