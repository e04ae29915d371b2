// Copyright Velmorant. All Rights Reserved.

#include "Layout/LayoutTypes.h"

#include "Components/Widget.h"
#include "Layout/LayoutAccess.h"

UClass* FLayoutTypes::FindTarget(FName Name) const
{
	UClass* const* Class = Name.IsNone() ? &PanelClass : Widgets.Find(Name);
	return Class ? *Class : nullptr;
}

namespace LayoutTypes
{
	/** One that Blueprints can call comes before one that they cannot. */
	UFunction* FindGetter(const UClass& Class, const FString& Name, bool& bOutHidden)
	{
		for (const TCHAR* Prefix : {TEXT("Get"), TEXT(""), TEXT("Is"), TEXT("Has")})
		{
			UFunction* Function = Class.FindFunctionByName(FName(*(FString(Prefix) + Name)));
			if (Function && Function->GetReturnProperty() && ParametersOf(*Function).IsEmpty())
			{
				if (LayoutAccess::CanCall(*Function))
				{
					return Function;
				}
				bOutHidden = true;
			}
		}
		return nullptr;
	}

	const UStruct* StructOf(const FProperty& Property)
	{
		if (const FStructProperty* Struct = CastField<FStructProperty>(&Property))
		{
			return Struct->Struct;
		}
		const FObjectPropertyBase* Object = CastField<FObjectPropertyBase>(&Property);
		return Object ? Object->PropertyClass : nullptr;
	}

	FMember FindMember(const UStruct& Owner, const FString& Name)
	{
		FMember Member;
		if (const UClass* Class = Cast<UClass>(&Owner))
		{
			Member.Getter = FindGetter(*Class, Name, Member.bHidden);
		}
		Member.Property = Member.Getter ? Member.Getter->GetReturnProperty() : Owner.FindPropertyByName(FName(*Name));
		if (!Member.Getter && Member.Property && !LayoutAccess::CanRead(*Member.Property))
		{
			Member.Property = nullptr;
			Member.bHidden = true;
		}
		return Member;
	}

	FSetter FindSetter(const UClass& Owner, FName Name)
	{
		FSetter Setter;
		Setter.Function = Owner.FindFunctionByName(FName(*(TEXT("Set") + Name.ToString())));
		const bool bCallable = Setter.Function && LayoutAccess::CanCall(*Setter.Function);
		const TArray<const FProperty*> Parameters = bCallable ? ParametersOf(*Setter.Function) : TArray<const FProperty*>();
		if (Parameters.Num() == 1)
		{
			Setter.Property = Parameters[0];
			return Setter;
		}
		Setter.Function = nullptr;
		Setter.Property = Owner.FindPropertyByName(Name);
		return Setter;
	}

	TArray<const FProperty*> ParametersOf(const UFunction& Function)
	{
		TArray<const FProperty*> Result;
		for (const FProperty* Property : Function.GetOwnProperties())
		{
			if (!Property->HasAnyPropertyFlags(CPF_ReturnParm))
			{
				Result.Add(Property);
			}
		}
		return Result;
	}

	bool IsSameType(const FProperty& A, const FProperty& B)
	{
		if (A.GetClass() != B.GetClass() || A.GetElementSize() != B.GetElementSize())
		{
			return false;
		}
		if (const FObjectPropertyBase* Object = CastField<FObjectPropertyBase>(&A))
		{
			const UClass* Wanted = CastField<FObjectPropertyBase>(&B)->PropertyClass;
			return Object->PropertyClass->IsChildOf(Wanted) || Wanted->IsChildOf(Object->PropertyClass);
		}
		return A.GetCPPType() == B.GetCPPType();
	}

	/** What the first part of a path stands for. */
	TOptional<FLayoutType> RootOf(const FString& Part, const FLayoutTypes& Types, FString& OutReason)
	{
		if (const FProperty* Parameter = Types.Event ? Types.Event->FindPropertyByName(FName(*Part)) : nullptr)
		{
			return FLayoutType{Parameter, StructOf(*Parameter), false};
		}
		if (Part == TEXT("self"))
		{
			return FLayoutType{nullptr, Types.PanelClass, false};
		}
		if (UClass* const* Widget = Types.Widgets.Find(FName(*Part)))
		{
			return FLayoutType{nullptr, *Widget, false};
		}
		OutReason = FString::Printf(TEXT("'%s' is neither a parameter of the event nor a widget of the layout"), *Part);
		return {};
	}

