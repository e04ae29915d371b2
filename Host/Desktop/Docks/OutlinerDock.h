// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Window/DockView.h"

#include "Level/LevelActors.h"
#include "UObject/WeakObjectPtr.h"

#include <functional>
#include <vector>

class IWindowServices;

/** The actors of the open level by class. Selection is the editor's own. */
class FOutlinerDock : public FDockView
{
public:
	FOutlinerDock(IWindowServices& InServices, QWidget* Parent);

	//~ Begin FDockView
	virtual void Refresh() override;
	virtual void LetGo() override;
	//~ End FDockView

protected:
	virtual bool eventFilter(QObject* Watched, QEvent* Event) override;

private:
	using FActors = std::vector<TWeakObjectPtr<AActor>>;

	void Fill();
	QTreeWidgetItem* FindGroup(AActor& Actor);
	bool IsRenaming() const;
	void ShowSelection();
	void ShowCount(int NumShown);
	void SelectMarked();
	void Rename(QTreeWidgetItem& Item);
	void OpenMenu(const QPoint& Place);
	void LookAtSelected();
	void DeleteSelected();
	TWeakObjectPtr<AActor> FindActor(const QTreeWidgetItem& Item) const;
	void Act(const std::function<void()>& What);

	IWindowServices& Services;
	QLineEdit* Search;
	QTreeWidget* Tree;
	QLabel* Empty;
	QLabel* Count;
	FLevelWatch Watch;
	FActors Actors; // as rows refer to them, those that the search leaves out included
	QStringList ShownRows; // what the tree was filled with
	QHash<QString, QTreeWidgetItem*> Groups; // by class
	bool bFilling = false;
};
