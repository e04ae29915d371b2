// Copyright Velmorant. All Rights Reserved.

#include "Docks/NotificationHistoryDock.h"

#include "HostNotifications.h"
#include "QtText.h"
#include "Run/StepEvents.h"

FNotificationHistoryDock::FNotificationHistoryDock(IWindowServices&, QWidget* Parent)
	: FDockView(Parent)
	, List(new QTreeWidget(this))
{
	QVBoxLayout* const Layout = new QVBoxLayout(this);
	Layout->setContentsMargins(0, 0, 0, 0);
	Layout->addWidget(List);
	List->setObjectName(QStringLiteral("NotificationHistory"));
	List->setAccessibleName(tr("Notifications"));
	List->setFrameShape(QFrame::NoFrame);
	List->setHeaderLabels({tr("Second"), tr("State"), tr("Notification"), tr("Details")});
	List->setRootIsDecorated(false);
	List->setUniformRowHeights(true);
	List->setAlternatingRowColors(false);
	List->header()->resizeSection(0, 64);
	List->header()->resizeSection(1, 72);
	List->header()->resizeSection(2, 280);
}

void FNotificationHistoryDock::Refresh()
{
	const TArray<HostNotifications::FRecord> History = HostNotifications::GetHistory();
	QStringList States;
	for (const HostNotifications::FRecord& Record : History)
	{
		States.append(QtText::From(FString(StepEvents::GetStateWord(Record->State))) + QtText::From(Record->Text) + QtText::From(Record->SubText));
	}
	if (States == ShownStates)
	{
		return;
	}
	ShownStates = States;
	List->clear();
	for (int32 Index = History.Num() - 1; Index >= 0; --Index)
	{
		const FHostNotification& Record = *History[Index];
		const QString State = QtText::From(FString(StepEvents::GetStateWord(Record.State)));
		QTreeWidgetItem* const Item = new QTreeWidgetItem(List, {QString::number(Record.ShownAt, 'f', 1), State == QLatin1String("none") ? QString() : State, QtText::From(Record.Text), QtText::From(Record.SubText).replace(QLatin1Char('\n'), QLatin1Char(' '))});
		Item->setToolTip(3, QtText::From(Record.SubText));
	}
}

void FNotificationHistoryDock::LetGo()
{
	List->clear();
	ShownStates.clear();
}
