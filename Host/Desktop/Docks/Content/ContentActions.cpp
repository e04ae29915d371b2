// Copyright Velmorant. All Rights Reserved.

#include "Docks/Content/ContentActions.h"

#include "Editor.h"
#include "EditorUtilitySubsystem.h"
#include "EditorUtilityWidgetBlueprint.h"
#include "Engine/World.h"
#include "Factories/Factory.h"
#include "HostAssetTools.h"
#include "HostEditor.h"
#include "HostLog.h"
#include "HostPackages.h"
#include "HostProblems.h"
#include "IAssetTools.h"
#include "LevelVariantSets.h"
#include "ObjectTools.h"
#include "QtText.h"
#include "Session/DesktopEditor.h"
#include "VelmorantConfiguratorDataAsset.h"
#include "Window/WindowServices.h"

namespace ContentActions
{
	/** What the editor said went wrong since the object was made. */
	class FTrouble
	{
	public:
		FTrouble()
			: NumLines(HostLog::GetLines().Num())
			, NumProblems(HostProblems::GetAll().Num())
		{
		}

		/** The last of it; empty when nothing was said. */
		QString Find() const
		{
			const TArray<FHostProblem>& Problems = HostProblems::GetAll();
			if (Problems.Num() > NumProblems)
			{
				return QtText::From(HostProblems::ToString(Problems.Last()));
			}
			const TArray<FHostLogLine>& Lines = HostLog::GetLines();
			for (int32 Index = Lines.Num() - 1; Index >= NumLines; --Index)
			{
				if (Lines[Index].Verbosity == ELogVerbosity::Error)
				{
					return QtText::From(Lines[Index].Text);
				}
			}
			return QString();
		}

	private:
		const int32 NumLines;
		const int32 NumProblems;
	};

	QString NameAll(const TArray<FAssetData>& Assets)
	{
		return Assets.Num() == 1 ? QtText::From(Assets[0].AssetName) : QObject::tr("%1 assets").arg(Assets.Num());
	}
}

FContentActions::FContentActions(IWindowServices& InServices)
	: Services(InServices)
{
}

void FContentActions::Create(const FName& FactoryClass, const FString& Category, const FString& Folder)
{
	const ContentActions::FTrouble Trouble;
	const UObject* Made = nullptr;
	Services.GetEditor().Do([&] {
		for (const HostAssetTools::FNewAssetItem& Item : HostAssetTools::GetNewAssetMenu())
		{
			if (Item.DefaultFactory->GetClass()->GetFName() == FactoryClass && Item.Category.ToString() == Category)
			{
				Made = HostAssetTools::CreateFromMenu(Item, Folder);
				return;
			}
		}
	});
	const QString Reason = Trouble.Find();
	if (Made != nullptr)
	{
		OnTold(QObject::tr("Made %1. It is kept once you save it.").arg(QtText::From(Made->GetName())), true);
	}
	else if (!Reason.isEmpty())
	{
		OnTold(Reason, false);
	}
	Services.RequestFrame();
}

bool FContentActions::Rename(const FAssetData& Asset, const FString& Name)
{
	const ContentActions::FTrouble Trouble;
	bool bRenamed = false;
	Services.GetEditor().Do([&] {
		UObject* const Object = Asset.GetAsset();
		bRenamed = Object != nullptr && IAssetTools::Get().RenameAssets({FAssetRenameData(Object, Asset.PackagePath.ToString(), Name)});
	});
	OnTold(bRenamed ? QObject::tr("%1 is called %2 now").arg(QtText::From(Asset.AssetName), QtText::From(Name)) : Trouble.Find(), bRenamed);
	Services.RequestFrame();
	return bRenamed;
}

void FContentActions::Delete(const TArray<FAssetData>& Assets)
{
	const ContentActions::FTrouble Trouble;
	int32 NumDeleted = 0;
	Services.GetEditor().Do([&] { NumDeleted = ObjectTools::DeleteAssets(Assets); });
	const QString Reason = Trouble.Find();
	if (!Reason.isEmpty())
	{
		OnTold(Reason, false);
	}
	else if (NumDeleted > 0)
	{
		OnTold(QObject::tr("Deleted %1").arg(ContentActions::NameAll(Assets)), true);
	}
	Services.RequestFrame();
}

