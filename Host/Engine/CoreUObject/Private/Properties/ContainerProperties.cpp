// Copyright Velmorant. All Rights Reserved.
// Arrays, sets and maps.

#include "Properties/PropertyText.h"
#include "HostScratchValue.h"
#include "UObject/UnrealType.h"

namespace ContainerProperties
{
	/** "(a,b)"; ReadElement reads one and gives what follows. An empty text is an empty container. */
	template<typename ReadElementType>
	const TCHAR* ImportList(const TCHAR* Buffer, ReadElementType&& ReadElement)
	{
		Buffer = PropertyText::SkipBlanks(Buffer);
		if (*Buffer == 0 || *Buffer == TEXT(',') || *Buffer == TEXT(')'))
		{
			return Buffer;
		}
		if (*Buffer != TEXT('('))
		{
			return nullptr;
		}
		Buffer = PropertyText::SkipBlanks(Buffer + 1);
		while (*Buffer && *Buffer != TEXT(')'))
		{
			Buffer = ReadElement(Buffer);
			if (!Buffer)
			{
				return nullptr;
			}
			Buffer = PropertyText::SkipBlanks(Buffer);
			if (*Buffer == TEXT(','))
			{
				Buffer = PropertyText::SkipBlanks(Buffer + 1);
			}
			else if (*Buffer != TEXT(')'))
			{
				return nullptr;
			}
		}
		return *Buffer == TEXT(')') ? Buffer + 1 : nullptr;
	}
}

//~ Helpers

void FScriptArrayHelper::Resize(int32 Count)
{
	const int32 Before = Num();
	if (Count < Before)
	{
		RemoveValues(Count, Before - Count);
	}
	else if (Count > Before)
	{
		AddValues(Count - Before);
	}
}

FScriptMapHelper::FScriptMapHelper(const FMapProperty* InProperty, const void* InMap)
	: Property(InProperty)
	, Map(const_cast<void*>(InMap))
{
	Refresh();
}

void FScriptMapHelper::Refresh()
{
	Pairs.Reset();
	Property->GetOps().ForEach(
		Map, [](void* Context, const void* Key, void* Value) {
			static_cast<TArray<FPair>*>(Context)->Add(FPair{static_cast<uint8*>(const_cast<void*>(Key)), static_cast<uint8*>(Value)});
		},
		&Pairs);
}

FScriptSetHelper::FScriptSetHelper(const FSetProperty* InProperty, const void* InSet)
	: Property(InProperty)
	, Set(const_cast<void*>(InSet))
{
	Refresh();
}

void FScriptSetHelper::Refresh()
{
	Elements.Reset();
	Property->GetOps().ForEach(
		Set, [](void* Context, const void* Element, void*) {
			static_cast<TArray<uint8*>*>(Context)->Add(static_cast<uint8*>(const_cast<void*>(Element)));
		},
		&Elements);
}

//~ Arrays

FString FArrayProperty::GetCPPType() const
{
	return FString::Printf(TEXT("TArray<%s>"), *Inner->GetCPPType());
}

void FArrayProperty::InitializeValue(void* Dest) const
{
	Ops->Construct(Dest);
}

void FArrayProperty::DestroyValue(void* Dest) const
{
	Ops->Destroy(Dest);
}

void FArrayProperty::CopyCompleteValue(void* Dest, const void* Src) const
{
	if (Dest == Src)
	{
		return;
	}
	FScriptArrayHelper To(this, Dest);
	const FScriptArrayHelper From(this, Src);
	To.Resize(From.Num());
	for (int32 Index = 0; Index < From.Num(); ++Index)
	{
		Inner->CopyCompleteValue(To.GetRawPtr(Index), From.GetRawPtr(Index));
	}
}

bool FArrayProperty::Identical(const void* A, const void* B, uint32 PortFlags) const
{
	const FScriptArrayHelper Left(this, A);
	if (!B)
	{
		return Left.Num() == 0;
	}
	const FScriptArrayHelper Right(this, B);
	bool bIdentical = Left.Num() == Right.Num();
	for (int32 Index = 0; bIdentical && Index < Left.Num(); ++Index)
	{
		bIdentical = Inner->Identical(Left.GetRawPtr(Index), Right.GetRawPtr(Index), PortFlags);
	}
	return bIdentical;
}

