// Copyright Velmorant. All Rights Reserved.
// Structs of Core's value types, which the header tool does not read.

#include "AssetRegistry/AssetData.h"
#include "Math/Color.h"
#include "Math/IntPoint.h"
#include "Math/Quat.h"
#include "Math/Rotator.h"
#include "Math/Transform.h"
#include "Math/Vector.h"
#include "Math/Vector2D.h"
#include "Properties/PropertyText.h"
#include "Reflection/RootTypes.h"
#include "Reflection/TypeBuilder.h"
#include "UObject/SoftObjectPath.h"

namespace UE::Reflection
{
	namespace BaseStructures
	{
		template<typename T>
		const FStructOps& ComparedOps()
		{
			static constexpr FStructOps Ops = {
				[](void* Memory) { ::new (Memory) T(); },
				[](void* Memory) { static_cast<T*>(Memory)->~T(); },
				[](void* Dest, const void* Src) { *static_cast<T*>(Dest) = *static_cast<const T*>(Src); },
				[](const void* A, const void* B) { return *static_cast<const T*>(A) == *static_cast<const T*>(B); }};
			return Ops;
		}

		/** For types whose default constructor leaves the values open: reflection always starts with zeros. */
		template<typename T>
		const FStructOps& ZeroedOps()
		{
			static constexpr FStructOps Ops = {
				[](void* Memory) { ::new (Memory) T(ForceInit); },
				[](void*) {},
				[](void* Dest, const void* Src) { *static_cast<T*>(Dest) = *static_cast<const T*>(Src); },
				[](const void* A, const void* B) { return *static_cast<const T*>(A) == *static_cast<const T*>(B); }};
			return Ops;
		}

		template<typename T>
		constexpr FPropertyRecord Member(const char* Name, std::size_t Offset)
		{
			return {Name, CPF_Edit | CPF_BlueprintVisible | CPF_NativeAccessSpecifierPublic, static_cast<uint32>(Offset), &MakeProperty<T>, nullptr, 0};
		}

		template<typename T>
		constexpr FStructRecord Record(const char* CppName, const FStructOps& (*Ops)(), const FPropertyRecord* Properties, int32 NumProperties)
		{
			return {CppName, CppName + 1, "/Script/CoreUObject", STRUCT_Native, sizeof(T), alignof(T), nullptr, Ops, Properties, NumProperties, nullptr, 0, nullptr};
		}
	}

	using BaseStructures::ComparedOps;
	using BaseStructures::Member;
	using BaseStructures::ZeroedOps;

	static constexpr FPropertyRecord GVectorMembers[] = {Member<double>("X", STRUCT_OFFSET(FVector, X)), Member<double>("Y", STRUCT_OFFSET(FVector, Y)),
		Member<double>("Z", STRUCT_OFFSET(FVector, Z))};
	static FStructRecord GVectorRecord = BaseStructures::Record<FVector>("FVector", &ZeroedOps<FVector>, GVectorMembers, 3);

	static constexpr FPropertyRecord GVector2DMembers[] = {Member<double>("X", STRUCT_OFFSET(FVector2D, X)), Member<double>("Y", STRUCT_OFFSET(FVector2D, Y))};
	static FStructRecord GVector2DRecord = BaseStructures::Record<FVector2D>("FVector2D", &ZeroedOps<FVector2D>, GVector2DMembers, 2);

	static constexpr FPropertyRecord GRotatorMembers[] = {Member<double>("Pitch", STRUCT_OFFSET(FRotator, Pitch)),
		Member<double>("Yaw", STRUCT_OFFSET(FRotator, Yaw)), Member<double>("Roll", STRUCT_OFFSET(FRotator, Roll))};
	static FStructRecord GRotatorRecord = BaseStructures::Record<FRotator>("FRotator", &ZeroedOps<FRotator>, GRotatorMembers, 3);

