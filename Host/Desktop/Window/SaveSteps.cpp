// Copyright Velmorant. All Rights Reserved.

#include "Window/SaveSteps.h"

#include "HostProblems.h"
#include "QtText.h"
#include "Session/DesktopEditor.h"

#include <QProgressDialog>

namespace SaveSteps
{
	static const int PatienceMilliseconds = 500; // work that takes less shows no progress

	QString DescribeTrouble(const FScriptSession::FSaved& Saved, int32 FirstProblem)
	{
		QStringList Lines;
		for (const FString& Name : Saved.Homeless)
		{
			Lines.append(QObject::tr("%1 has no file yet").arg(QtText::From(Name)));
		}
		const TArray<FHostProblem>& Problems = HostProblems::GetAll();
		for (int32 Index = FirstProblem; Index < Problems.Num(); ++Index)
		{
			Lines.append(QtText::From(HostProblems::ToString(Problems[Index])));
		}
		if (Lines.isEmpty() && !Saved.Failed.IsEmpty())
		{
			Lines.append(QtText::From(FString::Join(Saved.Failed, TEXT("\n"))));
		}
		return Lines.join(QLatin1Char('\n'));
	}

	FResult Save(FDesktopEditor& Editor, QWidget& Window, const TArray<FString>& Packages)
	{
		FResult Result;
		const int32 FirstProblem = HostProblems::GetAll().Num();
		QProgressDialog Progress(QString(), QObject::tr("Cancel"), 0, Packages.Num(), &Window);
		Progress.setObjectName(QStringLiteral("SaveProgress"));
		Progress.setWindowModality(Qt::WindowModal);
		Progress.setMinimumDuration(PatienceMilliseconds);
		Progress.setWindowTitle(QObject::tr("Saving"));
		for (int32 Index = 0; Index < Packages.Num(); ++Index)
		{
			Progress.setLabelText(QtText::From(Packages[Index]));
			{
				const FDesktopEditor::FStandstill Standstill(Editor); // showing progress lets events pass
				Progress.setValue(Index);
			}
			if (Progress.wasCanceled())
			{
				Result.NumLeft = Packages.Num() - Index;
				break;
			}
			FScriptSession::FSaved One;
			Editor.Do([&] { One = Editor.GetSession().Save({Packages[Index]}); });
			Result.Saved.Saved.Append(One.Saved);
			Result.Saved.Failed.Append(One.Failed);
			Result.Saved.Homeless.Append(One.Homeless);
		}
		Result.Reasons = DescribeTrouble(Result.Saved, FirstProblem);
		return Result;
	}
}