void FArrayProperty::ExportText_Internal(FString& ValueStr, const void* Value, const void*, UObject* Parent, int32 PortFlags, UObject* ExportRootScope) const
{
	const FScriptArrayHelper Helper(this, Value);
	for (int32 Index = 0; Index < Helper.Num(); ++Index)
	{
		ValueStr += Index == 0 ? TEXT("(") : TEXT(",");
		const uint8* Element = Helper.GetRawPtr(Index);
		Inner->ExportTextItem_Direct(ValueStr, Element, Element, Parent, PortFlags | PPF_Delimited, ExportRootScope);
	}
	ValueStr += Helper.Num() > 0 ? TEXT(")") : TEXT("");
}

const TCHAR* FArrayProperty::ImportText_Internal(const TCHAR* Buffer, void* Value, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText) const
{
	FScriptArrayHelper Helper(this, Value);
	Helper.EmptyValues();
	return ContainerProperties::ImportList(Buffer, [&](const TCHAR* Element) {
		const int32 Index = Helper.AddValue();
		return Inner->ImportText_Direct(Element, Helper.GetRawPtr(Index), OwnerObject, PortFlags | PPF_Delimited, ErrorText);
	});
}

void FArrayProperty::CollectReferences(void* Value, FReferenceCollector& Collector) const
{
	const FScriptArrayHelper Helper(this, Value);
	for (int32 Index = 0; Index < Helper.Num(); ++Index)
	{
		Inner->CollectReferences(Helper.GetRawPtr(Index), Collector);
	}
}

//~ Sets

FString FSetProperty::GetCPPType() const
{
	return FString::Printf(TEXT("TSet<%s>"), *ElementProp->GetCPPType());
}

void FSetProperty::InitializeValue(void* Dest) const
{
	Ops->Construct(Dest);
}

void FSetProperty::DestroyValue(void* Dest) const
{
	Ops->Destroy(Dest);
}

void FSetProperty::CopyCompleteValue(void* Dest, const void* Src) const
{
	if (Dest != Src)
	{
		Ops->Empty(Dest);
		const FScriptSetHelper From(this, Src);
		for (int32 Index = 0; Index < From.Num(); ++Index)
		{
			Ops->Add(Dest, From.GetElementPtr(Index), nullptr);
		}
	}
}

bool FSetProperty::Identical(const void* A, const void* B, uint32) const
{
	const FScriptSetHelper Left(this, A);
	bool bIdentical = Left.Num() == (B ? Ops->Num(B) : 0);
	for (int32 Index = 0; bIdentical && Index < Left.Num(); ++Index)
	{
		bIdentical = Ops->Find(const_cast<void*>(B), Left.GetElementPtr(Index)) != nullptr;
	}
	return bIdentical;
}

void FSetProperty::ExportText_Internal(FString& ValueStr, const void* Value, const void*, UObject* Parent, int32 PortFlags, UObject* ExportRootScope) const
{
	const FScriptSetHelper Helper(this, Value);
	for (int32 Index = 0; Index < Helper.Num(); ++Index)
	{
		ValueStr += Index == 0 ? TEXT("(") : TEXT(",");
		const uint8* Element = Helper.GetElementPtr(Index);
		ElementProp->ExportTextItem_Direct(ValueStr, Element, Element, Parent, PortFlags | PPF_Delimited, ExportRootScope);
	}
	ValueStr += Helper.Num() > 0 ? TEXT(")") : TEXT("");
}

const TCHAR* FSetProperty::ImportText_Internal(const TCHAR* Buffer, void* Value, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText) const
{
	Ops->Empty(Value);
	return ContainerProperties::ImportList(Buffer, [&](const TCHAR* Text) {
		const FScratchValue Element(ElementProp);
		const TCHAR* Rest = ElementProp->ImportText_Direct(Text, Element.Get(), OwnerObject, PortFlags | PPF_Delimited, ErrorText);
		if (Rest)
		{
			Ops->Add(Value, Element.Get(), nullptr);
		}
		return Rest;
	});
}

