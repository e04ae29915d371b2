// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Window/DockView.h"

#include "Docks/Content/ContentActions.h"
#include "Docks/Content/ContentCatalog.h"
#include "Docks/Content/ContentList.h"

class IWindowServices;

/** The project's assets: folders, tiles, search, and what can be done to them. Its selection is the editor's. */
class FContentBrowserDock : public FDockView
{
public:
	FContentBrowserDock(IWindowServices& InServices, QWidget* Parent);

	//~ Begin FDockView
	virtual void Refresh() override;
	virtual void LetGo() override;
	//~ End FDockView

	virtual QSize sizeHint() const override;

protected:
	virtual bool eventFilter(QObject* Watched, QEvent* Event) override;

private:
	//~ What is there
	QWidget* MakeToolbar();
	QWidget* MakeTree();
	QWidget* MakeList();
	QWidget* MakeFoot();
	void MakeActions();
	QAction* AddAction(const char* Name, const QString& Text, const QKeySequence& Keys, std::function<void()> Act);

	//~ Keeping it in step with the editor
	void FitTree();
	void MarkFolder();
	void ShowList();
	void DropGoneFromSelection();
	void FollowSelection();
	void FitFoot();
	void FitActions();
	QString DescribeEmptiness() const;

	//~ What a person does
	void GoTo(const QString& Folder);
	void GoUp();
	void Enter(const QModelIndex& Index);
	void TakeSelection();
	void OpenMenu(const QPoint& Place, bool bOnItem);
	void FillKinds(QMenu& Menu);
	void Tell(const QString& Text, bool bGood);
	TArray<FAssetData> GetSelected() const;

	IWindowServices& Services;
	FContentActions Actions;
	FContentCatalog Catalog;
	FContentQuery Query;
	FContentList* List;
	QTreeWidget* Tree = nullptr;
	QListView* View = nullptr;
	QLineEdit* Search = nullptr;
	QPushButton* Kinds = nullptr;
	QMenu* AddMenu = nullptr;
	QPushButton* SaveAll = nullptr;
	QLabel* Path = nullptr;
	QLabel* Empty = nullptr;
	QLabel* Counts = nullptr;
	QLabel* Message = nullptr;
	QAction* OpenAction = nullptr;
	QAction* RenameAction = nullptr;
	QAction* DeleteAction = nullptr;
	QAction* SaveAction = nullptr;
	QAction* CopyAction = nullptr;
	QAction* SearchAgainAction = nullptr;
	TArray<FAssetData> Selection; // the editor's, as it was last seen or made
	bool bFollowing = false;
};
