// Copyright Velmorant. All Rights Reserved.

#include "TypeTable.h"

#include "Diagnostics.h"
#include "TextTools.h"

#include <algorithm>

namespace HeaderTool
{
	void FTypeTable::Add(const FHeader& Header, FDiagnostics& Diagnostics)
	{
		for (const std::unique_ptr<FClass>& Class : Header.Classes)
		{
			AddName(Class->CppName, Header, Class->Place, Diagnostics);
			Classes.emplace(Class->CppName, Class.get());
			for (const std::unique_ptr<FDelegateType>& Delegate : Class->Delegates)
			{
				AddName(Class->CppName + "::" + Delegate->Name, Header, Delegate->Place, Diagnostics);
				Delegates.emplace(Class->CppName + "::" + Delegate->Name, Delegate.get());
				DelegateHeaders.emplace(Delegate.get(), &Header);
			}
		}
		for (const std::unique_ptr<FEnum>& Enum : Header.Enums)
		{
			AddName(Enum->Name, Header, Enum->Place, Diagnostics);
			Enums.emplace(Enum->CppType(), Enum.get());
		}
		for (const std::unique_ptr<FDelegateType>& Delegate : Header.Delegates)
		{
			AddName(Delegate->Name, Header, Delegate->Place, Diagnostics);
			Delegates.emplace(Delegate->Name, Delegate.get());
			DelegateHeaders.emplace(Delegate.get(), &Header);
		}
	}

	void FTypeTable::AddName(const std::string& Name, const FHeader& Header, const FPlace& Place, FDiagnostics& Diagnostics)
	{
		const auto [Found, bNew] = Declarations.emplace(Name, FDeclaration{Header.Path, Place});
		if (!bNew && Header.bOwn)
		{
			Diagnostics.Error(Header.Path, Place, "'" + Name + "' is declared already at " + Found->second.Path + "(" + std::to_string(Found->second.Place.Line) + "); rename one of the two.");
		}
	}

	const FClass* FTypeTable::FindClass(const std::string& CppName) const
	{
		const auto Found = Classes.find(CppName);
		return Found != Classes.end() && Found->second->Kind != EClassKind::Struct ? Found->second : nullptr;
	}

	const FClass* FTypeTable::FindStruct(const std::string& CppName) const
	{
		const auto Found = Classes.find(CppName);
		return Found != Classes.end() && Found->second->Kind == EClassKind::Struct ? Found->second : nullptr;
	}

	const FClass* FTypeTable::FindInterface(const std::string& NativeName) const
	{
		const FClass* Class = NativeName.size() > 1 && NativeName[0] == 'I' ? FindClass("U" + NativeName.substr(1)) : nullptr;
		return Class && Class->Kind == EClassKind::Interface ? Class : nullptr;
	}

	const FEnum* FTypeTable::FindEnum(const std::string& CppType) const
	{
		const auto Found = Enums.find(CppType);
		return Found != Enums.end() ? Found->second : nullptr;
	}

	const FDelegateType* FTypeTable::FindDelegate(const std::string& Name, const FClass* Scope) const
	{
		if (Scope)
		{
			for (const FClass* Class : GetChain(*Scope))
			{
				const auto Nested = Delegates.find(Class->CppName + "::" + Name);
				if (Nested != Delegates.end())
				{
					return Nested->second;
				}
			}
		}
		const auto Found = Delegates.find(Name);
		return Found != Delegates.end() ? Found->second : nullptr;
	}

	const FHeader* FTypeTable::FindDelegateHeader(const FDelegateType& Delegate) const
	{
		const auto Found = DelegateHeaders.find(&Delegate);
		return Found != DelegateHeaders.end() ? Found->second : nullptr;
	}

	bool FTypeTable::IsRootClass(const std::string& CppName)
	{
		static const std::set<std::string> Names = {"UObject", "UField", "UStruct", "UScriptStruct", "UClass", "UEnum", "UFunction", "UPackage", "UInterface"};
		return Names.count(CppName) > 0;
	}

	bool FTypeTable::IsBuiltInStruct(const std::string& CppName)
	{
		static const std::set<std::string> Names = {
			"FVector", "FVector2D", "FRotator", "FTransform", "FLinearColor", "FColor",
			"FSoftObjectPath", "FSoftClassPath", "FTopLevelAssetPath"};
		return Names.count(CppName) > 0;
	}

	const FClass* FTypeTable::FindSuper(const FClass& Class) const
	{
		return Class.Kind == EClassKind::Struct ? FindStruct(Class.SuperName()) : FindClass(Class.SuperName());
	}

	std::vector<const FClass*> FTypeTable::GetChain(const FClass& Class) const
	{
		std::vector<const FClass*> Chain;
		for (const FClass* Current = &Class; Current && std::find(Chain.begin(), Chain.end(), Current) == Chain.end(); Current = FindSuper(*Current))
		{
			Chain.push_back(Current);
		}
		return Chain;
	}

	bool FTypeTable::DerivesFrom(const FClass& Class, const std::string& CppName) const
	{
		for (const FClass* Current : GetChain(Class))
		{
			if (Current->CppName == CppName || Current->SuperName() == CppName)
			{
				return true;
			}
		}
		return false;
	}
}