void FContentActions::Save(const TArray<FAssetData>& Assets)
{
	const ContentActions::FTrouble Trouble;
	FScriptSession::FSaved Saved;
	Services.GetEditor().Do([&] {
		const TArray<FString> Unsaved = Services.GetEditor().GetSession().GetUnsaved();
		TArray<FString> Wanted;
		for (const FAssetData& Asset : Assets)
		{
			if (Unsaved.Contains(Asset.PackageName.ToString()))
			{
				Wanted.Add(Asset.PackageName.ToString());
			}
		}
		Saved = Services.GetEditor().GetSession().Save(Wanted);
	});
	if (!Saved.Failed.IsEmpty())
	{
		OnTold(Trouble.Find(), false);
	}
	else
	{
		OnTold(Saved.Saved.IsEmpty() ? QObject::tr("There is nothing to save in %1").arg(ContentActions::NameAll(Assets)) : QObject::tr("Saved %1").arg(ContentActions::NameAll(Assets)), true);
	}
	Services.RequestFrame();
}

void FContentActions::Open(const FAssetData& Asset)
{
	const ContentActions::FTrouble Trouble;
	const UClass* const Class = Asset.GetClass();
	if (Class != nullptr && Class->IsChildOf(UWorld::StaticClass()))
	{
		OpenLevel(Asset);
		return;
	}
	UObject* Object = nullptr;
	Services.GetEditor().Do([&] { Object = Asset.GetAsset(); });
	if (Object == nullptr)
	{
		const QString Reason = Trouble.Find();
		OnTold(Reason.isEmpty() ? QObject::tr("%1 cannot be opened").arg(QtText::From(Asset.AssetName)) : Reason, false);
		return;
	}
	OpenLoaded(Object);
	Services.RequestFrame();
}

void FContentActions::OpenLoaded(UObject* Asset)
{
	if (UEditorUtilityWidgetBlueprint* const Panel = Cast<UEditorUtilityWidgetBlueprint>(Asset))
	{
		Services.GetEditor().Do([Panel] { GEditor->GetEditorSubsystem<UEditorUtilitySubsystem>()->SpawnAndRegisterTab(Panel); });
		return;
	}
	Services.Inspect({Asset});
	// The variant manager shows what is selected.
	const bool bVariants = Asset->IsA<ULevelVariantSets>() || Asset->IsA<UVelmorantConfiguratorDataAsset>();
	Services.ShowDock(bVariants ? QStringLiteral("VariantManager") : QStringLiteral("Details"));
}

/** Opening another level loses what was not saved of this one. */
bool FContentActions::MayLeaveLevel()
{
	const FString Open = HostEditor::GetOpenMap();
	FScriptSession& Session = Services.GetEditor().GetSession();
	if (!Session.GetUnsaved().Contains(Open))
	{
		return true;
	}
	QMessageBox Box(QMessageBox::Warning, QObject::tr("Unsaved level"), QObject::tr("%1 has changes that are not saved.").arg(QtText::From(Open)), QMessageBox::NoButton, QApplication::activeWindow());
	Box.setObjectName(QStringLiteral("UnsavedLevel"));
	const QPushButton* const Save = HostEditor::CanSaveOpenMap() ? Box.addButton(QObject::tr("Save it"), QMessageBox::AcceptRole) : nullptr;
	const QPushButton* const Discard = Box.addButton(QObject::tr("Lose the changes"), QMessageBox::DestructiveRole);
	Box.setDefaultButton(Box.addButton(QMessageBox::Cancel));
	{
		const FDesktopEditor::FStandstill Standstill(Services.GetEditor());
		Box.exec();
	}
	bool bSaved = false;
	if (Save != nullptr && Box.clickedButton() == Save)
	{
		Services.GetEditor().Do([&bSaved] { bSaved = HostEditor::SaveOpenMap(); });
	}
	return bSaved || Box.clickedButton() == Discard;
}

void FContentActions::OpenLevel(const FAssetData& Asset)
{
	const FString Name = Asset.PackageName.ToString();
	if (Name == HostEditor::GetOpenMap())
	{
		OnTold(QObject::tr("%1 is open already").arg(QtText::From(Asset.AssetName)), true);
		return;
	}
	if (!MayLeaveLevel())
	{
		return;
	}
	const ContentActions::FTrouble Trouble;
	HostEditor::EOpenMap Result = HostEditor::EOpenMap::Failed;
	Services.GetEditor().Do([&] { Result = HostEditor::OpenMap(Name); });
	switch (Result)
	{
		case HostEditor::EOpenMap::Opened: OnTold(QObject::tr("Opened %1").arg(QtText::From(Asset.AssetName)), true); break;
		case HostEditor::EOpenMap::Forbidden: OnTold(QObject::tr("%1 may not be opened now").arg(QtText::From(Asset.AssetName)), false); break;
		case HostEditor::EOpenMap::Failed: OnTold(Trouble.Find(), false); break;
	}
	Services.RequestFrame();
}
