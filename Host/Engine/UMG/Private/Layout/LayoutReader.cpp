// Copyright Velmorant. All Rights Reserved.

#include "Layout/LayoutReader.h"

#include "Blueprint/UserWidget.h"
#include "HostJsonFault.h"
#include "HostObjects.h"
#include "Layout/LayoutAccess.h"
#include "Layout/LayoutValues.h"
#include "UObject/Package.h"

namespace LayoutReader
{
	using FJson = FLayoutReader::FJson;

	FString ToString(const std::string& Utf8)
	{
		return FString(UTF8_TO_TCHAR(Utf8.c_str()));
	}

	const FJson* Find(const FJson& Object, const char* Key)
	{
		const auto Found = Object.find(Key);
		return Found != Object.end() ? &*Found : nullptr;
	}

	static constexpr int32 MaxShownPointer = 120; // characters; its last part is the name that is too long

	/** Members whose texts are names, or paths made of names. */
	bool IsWhereNamesStand(const FString& Key)
	{
		static const TSet<FString> Keys = {TEXT("Class"), TEXT("ParentClass"), TEXT("Name"), TEXT("Set"), TEXT("Call"), TEXT("ResultOf"), TEXT("Member")};
		return Keys.Contains(Key);
	}

	/** "Widget.Event" or "Event" of the panel, which is None. */
	void SplitTarget(const FString& Text, FName& OutWidget, FName& OutMember)
	{
		FString Widget;
		FString Member;
		if (!Text.Split(TEXT("."), &Widget, &Member))
		{
			Member = Text;
		}
		OutWidget = Widget == TEXT("self") ? FName() : FName(*Widget);
		OutMember = FName(*Member);
	}
}

FString LayoutPointer::Child(const FString& Pointer, const std::string& Key)
{
	FString Escaped = LayoutReader::ToString(Key).Replace(TEXT("~"), TEXT("~0")).Replace(TEXT("/"), TEXT("~1"));
	return Pointer + TEXT("/") + Escaped;
}

FString LayoutPointer::Child(const FString& Pointer, std::size_t Index)
{
	return Pointer + TEXT("/") + FString::FromInt(static_cast<int32>(Index));
}

void FLayoutReader::Complain(const FString& Pointer, const FString& Message, const FString& Remedy)
{
	Problems.Add({Pointer.IsEmpty() ? FString(TEXT("/")) : Pointer, Message, Remedy});
}

bool FLayoutReader::CheckKeys(const FJson& Json, const FString& Pointer, std::initializer_list<const char*> Known)
{
	bool bSound = true;
	for (const auto& Member : Json.items())
	{
		const bool bKnown = std::find_if(Known.begin(), Known.end(), [&Member](const char* Key) { return Member.key() == Key; }) != Known.end();
		if (!bKnown)
		{
			TArray<FString> Names;
			for (const char* Key : Known)
			{
				Names.Add(FString(Key));
			}
			Complain(LayoutPointer::Child(Pointer, Member.key()), TEXT("this member is not known here"),
				FString::Printf(TEXT("Known ones are %s."), *FString::Join(Names, TEXT(", "))));
			bSound = false;
		}
	}
	return bSound;
}

void FLayoutReader::CheckNameLengths(const FJson& Json, const FString& Pointer)
{
	std::size_t Index = 0;
	for (const auto& Member : Json.items())
	{
		const FString Key = LayoutReader::ToString(Member.key());
		const FString MemberPointer = Json.is_array() ? LayoutPointer::Child(Pointer, Index++) : LayoutPointer::Child(Pointer, Member.key());
		const FJson& Value = Member.value();
		const bool bNames = Value.is_string() && LayoutReader::IsWhereNamesStand(Key);
		if (Json.is_object() && (Key.Len() > MaxNameLength || (bNames && LayoutReader::ToString(Value.get<std::string>()).Len() > MaxNameLength)))
		{
			Complain(MemberPointer.Left(LayoutReader::MaxShownPointer), FString::Printf(TEXT("a name has more than %d characters"), MaxNameLength), TEXT("Give it a shorter one."));
		}
		else if (Value.is_structured())
		{
			CheckNameLengths(Value, MemberPointer);
		}
	}
}

TOptional<FString> FLayoutReader::ReadString(const FJson& Json, const char* Key, const FString& Pointer)
{
	const FJson* Value = LayoutReader::Find(Json, Key);
	if (!Value || !Value->is_string())
	{
		Complain(Value ? LayoutPointer::Child(Pointer, std::string(Key)) : Pointer, FString::Printf(TEXT("a text '%s' is needed"), *FString(Key)));
		return {};
	}
	return LayoutReader::ToString(Value->get<std::string>());
}

TSharedPtr<FWidgetLayout> FLayoutReader::Read(const FString& Text)
{
	const std::string Utf8(TCHAR_TO_UTF8(*Text));
	FHostJsonFault Fault;
	if (HostJsonFault::IsTooDeep(Utf8, Fault))
	{
		Complain(FString(), FString::Printf(TEXT("line %d: %s"), Fault.Line, *Fault.Message));
		return nullptr;
	}
	const FJson Document = FJson::parse(Utf8, nullptr, false);
	if (Document.is_discarded())
	{
		Fault = HostJsonFault::Find(Utf8);
		Complain(FString(), FString::Printf(TEXT("this is not JSON: line %d, %s"), Fault.Line, *Fault.Message));
		return nullptr;
	}
	return Read(Document);
}