	/** From a type on by the members of a path; the first part is where the type comes from. */
	TOptional<FLayoutType> FollowMembers(TOptional<FLayoutType> Type, const FLayoutPath& Path, FString& OutReason)
	{
		for (int32 Index = 1; Type.IsSet() && Index < Path.Parts.Num(); ++Index)
		{
			const FString& Part = Path.Parts[Index];
			const UStruct* Owner = Type.GetValue().Struct;
			const FMember Member = Owner ? FindMember(*Owner, Part) : FMember();
			if (Member.bHidden && !Member.Property)
			{
				OutReason = FString::Printf(TEXT("Blueprints cannot read '%s' of %s"), *Part, *Owner->GetName());
				return {};
			}
			if (!Member.Property && (Type.GetValue().bOpen || Owner == UObject::StaticClass()))
			{
				Type = FLayoutType{nullptr, nullptr, true};
				continue;
			}
			if (!Member.Property)
			{
				OutReason = Owner ? FString::Printf(TEXT("'%s' of '%s' has nothing called '%s'"), *Owner->GetName(), *Path.ToString(), *Part)
								  : FString::Printf(TEXT("what comes before '%s' in '%s' has no members"), *Part, *Path.ToString());
				return {};
			}
			Type = FLayoutType{Member.Property, StructOf(*Member.Property), false};
		}
		return Type;
	}

	TOptional<FLayoutType> TypeOf(const FLayoutPath& Path, const FLayoutTypes& Types, FString& OutReason)
	{
		return FollowMembers(RootOf(Path.Parts[0], Types, OutReason), Path, OutReason);
	}

	TOptional<FLayoutType> TypeOfResult(const FLayoutValue& Value, const FLayoutTypes& Types, FString& OutReason)
	{
		const UClass* Class = Value.Call->Library ? Value.Call->Library : Types.FindTarget(Value.Call->Target);
		const FProperty& Result = *Class->FindFunctionByName(Value.Call->Function)->GetReturnProperty();
		FLayoutPath Path;
		Path.Parts = {Value.Call->Function.ToString()};
		Path.Parts.Append(Value.Members);
		return FollowMembers(FLayoutType{&Result, StructOf(Result), false}, Path, OutReason);
	}

	FString Describe(const FProperty& Property)
	{
		if (Property.IsA<FBoolProperty>())
		{
			return TEXT("truth value (true or false)");
		}
		const FNumericProperty* Number = CastField<FNumericProperty>(&Property);
		const FEnumProperty* Enum = CastField<FEnumProperty>(&Property);
		if (Enum || (Number && Number->IsEnum()))
		{
			return TEXT("value of ") + (Enum ? Enum->GetEnum() : Number->GetIntPropertyEnum())->GetName();
		}
		if (Number)
		{
			return Number->IsInteger() ? TEXT("whole number") : TEXT("number");
		}
		return Property.GetCPPType();
	}
}

FLayoutParameterBlock::FLayoutParameterBlock(UFunction& InFunction)
	: Function(InFunction)
{
	constexpr int32 Alignment = alignof(std::max_align_t);
	Storage.SetNum(Function.ParmsSize + Alignment);
	const UPTRINT Address = reinterpret_cast<UPTRINT>(Storage.GetData());
	uint8* Aligned = reinterpret_cast<uint8*>((Address + Alignment - 1) / Alignment * Alignment);
	Memory = TArrayView<uint8>(Aligned, Function.ParmsSize);
	for (const FProperty* Property : Function.GetOwnProperties())
	{
		Property->InitializeValue_InContainer(GetData());
	}
}

FLayoutParameterBlock::~FLayoutParameterBlock()
{
	for (const FProperty* Property : Function.GetOwnProperties())
	{
		Property->DestroyValue_InContainer(GetData());
	}
}

void FLayoutParameterBlock::Call(UObject& Object)
{
	Object.ProcessEvent(&Function, GetData());
}
