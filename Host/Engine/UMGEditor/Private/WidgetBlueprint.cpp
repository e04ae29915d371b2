// Copyright Velmorant. All Rights Reserved.

#include "WidgetBlueprint.h"

#include "Blueprint/WidgetBlueprintGeneratedClass.h"
#include "HostPackages.h"
#include "HostProblems.h"
#include "HostWidgetBlueprints.h"
#include "HostWidgetLayout.h"
#include "UObject/Package.h"

namespace WidgetBlueprint
{
	void Report(const HostPackages::FDocument& Document, const FString& Pointer, const FString& Message, const FString& Remedy)
	{
		HostProblems::Report(Document.File, 0, Pointer + TEXT(": ") + Message, Remedy);
	}

	UObject* Read(const HostPackages::FDocument& Document, UPackage* Package, UClass* AssetClass, HostWidgetBlueprints::FCheckParent CheckParent)
	{
		TArray<HostWidgetLayout::FProblem> Problems;
		const TSharedPtr<const FWidgetLayout> Layout = HostWidgetLayout::Read(Document.Json, Problems);
		for (const HostWidgetLayout::FProblem& Problem : Problems)
		{
			Report(Document, Problem.Pointer, Problem.Message, Problem.Remedy);
		}
		if (!Layout.IsValid())
		{
			return nullptr;
		}
		UClass* ParentClass = HostWidgetLayout::GetParentClass(*Layout);
		const FString Objection = CheckParent ? CheckParent(*ParentClass) : FString();
		if (!Objection.IsEmpty())
		{
			Report(Document, TEXT("/ParentClass"), Objection, FString());
			return nullptr;
		}
		UWidgetBlueprint* Blueprint = NewObject<UWidgetBlueprint>(Package, AssetClass, FName(*Document.AssetName), RF_Public | RF_Standalone);
		UWidgetBlueprintGeneratedClass* Class = HostWidgetLayout::MakeClass(Layout.ToSharedRef(), FName(*(Document.AssetName + TEXT("_C"))), Package);
		Class->ClassGeneratedBy = Blueprint;
		Class->SetFlags(RF_Public | RF_Transient);
		Blueprint->ParentClass = ParentClass;
		Blueprint->GeneratedClass = Class;
		return Blueprint;
	}

	/** Announces the format while the program is loaded. */
	struct FRegistration
	{
		FRegistration() { HostWidgetBlueprints::RegisterReader(TEXT("/Script/UMGEditor.WidgetBlueprint"), &UWidgetBlueprint::StaticClass); }
	};
	static const FRegistration Registration;
}

void HostWidgetBlueprints::RegisterReader(const TCHAR* ClassPath, UClass* (*AssetClass)(), FCheckParent CheckParent)
{
	HostPackages::RegisterReader(FTopLevelAssetPath(ClassPath), [AssetClass, CheckParent](const HostPackages::FDocument& Document, UPackage* Package) {
		return WidgetBlueprint::Read(Document, Package, AssetClass(), CheckParent);
	});
}