TSharedPtr<FWidgetLayout> FLayoutReader::Read(const FJson& Document)
{
	if (!Document.is_object())
	{
		Complain(FString(), TEXT("a layout is a JSON object"));
		return nullptr;
	}
	CheckNameLengths(Document, FString());
	if (Problems.Num() > 0)
	{
		return nullptr; // no name can be made of them, not even to look for it
	}
	Layout = MakeShared<FWidgetLayout>();
	CheckKeys(Document, FString(), {"Class", "Comment", "ParentClass", "Properties", "Tree", "Objects", "Functions", "Events", "Calls"});
	if (!ReadParentClass(Document))
	{
		return nullptr;
	}
	ReadTree(Document);
	if (Problems.Num() == 0)
	{
		// With a broken tree, every name in it would be complained about once more.
		CheckBindings();
		CheckAssignments(Layout->Properties, *Layout->ParentClass);
		CheckWidgetValues(Layout->Tree);
		bTreeIsKnown = true;
		ReadObjects(Document);
		ReadFunctionNames(Document);
	}
	if (Problems.Num() == 0)
	{
		ReadFunctions(Document);
		ReadEvents(Document);
		ReadCalls(Document);
	}
	return Problems.Num() == 0 ? Layout : nullptr;
}

bool FLayoutReader::ReadParentClass(const FJson& Document)
{
	const TOptional<FString> Path = ReadString(Document, "ParentClass", FString());
	FString Reason;
	UClass* Class = Path.IsSet() ? HostWidgetLayout::FindClass(Path.GetValue(), Reason) : nullptr;
	if (!Class)
	{
		if (Path.IsSet())
		{
			Complain(TEXT("/ParentClass"), Reason);
		}
		return false;
	}
	if (!Class->IsChildOf<UUserWidget>() || !Class->HasAnyClassFlags(CLASS_Native))
	{
		Complain(TEXT("/ParentClass"), FString::Printf(TEXT("%s is not a native user widget"), *Class->GetName()), TEXT("Name a C++ class that derives from UUserWidget."));
		return false;
	}
	Layout->ParentClass = Class;
	Layout->UsedClasses.Add(TStrongObjectPtr<UClass>(Class));
	Types.PanelClass = Class;
	Scratch = HostObjects::DeriveClass(Class, MakeUniqueObjectName(GetTransientPackage(), UClass::StaticClass(), FName(TEXT("LayoutCheck"))), GetTransientPackage());
	return true;
}

void FLayoutReader::ReadTree(const FJson& Document)
{
	if (const FJson* Properties = LayoutReader::Find(Document, "Properties"))
	{
		ReadAssignments(*Properties, TEXT("/Properties"), Layout->Properties);
	}
	const FJson* Tree = LayoutReader::Find(Document, "Tree");
	if (!Tree)
	{
		Complain(FString(), TEXT("the layout has no 'Tree'"));
		return;
	}
	ReadWidget(*Tree, TEXT("/Tree"), Layout->Tree);
	if (!Layout->Tree.Slot.IsEmpty())
	{
		Complain(TEXT("/Tree/Slot"), TEXT("the outermost widget lies in no panel"));
	}
}

void FLayoutReader::ReadObjects(const FJson& Document)
{
	const FJson* Objects = LayoutReader::Find(Document, "Objects");
	if (!Objects)
	{
		return;
	}
	if (!Objects->is_object())
	{
		Complain(TEXT("/Objects"), TEXT("objects are a JSON object: from a name to the value that leads to the object"));
		return;
	}
	for (const auto& Member : Objects->items())
	{
		FLayoutObject Object;
		if (ReadObject(Member.key(), Member.value(), Object))
		{
			Types.Widgets.Add(Object.Name, Object.Class);
			Layout->Objects.Add(MoveTemp(Object));
		}
	}
}

bool FLayoutReader::ReadObject(const std::string& Name, const FJson& Json, FLayoutObject& OutObject)
{
	const FString Pointer = LayoutPointer::Child(TEXT("/Objects"), Name);
	const FString NameText = LayoutReader::ToString(Name);
	if (!CanBeNamed(NameText))
	{
		Complain(Pointer, FString::Printf(TEXT("'%s' cannot be the name of an object"), *NameText));
		return false;
	}
	OutObject.Name = FName(*NameText);
	if (Types.Widgets.Contains(OutObject.Name))
	{
		Complain(Pointer, FString::Printf(TEXT("a widget is named '%s'; case does not tell them apart"), *NameText));
		return false;
	}
	OutObject.Value = ReadValue(Json, Pointer);
	FString Reason(TEXT("this leads to no object"));
	TOptional<FLayoutType> Type;
	if (OutObject.Value.IsValid() && OutObject.Value->GetSolePath())
	{
		Type = LayoutTypes::TypeOf(*OutObject.Value->GetSolePath(), Types, Reason);
	}
	else if (OutObject.Value.IsValid() && OutObject.Value->Kind == FLayoutValue::EKind::Result)
	{
		Type = LayoutTypes::TypeOfResult(*OutObject.Value, Types, Reason);
	}
	OutObject.Class = Type.IsSet() ? const_cast<UClass*>(Cast<UClass>(Type.GetValue().Struct)) : nullptr;
	if (!OutObject.Class && OutObject.Value.IsValid())
	{
		Complain(Pointer, Reason);
	}
	return OutObject.Class != nullptr;
}

