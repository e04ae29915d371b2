// Copyright Velmorant. All Rights Reserved.

#include "Window/UnsavedQuestion.h"

#include "QtText.h"
#include "Session/DesktopEditor.h"
#include "Window/SaveSteps.h"

namespace UnsavedQuestion
{
	enum class EAnswer : uint8
	{
		Save,
		GoOn,
		Stay,
	};

	EAnswer Ask(FDesktopEditor& Editor, QWidget& Window, const TArray<FString>& Unsaved, const QString& Without)
	{
		const FDesktopEditor::FStandstill Standstill(Editor);
		QMessageBox Box(QMessageBox::Warning, QObject::tr("Unsaved changes"), QObject::tr("These have unsaved changes:\n\n%1").arg(QtText::From(FString::Join(Unsaved, TEXT("\n")))), QMessageBox::NoButton, &Window);
		const QPushButton* const Discard = Box.addButton(Without, QMessageBox::DestructiveRole);
		QPushButton* const SaveAll = Box.addButton(QObject::tr("Save all"), QMessageBox::AcceptRole);
		Box.addButton(QMessageBox::Cancel);
		Box.setDefaultButton(SaveAll);
		Box.setObjectName(QStringLiteral("Unsaved"));
		Box.exec();
		if (Box.clickedButton() == SaveAll)
		{
			return EAnswer::Save;
		}
		return Box.clickedButton() == Discard ? EAnswer::GoOn : EAnswer::Stay;
	}

	bool Save(FDesktopEditor& Editor, QWidget& Window, const TArray<FString>& Unsaved)
	{
		const SaveSteps::FResult Result = SaveSteps::Save(Editor, Window, Unsaved);
		if (!Result.Reasons.isEmpty())
		{
			const FDesktopEditor::FStandstill Standstill(Editor);
			QMessageBox Box(QMessageBox::Critical, QObject::tr("Not everything is saved"), Result.Reasons, QMessageBox::Ok, &Window);
			Box.setObjectName(QStringLiteral("NotSaved"));
			Box.exec();
		}
		return Result.IsWhole();
	}

	bool MayGoOn(FDesktopEditor& Editor, QWidget& Window, const QString& Without)
	{
		const TArray<FString> Unsaved = Editor.IsReady() ? Editor.GetSession().GetUnsaved() : TArray<FString>();
		if (Unsaved.IsEmpty())
		{
			return true;
		}
		const EAnswer Answer = Ask(Editor, Window, Unsaved, Without);
		return Answer == EAnswer::GoOn || (Answer == EAnswer::Save && Save(Editor, Window, Unsaved));
	}
}
