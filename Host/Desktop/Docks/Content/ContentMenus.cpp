// Copyright Velmorant. All Rights Reserved.

#include "Docks/Content/ContentMenus.h"

#include "Factories/Factory.h"
#include "HostAssetTools.h"
#include "HostContentBrowser.h"
#include "Look/Theme.h"
#include "QtText.h"
#include "Session/DesktopEditor.h"
#include "UObject/Class.h"
#include "Widgets/MenuPopup.h"
#include "Window/WindowServices.h"

namespace ContentMenus
{
	static const int SwatchSize = 16;

	/** Keeps the editor's entries for as long as a menu shows them. */
	class FEntries : public QObject
	{
	public:
		FEntries(QMenu& Menu, const TSharedRef<SWidget>& InEntries)
			: QObject(&Menu)
			, Entries(InEntries)
		{
			connect(&Menu, &QMenu::aboutToHide, this, &QObject::deleteLater); // what was chosen runs first
		}

	private:
		const TSharedRef<SWidget> Entries;
	};

	/** The colour of the class. */
	QIcon MakeSwatch(const QColor& Color)
	{
		QPixmap Picture(SwatchSize, SwatchSize);
		Picture.fill(Qt::transparent);
		QPainter Painter(&Picture);
		Painter.setRenderHint(QPainter::Antialiasing);
		Painter.setPen(Qt::NoPen);
		Painter.setBrush(Color);
		Painter.drawRoundedRect(QRectF(Picture.rect()).adjusted(2, 2, -2, -2), 3, 3);
		return QIcon(Picture);
	}
}

void ContentMenus::Clear(QMenu& Menu)
{
	Menu.clear();
	qDeleteAll(Menu.findChildren<QMenu*>(QString(), Qt::FindDirectChildrenOnly)); // their actions are not the menu's own
}

void ContentMenus::FillAdd(QMenu& Menu, IWindowServices& Services, const FCreate& Create)
{
	Clear(Menu);
	TArray<HostAssetTools::FNewAssetItem> Items;
	Services.GetEditor().Do([&Items] { Items = HostAssetTools::GetNewAssetMenu(); });
	QMenu* Category = nullptr;
	QString SubCategory;
	for (const HostAssetTools::FNewAssetItem& Item : Items) // ordered by category and sub-category
	{
		if (Category == nullptr || Category->title() != QtText::From(Item.Category))
		{
			Category = Menu.addMenu(QtText::From(Item.Category));
			SubCategory.clear();
		}
		if (QtText::From(Item.SubCategory) != SubCategory)
		{
			SubCategory = QtText::From(Item.SubCategory);
			Category->addSection(SubCategory);
		}
		QAction* const Action = Category->addAction(MakeSwatch(Theme::ToQt(Item.Color)), QtText::From(Item.DisplayName));
		Action->setObjectName(QtText::From(Item.DefaultFactory->GetClass()->GetFName()));
		QObject::connect(Action, &QAction::triggered, &Menu, [Create, Factory = Item.DefaultFactory->GetClass()->GetFName(), InCategory = Item.Category.ToString()] { Create(Factory, InCategory); });
	}
	if (Items.IsEmpty())
	{
		Menu.addAction(QObject::tr("No plugin has a kind of asset to make"))->setEnabled(false);
	}
}

bool ContentMenus::FillContext(QMenu& Menu, IWindowServices& Services)
{
	TSharedPtr<SWidget> Entries;
	Services.GetEditor().Do([&Entries] { Entries = HostContentBrowser::OpenContextMenu(); });
	if (!Entries.IsValid())
	{
		return false;
	}
	const auto NumBefore = Menu.actions().size();
	FMenuPopup::Fill(Menu, Entries.ToSharedRef(), Services);
	new FEntries(Menu, Entries.ToSharedRef());
	return Menu.actions().size() > NumBefore;
}
