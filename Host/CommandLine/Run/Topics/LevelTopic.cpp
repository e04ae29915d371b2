// Copyright Velmorant. All Rights Reserved.
// The open level and what stands in it.

#include "Editor.h"
#include "EngineUtils.h"
#include "HostEditor.h"
#include "HostPackages.h"
#include "Run/ScriptContext.h"
#include "Run/ScriptObjects.h"
#include "Run/ScriptTopics.h"
#include "Selection.h"
#include "UObject/Package.h"

namespace LevelTopic
{
	/** Opening another level drops the changes of this one: refused while there are some. */
	FStepResult OpenMap(FScriptContext& Context, const FString& Package)
	{
		if (Context.Session.GetUnsaved().Contains(HostEditor::GetOpenMap()))
		{
			return FStepResult::Error(TEXT("the open level has unsaved changes; save or discard them first"));
		}
		const bool bOpened = HostEditor::OpenMap(Package) == HostEditor::EOpenMap::Opened;
		return bOpened ? FStepResult::Done() : FStepResult::Error(FString::Printf(TEXT("the level %s could not be opened"), *Package));
	}

	FStepResult OpenLevel(FScriptContext& Context, const FScriptArguments& Arguments)
	{
		return OpenMap(Context, Arguments[0]);
	}

	FStepResult NewLevel(FScriptContext& Context, const FScriptArguments&)
	{
		return OpenMap(Context, FString());
	}

	FStepResult SaveLevel(FScriptContext& Context, const FScriptArguments& Arguments)
	{
		if (!HostEditor::SaveOpenMapAs(Arguments[0]))
		{
			return FStepResult::Error(FString::Printf(TEXT("the level could not be saved as %s"), *Arguments[0]));
		}
		Context.Print(FString(TEXT("saved ")) + Arguments[0]);
		return FStepResult::Done();
	}

	/** Null class with a reason for what is no class of actors. */
	UClass* FindActorClass(const FString& Name, FString& OutReason)
	{
		UClass* Class = ScriptObjects::FindClass(Name, OutReason);
		if (Class != nullptr && !Class->IsChildOf(AActor::StaticClass()))
		{
			OutReason = FString::Printf(TEXT("%s is no class of actors"), *Name);
			return nullptr;
		}
		return Class;
	}

	FStepResult PrintActors(FScriptContext& Context, const FScriptArguments& Arguments)
	{
		FString Reason;
		UClass* Class = Arguments.Num() > 0 ? FindActorClass(Arguments[0], Reason) : AActor::StaticClass();
		if (Class == nullptr)
		{
			return FStepResult::Error(Reason);
		}
		for (FActorIterator It(ScriptObjects::GetWorld(), Class); It; ++It)
		{
			Context.Print(FString::Printf(TEXT("%s (%s) at %s%s"), *It->GetActorLabel(), *It->GetClass()->GetName(), *It->GetActorLocation().ToString(),
				It->IsSelected() ? TEXT(", selected") : TEXT("")));
		}
		return FStepResult::Done();
	}

	FExpectation ExpectActors(FScriptContext&, const FScriptArguments& Arguments)
	{
		FExpectation Result;
		UClass* Class = FindActorClass(Arguments[0], Result.Error);
		if (Class == nullptr)
		{
			return Result;
		}
		int32 Count = 0;
		for (FActorIterator It(ScriptObjects::GetWorld(), Class); It; ++It)
		{
			++Count;
		}
		Result.bHolds = FString::FromInt(Count).Equals(Arguments[1]);
		Result.Found = FString::Printf(TEXT("there are %d"), Count);
		return Result;
	}

	FExpectation ExpectSelected(FScriptContext&, const FScriptArguments& Arguments)
	{
		TArray<FString> Labels;
		for (FActorIterator It(ScriptObjects::GetWorld()); It; ++It)
		{
			if (It->IsSelected())
			{
				Labels.Add(It->GetActorLabel());
			}
		}
		return {Labels.ContainsByPredicate([&Arguments](const FString& Label) { return Label.Equals(Arguments[0]); }),
			FString(TEXT("selected are: ")) + FString::Join(Labels, TEXT(", ")), FString()};
	}

	FExpectation ExpectLevel(FScriptContext&, const FScriptArguments& Arguments)
	{
		return {HostEditor::GetOpenMap() == Arguments[0], FString(TEXT("open is ")) + HostEditor::GetOpenMap(), FString()};
	}

	const FScriptCommand Commands[] = {
		{{TEXT("open level"), TEXT("LEVEL"), 1, 1, TEXT("")}, &OpenLevel},
		{{TEXT("new level"), TEXT(""), 0, 0, TEXT("")}, &NewLevel},
		{{TEXT("save level"), TEXT("LEVEL"), 1, 1, TEXT("")}, &SaveLevel},
		{{TEXT("print actors"), TEXT("[CLASS]"), 0, 1, TEXT("")}, &PrintActors},
	};

	const FScriptExpectation Expectations[] = {
		{{TEXT("level"), TEXT("LEVEL"), 1, 1, TEXT("")}, &ExpectLevel},
		{{TEXT("actors"), TEXT("CLASS NUMBER"), 2, 2, TEXT("")}, &ExpectActors},
		{{TEXT("selected"), TEXT("LABEL"), 1, 1, TEXT("")}, &ExpectSelected},
	};
}

FScriptTopic ScriptTopics::GetLevel()
{
	return {LevelTopic::Commands, LevelTopic::Expectations};
}