	static constexpr FPropertyRecord GQuatMembers[] = {Member<double>("X", STRUCT_OFFSET(FQuat, X)), Member<double>("Y", STRUCT_OFFSET(FQuat, Y)),
		Member<double>("Z", STRUCT_OFFSET(FQuat, Z)), Member<double>("W", STRUCT_OFFSET(FQuat, W))};
	static FStructRecord GQuatRecord = BaseStructures::Record<FQuat>("FQuat", &StructOps<FQuat>, GQuatMembers, 4);

	// A transform keeps its parts private; it is nothing but these three, in this order.
	static_assert(sizeof(FTransform) == sizeof(FQuat) + 2 * sizeof(FVector));
	static constexpr FPropertyRecord GTransformMembers[] = {Member<FQuat>("Rotation", 0), Member<FVector>("Translation", sizeof(FQuat)),
		Member<FVector>("Scale3D", sizeof(FQuat) + sizeof(FVector))};
	static FStructRecord GTransformRecord = BaseStructures::Record<FTransform>("FTransform", &StructOps<FTransform>, GTransformMembers, 3);

	static constexpr FPropertyRecord GIntPointMembers[] = {Member<int32>("X", STRUCT_OFFSET(FIntPoint, X)), Member<int32>("Y", STRUCT_OFFSET(FIntPoint, Y))};
	static FStructRecord GIntPointRecord = BaseStructures::Record<FIntPoint>("FIntPoint", &StructOps<FIntPoint>, GIntPointMembers, 2);

	static constexpr FPropertyRecord GLinearColorMembers[] = {Member<float>("R", STRUCT_OFFSET(FLinearColor, R)), Member<float>("G", STRUCT_OFFSET(FLinearColor, G)),
		Member<float>("B", STRUCT_OFFSET(FLinearColor, B)), Member<float>("A", STRUCT_OFFSET(FLinearColor, A))};
	static FStructRecord GLinearColorRecord = BaseStructures::Record<FLinearColor>("FLinearColor", &ZeroedOps<FLinearColor>, GLinearColorMembers, 4);

	static constexpr FPropertyRecord GColorMembers[] = {Member<uint8>("B", STRUCT_OFFSET(FColor, B)), Member<uint8>("G", STRUCT_OFFSET(FColor, G)),
		Member<uint8>("R", STRUCT_OFFSET(FColor, R)), Member<uint8>("A", STRUCT_OFFSET(FColor, A))};
	static FStructRecord GColorRecord = BaseStructures::Record<FColor>("FColor", &ZeroedOps<FColor>, GColorMembers, 4);

	static FStructRecord GTopLevelAssetPathRecord = BaseStructures::Record<FTopLevelAssetPath>("FTopLevelAssetPath", &ComparedOps<FTopLevelAssetPath>, nullptr, 0);
	static FStructRecord GSoftObjectPathRecord = BaseStructures::Record<FSoftObjectPath>("FSoftObjectPath", &ComparedOps<FSoftObjectPath>, nullptr, 0);
	static FStructRecord GSoftClassPathRecord = BaseStructures::Record<FSoftClassPath>("FSoftClassPath", &ComparedOps<FSoftClassPath>, nullptr, 0);

	static constexpr FPropertyRecord GAssetDataMembers[] = {Member<FName>("PackageName", STRUCT_OFFSET(FAssetData, PackageName)),
		Member<FName>("PackagePath", STRUCT_OFFSET(FAssetData, PackagePath)), Member<FName>("AssetName", STRUCT_OFFSET(FAssetData, AssetName)),
		Member<FTopLevelAssetPath>("AssetClassPath", STRUCT_OFFSET(FAssetData, AssetClassPath))};
	static FStructRecord GAssetDataRecord = BaseStructures::Record<FAssetData>("FAssetData", &StructOps<FAssetData>, GAssetDataMembers, 4);

