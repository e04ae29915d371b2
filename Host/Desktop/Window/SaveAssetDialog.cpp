// Copyright Velmorant. All Rights Reserved.

#include "Window/SaveAssetDialog.h"

#include "HostPackages.h"
#include "Look/Icons.h"
#include "Look/Theme.h"
#include "QtText.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"

namespace SaveAssetDialog
{
	static const int FoldersHeight = 180;
	static const int FoldersAt = 1; // below the message

	bool IsTaken(const FString& Package)
	{
		return HostPackages::GetStored(Package) != HostPackages::EStored::Nothing || HostPackages::FindMainAsset(FindPackage(nullptr, *Package)) != nullptr;
	}
}

FSaveAssetDialog::FSaveAssetDialog(const FHostQuestion& InQuestion, QWidget* Parent)
	: FQuestionDialog(InQuestion, Parent)
	, Name(findChild<QLineEdit*>(QStringLiteral("Name")))
	, Path(findChild<QLineEdit*>(QStringLiteral("Path")))
	, Folders(new QTreeWidget(this))
	, Judgement(new QLabel(this))
{
	Folders->setObjectName(QStringLiteral("SaveAssetFolders"));
	Folders->setAccessibleName(tr("Folders"));
	Folders->setHeaderHidden(true);
	Folders->setMinimumHeight(SaveAssetDialog::FoldersHeight);
	Judgement->setObjectName(QStringLiteral("SaveAssetJudgement"));
	Judgement->setWordWrap(true);
	QVBoxLayout* const Layout = static_cast<QVBoxLayout*>(layout());
	Layout->insertWidget(SaveAssetDialog::FoldersAt, Folders, 1);
	Layout->insertWidget(Layout->count() - 1, Judgement);
	MakeFolders();
	ChooseFolder();
	connect(Folders, &QTreeWidget::currentItemChanged, this, [this](const QTreeWidgetItem* Current) {
		if (Current != nullptr)
		{
			Path->setText(Current->data(0, Qt::UserRole).toString());
		}
	});
	connect(Path, &QLineEdit::textChanged, this, [this] {
		ChooseFolder();
		Judge();
	});
	connect(Name, &QLineEdit::textChanged, this, [this] { Judge(); });
	Judge();
	Name->setFocus();
	Name->selectAll();
}

void FSaveAssetDialog::MakeFolders()
{
	Catalog.Refresh(TArray<FString>());
	QHash<QString, QTreeWidgetItem*> Items;
	for (const QString& Folder : Catalog.GetFolders())
	{
		const auto Slash = Folder.lastIndexOf(QLatin1Char('/'));
		QTreeWidgetItem* const Owner = Items.value(Folder.left(Slash));
		QTreeWidgetItem* const Item = Owner != nullptr ? new QTreeWidgetItem(Owner) : new QTreeWidgetItem(Folders);
		Item->setText(0, Folder.mid(Slash + 1));
		Item->setIcon(0, Icons::Find("Folder"));
		Item->setData(0, Qt::UserRole, Folder);
		Items.insert(Folder, Item);
	}
}

/** The folder that is typed; none when it will be a new one. */
void FSaveAssetDialog::ChooseFolder()
{
	const QSignalBlocker Quiet(Folders);
	Folders->setCurrentItem(nullptr);
	for (QTreeWidgetItemIterator It(Folders); *It != nullptr; ++It)
	{
		if ((*It)->data(0, Qt::UserRole).toString() == Path->text())
		{
			Folders->setCurrentItem(*It);
			Folders->scrollToItem(*It);
		}
	}
}

void FSaveAssetDialog::Judge()
{
	FString Folder = QtText::ToEditor(Path->text());
	Folder.RemoveFromEnd(TEXT("/"));
	const FString Package = Folder / QtText::ToEditor(Name->text());
	FString Reason;
	const bool bName = HostPackages::IsValidAssetName(QtText::ToEditor(Name->text()), &Reason);
	const bool bValid = bName && HostPackages::IsValidPackageName(Package, &Reason);
	QString Text = QtText::From(Reason);
	if (bValid && SaveAssetDialog::IsTaken(Package))
	{
		Text = tr("There is an asset of this name. You will be asked whether to replace it.");
	}
	else if (bValid)
	{
		Text = QtText::From(Package);
	}
	Name->setProperty("wrong", !bName);
	Path->setProperty("wrong", bName && !bValid);
	Name->update();
	Path->update();
	QPalette Colors = palette();
	Colors.setColor(QPalette::WindowText, bValid ? Theme::GetColors().Subtle : Theme::GetColors().Bad);
	Judgement->setPalette(Colors);
	Judgement->setText(Text);
	SetChoiceEnabled(TEXT("Save"), bValid);
}
