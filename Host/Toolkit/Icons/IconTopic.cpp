// Copyright Velmorant. All Rights Reserved.

#include "Icons/IconTopic.h"

#include "Icons/FontIconImporter.h"
#include "Misc/Paths.h"
#include "Run/ScriptContext.h"
#include "Run/ScriptObjects.h"
#include "VelmorantUISubsystem.h"

namespace IconTopic
{
	const TCHAR* const DefaultAssetFolder = TEXT("/Game/FontIcons");

	FString JoinNames(const TArray<FName>& Names)
	{
		return FString::JoinBy(Names, TEXT(", "), [](FName Name) { return Name.ToString(); });
	}

	/** The icon table of a font of the project. Null with a reason. */
	const UDataTable* FindTable(const FString& FontID, FString& OutReason)
	{
		const UVelmorantUISubsystem* Subsystem = UVelmorantUISubsystem::Get();
		const UDataTable* Table = Subsystem != nullptr ? Subsystem->GetFontIconDataByID(ScriptObjects::ToName(FontID)).IconDataTable.Get() : nullptr;
		if (Table == nullptr)
		{
			const TArray<FName> Known = Subsystem != nullptr ? Subsystem->GetAllFontIconOptions() : TArray<FName>();
			OutReason = FString::Printf(TEXT("the project has no icons of a font \"%s\"; its icon fonts: %s"), *FontID, Known.IsEmpty() ? TEXT("none") : *JoinNames(Known));
		}
		return Table;
	}

	FStepResult Import(FScriptContext& Context, const FScriptArguments& Arguments)
	{
		const FString* FontID = Arguments.FindOption(1, TEXT("as"));
		const FString* AssetFolder = Arguments.FindOption(1, TEXT("into"));
		if (FontID == nullptr)
		{
			return FStepResult::Error(TEXT("say what the icon font is to be called: import icons FOLDER as FONT-ID"));
		}
		const FString Folder = FPaths::IsRelative(Arguments[0]) ? FPaths::Combine(FPaths::ProjectDir(), Arguments[0]) : Arguments[0];
		const FFontIconImportResult Result = FFontIconImporter::Import(Folder, ScriptObjects::ToName(*FontID), AssetFolder != nullptr ? *AssetFolder : FString(DefaultAssetFolder));
		if (!Result.Succeeded())
		{
			return FStepResult::Error(Result.Error->ToString());
		}
		Context.Print(FString::Printf(TEXT("%s: %d icons, %d with their styles (%s), %d search words"), *Result.FontID.ToString(), Result.NumIcons, Result.NumIconStyles, *JoinNames(Result.Styles), Result.NumSearchTags));
		return FStepResult::Done();
	}

	void PrintFonts(FScriptContext& Context)
	{
		const UVelmorantUISubsystem* Subsystem = UVelmorantUISubsystem::Get();
		for (const FName FontID : Subsystem != nullptr ? Subsystem->GetAllFontIconOptions() : TArray<FName>())
		{
			Context.Print(FString::Printf(TEXT("%s: %d icons (%s)"), *FontID.ToString(), Subsystem->GetAllIconsNames(FontID).Num(), *JoinNames(Subsystem->GetAllFontIconsStylesNames(FontID))));
		}
	}

	FStepResult PrintIcons(FScriptContext& Context, const FScriptArguments& Arguments)
	{
		if (Arguments.Num() == 0)
		{
			PrintFonts(Context);
			return FStepResult::Done();
		}
		FString Reason;
		const UDataTable* Table = FindTable(Arguments[0], Reason);
		if (Table == nullptr)
		{
			return FStepResult::Error(Reason);
		}
		Table->ForeachRow<FFontIconRow>(TEXT("print icons"), [&Context](const FName& Name, const FFontIconRow& Row) {
			Context.Print(FString::Printf(TEXT("%s %s (%s)"), *Row.Character, *Name.ToString(), *JoinNames(Row.IconStyles)));
		});
		return FStepResult::Done();
	}

	FExpectation ExpectIcon(FScriptContext&, const FScriptArguments& Arguments)
	{
		FExpectation Result;
		const UDataTable* Table = FindTable(Arguments[0], Result.Error);
		if (Table == nullptr)
		{
			return Result;
		}
		const FFontIconRow* Row = Table->FindRow<FFontIconRow>(ScriptObjects::ToName(Arguments[1]), TEXT("expect icon"), false);
		if (Row == nullptr)
		{
			Result.Found = TEXT("the font has no such icon");
			return Result;
		}
		const FString* Style = Arguments.FindOption(2, TEXT("style"));
		const FString* Word = Arguments.FindOption(2, TEXT("word"));
		Result.bHolds = (Style == nullptr || Row->IconStyles.Contains(ScriptObjects::ToName(*Style))) && (Word == nullptr || Row->SearchTags.Contains(*Word));
		Result.Found = FString::Printf(TEXT("its styles are %s; its search words are %s"), *JoinNames(Row->IconStyles), *FString::Join(Row->SearchTags.Array(), TEXT(", ")));
		return Result;
	}

	const FScriptCommand Commands[] = {
		{{TEXT("import icons"), TEXT("FOLDER as FONT-ID [into ASSET-FOLDER]"), 1, 1, TEXT("as into")}, &Import},
		{{TEXT("print icons"), TEXT("[FONT-ID]"), 0, 1, TEXT("")}, &PrintIcons},
	};

	const FScriptExpectation Expectations[] = {
		{{TEXT("icon"), TEXT("FONT-ID ICON [style STYLE] [word WORD]"), 2, 2, TEXT("style word")}, &ExpectIcon},
	};
}

FScriptTopic IconTopic::Get()
{
	return {IconTopic::Commands, IconTopic::Expectations};
}
