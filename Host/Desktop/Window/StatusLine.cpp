// Copyright Velmorant. All Rights Reserved.

#include "Window/StatusLine.h"

#include "HostPaths.h"
#include "QtText.h"
#include "Session/DesktopEditor.h"
#include "VelmorantDeveloperUser.h"
#include "VelmorantProjectRequestManager.h"
#include "VelmorantSDKEngineSubsystem.h"
#include "Window/WindowServices.h"

FStatusLine::FStatusLine(IWindowServices& InServices, QWidget* Parent)
	: QStatusBar(Parent)
	, Services(InServices)
	, Project(AddLabel("StatusProject", tr("The project that is open")))
	, User(AddLabel("StatusUser", tr("Who is signed in")))
	, Chosen(AddLabel("StatusSelectedProject", tr("The service's project that is selected")))
	, Unsaved(AddLabel("StatusUnsaved", tr("Assets and levels with changes that are not saved")))
{
	setSizeGripEnabled(false);
}

QLabel* FStatusLine::AddLabel(const char* Name, const QString& ToolTip)
{
	QLabel* const Label = new QLabel(this);
	Label->setObjectName(QLatin1String(Name));
	Label->setToolTip(ToolTip);
	Label->setContentsMargins(8, 0, 8, 0);
	addPermanentWidget(Label);
	return Label;
}

QString FStatusLine::DescribeUser() const
{
	const UVelmorantDeveloperUser* Signed = UVelmorantSDKEngineSubsystem::GetVelmorantEditorUser(false);
	return Signed != nullptr && Signed->HasValidToken() ? tr("Signed in as %1").arg(QtText::From(Signed->GetAccount())) : tr("Not signed in");
}

void FStatusLine::Refresh()
{
	Project->setText(QDir(QtText::From(HostPaths::GetProjectDir())).dirName());
	User->setText(DescribeUser());
	const UVelmorantDeveloperUser* Signed = UVelmorantSDKEngineSubsystem::GetVelmorantEditorUser(false);
	const UVelmorantProjectRequestManager* Requests = Signed != nullptr ? Signed->GetProjectRequestManager() : nullptr;
	const QString Name = Requests != nullptr ? QtText::From(Requests->GetSelectedProjectName()) : QString();
	Chosen->setText(Name.isEmpty() ? tr("No project selected") : tr("Project: %1").arg(Name));
	const TArray<FString> Names = Services.GetEditor().GetUnsaved();
	Unsaved->setText(Names.IsEmpty() ? tr("All saved") : tr("%1 unsaved").arg(Names.Num()));
	Unsaved->setToolTip(Names.IsEmpty() ? tr("Nothing has changes that are not saved") : QtText::From(FString::Join(Names, TEXT("\n"))));
}