	namespace BaseStructures
	{
		/** Values that are one piece of text; quoted inside other values, where commas or blanks could end them. */
		template<typename T, FString (*ToText)(const T&), bool (*FromText)(const FString&, T&)>
		const FStructTextOps& TextOps()
		{
			static constexpr FStructTextOps Ops = {
				[](FString& Out, const void* Value, int32 PortFlags) {
					const FString Text = ToText(*static_cast<const T*>(Value));
					if (PortFlags & PPF_Delimited)
					{
						PropertyText::AppendQuoted(Out, Text);
					}
					else
					{
						Out += Text;
					}
				},
				[](const TCHAR* Buffer, void* Value, int32 PortFlags) -> const TCHAR* {
					FString Text;
					const TCHAR* Rest = PropertyText::ReadText(Buffer, PortFlags, Text);
					return Rest && FromText(Text, *static_cast<T*>(Value)) ? Rest : nullptr;
				}};
			return Ops;
		}

		FString AssetPathToText(const FTopLevelAssetPath& Path)
		{
			return Path.ToString();
		}
		bool AssetPathFromText(const FString& Text, FTopLevelAssetPath& Path)
		{
			Path.Reset();
			return Text.IsEmpty() || Text == TEXT("None") || Path.TrySetPath(PropertyText::StripClass(Text));
		}
		FString SoftPathToText(const FSoftObjectPath& Path)
		{
			return Path.ToString();
		}
		bool SoftPathFromText(const FString& Text, FSoftObjectPath& Path)
		{
			Path.SetPath(PropertyText::StripClass(Text));
			return true;
		}
	}

	void BuildBaseStructures()
	{
		using namespace BaseStructures;
		for (FStructRecord* Record : {&GVectorRecord, &GVector2DRecord, &GRotatorRecord, &GQuatRecord, &GTransformRecord, &GIntPointRecord,
				 &GLinearColorRecord, &GColorRecord, &GAssetDataRecord})
		{
			GetStruct(*Record);
		}
		FTypeBuilder::SetTextOps(GetStruct(GTopLevelAssetPathRecord), TextOps<FTopLevelAssetPath, &AssetPathToText, &AssetPathFromText>());
		FTypeBuilder::SetTextOps(GetStruct(GSoftObjectPathRecord), TextOps<FSoftObjectPath, &SoftPathToText, &SoftPathFromText>());
		FTypeBuilder::SetTextOps(GetStruct(GSoftClassPathRecord), TextOps<FSoftObjectPath, &SoftPathToText, &SoftPathFromText>());
	}

	UScriptStruct* GetBaseStructure(FStructRecord& Record)
	{
		if (!Record.Struct)
		{
			BuildBaseStructures();
		}
		return Record.Struct;
	}
}

#define HOST_BASE_STRUCTURE_GETTER(Type, Record) \
	UScriptStruct* TBaseStructure<Type>::Get() \
	{ \
		return UE::Reflection::GetBaseStructure(UE::Reflection::Record); \
	}
HOST_BASE_STRUCTURE_GETTER(FAssetData, GAssetDataRecord)
HOST_BASE_STRUCTURE_GETTER(FColor, GColorRecord)
HOST_BASE_STRUCTURE_GETTER(FIntPoint, GIntPointRecord)
HOST_BASE_STRUCTURE_GETTER(FLinearColor, GLinearColorRecord)
HOST_BASE_STRUCTURE_GETTER(FQuat, GQuatRecord)
HOST_BASE_STRUCTURE_GETTER(FRotator, GRotatorRecord)
HOST_BASE_STRUCTURE_GETTER(FSoftClassPath, GSoftClassPathRecord)
HOST_BASE_STRUCTURE_GETTER(FSoftObjectPath, GSoftObjectPathRecord)
HOST_BASE_STRUCTURE_GETTER(FTopLevelAssetPath, GTopLevelAssetPathRecord)
HOST_BASE_STRUCTURE_GETTER(FTransform, GTransformRecord)
HOST_BASE_STRUCTURE_GETTER(FVector, GVectorRecord)
HOST_BASE_STRUCTURE_GETTER(FVector2D, GVector2DRecord)