void FSetProperty::CollectReferences(void* Value, FReferenceCollector& Collector) const
{
	const FScriptSetHelper Helper(this, Value);
	for (int32 Index = 0; Index < Helper.Num(); ++Index)
	{
		ElementProp->CollectReferences(Helper.GetElementPtr(Index), Collector);
	}
}

//~ Maps

FString FMapProperty::GetCPPType() const
{
	return FString::Printf(TEXT("TMap<%s,%s>"), *KeyProp->GetCPPType(), *ValueProp->GetCPPType());
}

void FMapProperty::InitializeValue(void* Dest) const
{
	Ops->Construct(Dest);
}

void FMapProperty::DestroyValue(void* Dest) const
{
	Ops->Destroy(Dest);
}

void FMapProperty::CopyCompleteValue(void* Dest, const void* Src) const
{
	if (Dest != Src)
	{
		Ops->Empty(Dest);
		const FScriptMapHelper From(this, Src);
		for (int32 Index = 0; Index < From.Num(); ++Index)
		{
			Ops->Add(Dest, From.GetKeyPtr(Index), From.GetValuePtr(Index));
		}
	}
}

bool FMapProperty::Identical(const void* A, const void* B, uint32 PortFlags) const
{
	const FScriptMapHelper Left(this, A);
	bool bIdentical = Left.Num() == (B ? Ops->Num(B) : 0);
	for (int32 Index = 0; bIdentical && Index < Left.Num(); ++Index)
	{
		const void* Other = Ops->Find(const_cast<void*>(B), Left.GetKeyPtr(Index));
		bIdentical = Other && ValueProp->Identical(Left.GetValuePtr(Index), Other, PortFlags);
	}
	return bIdentical;
}

void FMapProperty::ExportText_Internal(FString& ValueStr, const void* Value, const void*, UObject* Parent, int32 PortFlags, UObject* ExportRootScope) const
{
	const FScriptMapHelper Helper(this, Value);
	for (int32 Index = 0; Index < Helper.Num(); ++Index)
	{
		const uint8* Key = Helper.GetKeyPtr(Index);
		const uint8* Mapped = Helper.GetValuePtr(Index);
		ValueStr += Index == 0 ? TEXT("((") : TEXT(",(");
		KeyProp->ExportTextItem_Direct(ValueStr, Key, Key, Parent, PortFlags | PPF_Delimited, ExportRootScope);
		ValueStr += TEXT(", ");
		ValueProp->ExportTextItem_Direct(ValueStr, Mapped, Mapped, Parent, PortFlags | PPF_Delimited, ExportRootScope);
		ValueStr += TEXT(")");
	}
	ValueStr += Helper.Num() > 0 ? TEXT(")") : TEXT("");
}

const TCHAR* FMapProperty::ImportText_Internal(const TCHAR* Buffer, void* Value, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText) const
{
	Ops->Empty(Value);
	return ContainerProperties::ImportList(Buffer, [&](const TCHAR* Text) -> const TCHAR* {
		const FScratchValue Key(KeyProp);
		const FScratchValue Mapped(ValueProp);
		int32 Part = 0;
		const TCHAR* Rest = *Text != TEXT('(') ? nullptr : ContainerProperties::ImportList(Text, [&](const TCHAR* Piece) -> const TCHAR* {
			++Part;
			if (Part == 1)
			{
				return KeyProp->ImportText_Direct(Piece, Key.Get(), OwnerObject, PortFlags | PPF_Delimited, ErrorText);
			}
			return Part == 2 ? ValueProp->ImportText_Direct(Piece, Mapped.Get(), OwnerObject, PortFlags | PPF_Delimited, ErrorText) : nullptr;
		});
		if (!Rest || Part != 2)
		{
			return nullptr;
		}
		Ops->Add(Value, Key.Get(), Mapped.Get());
		return Rest;
	});
}

void FMapProperty::CollectReferences(void* Value, FReferenceCollector& Collector) const
{
	const FScriptMapHelper Helper(this, Value);
	for (int32 Index = 0; Index < Helper.Num(); ++Index)
	{
		KeyProp->CollectReferences(Helper.GetKeyPtr(Index), Collector);
		ValueProp->CollectReferences(Helper.GetValuePtr(Index), Collector);
	}
}