void FLayoutReader::ReadFunctionNames(const FJson& Document)
{
	const FJson* Functions = LayoutReader::Find(Document, "Functions");
	if (!Functions)
	{
		return;
	}
	if (!Functions->is_object())
	{
		Complain(TEXT("/Functions"), TEXT("functions are a JSON object: from a name to a list of actions"));
		return;
	}
	for (const auto& Member : Functions->items())
	{
		const FString Pointer = LayoutPointer::Child(TEXT("/Functions"), Member.key());
		const FString Name = LayoutReader::ToString(Member.key());
		if (!CanBeNamed(Name))
		{
			Complain(Pointer, FString::Printf(TEXT("'%s' cannot be the name of a function"), *Name));
			continue;
		}
		if (Scratch->FindFunctionByName(FName(*Name)))
		{
			Complain(Pointer, FString::Printf(TEXT("panel %s has a '%s' of its own"), *Layout->ParentClass->GetName(), *Name));
			continue;
		}
		HostObjects::AddScriptFunction(Scratch, FName(*Name), nullptr);
		Layout->Functions.Add({FName(*Name), {}});
	}
}

void FLayoutReader::ReadFunctions(const FJson& Document)
{
	for (FLayoutEvent& Function : Layout->Functions)
	{
		const std::string Name = TCHAR_TO_UTF8(*Function.Name.ToString());
		Function.Actions = ReadActions(Document["Functions"][Name], LayoutPointer::Child(TEXT("/Functions"), Name), *Scratch->FindFunctionByName(Function.Name), false);
	}
}

void FLayoutReader::ReadEvents(const FJson& Document)
{
	const FJson* Events = LayoutReader::Find(Document, "Events");
	if (!Events)
	{
		return;
	}
	if (!Events->is_object())
	{
		Complain(TEXT("/Events"), TEXT("events are a JSON object: from the name of an event to a list of actions"));
		return;
	}
	for (const auto& Member : Events->items())
	{
		const FString Pointer = LayoutPointer::Child(TEXT("/Events"), Member.key());
		const FName Name(*LayoutReader::ToString(Member.key()));
		UFunction* Function = Layout->ParentClass->FindFunctionByName(Name);
		if (!Function || !Function->HasAnyFunctionFlags(FUNC_BlueprintEvent))
		{
			Complain(Pointer, FString::Printf(TEXT("panel %s has no event '%s'"), *Layout->ParentClass->GetName(), *Name.ToString()),
				Function ? TEXT("It is a function of the panel, which cannot be answered here.") : TEXT(""));
			continue;
		}
		Layout->Events.Add({Name, ReadActions(Member.value(), Pointer, *Function, true)});
	}
}

void FLayoutReader::ReadCalls(const FJson& Document)
{
	const FJson* Calls = LayoutReader::Find(Document, "Calls");
	if (!Calls)
	{
		return;
	}
	if (!Calls->is_object())
	{
		Complain(TEXT("/Calls"), TEXT("calls are a JSON object: from 'Widget.Event' to a list of actions"));
		return;
	}
	for (const auto& Member : Calls->items())
	{
		const FString Pointer = LayoutPointer::Child(TEXT("/Calls"), Member.key());
		FLayoutCall Call;
		LayoutReader::SplitTarget(LayoutReader::ToString(Member.key()), Call.Source, Call.Event);
		UClass* Class = Types.FindTarget(Call.Source);
		if (!Class)
		{
			Complain(Pointer, FString::Printf(TEXT("the layout has no widget '%s'"), *Call.Source.ToString()));
			continue;
		}
		const FMulticastDelegateProperty* Event = FindFProperty<FMulticastDelegateProperty>(Class, Call.Event);
		UFunction* Listener = Event ? HostObjects::AddScriptListener(Scratch, Call.GetListenerName(), *Event, nullptr) : nullptr;
		if (!Listener)
		{
			Complain(Pointer, FString::Printf(TEXT("%s raises no event '%s'"), *Class->GetName(), *Call.Event.ToString()));
			continue;
		}
		if (!LayoutAccess::CanListen(*Event))
		{
			Complain(Pointer, FString::Printf(TEXT("Blueprints cannot listen to '%s' of %s"), *Call.Event.ToString(), *Class->GetName()), TEXT("Make it BlueprintAssignable."));
			continue;
		}
		Call.Actions = ReadActions(Member.value(), Pointer, *Listener, false);
		Layout->Calls.Add(MoveTemp(Call));
	}
}
