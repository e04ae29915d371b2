// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Window/QuestionDialog.h"

#include "Docks/Content/ContentCatalog.h"

/** Where a new asset is to be kept: the question's fields, with the project's folders to choose from and what is wrong with a name. */
class FSaveAssetDialog : public FQuestionDialog
{
public:
	FSaveAssetDialog(const FHostQuestion& InQuestion, QWidget* Parent);

private:
	void MakeFolders();
	void ChooseFolder();
	/** Says what is wrong with the fields, or what follows from them. */
	void Judge();

	FContentCatalog Catalog;
	QLineEdit* Name;
	QLineEdit* Path;
	QTreeWidget* Folders;
	QLabel* Judgement;
};
