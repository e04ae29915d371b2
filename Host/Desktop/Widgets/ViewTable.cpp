// Copyright Velmorant. All Rights Reserved.

#include "Widgets/ViewTable.h"

#include "Widgets/BoxView.h"
#include "Widgets/ButtonView.h"
#include "Widgets/CheckView.h"
#include "Widgets/ComboView.h"
#include "Widgets/EditView.h"
#include "Widgets/ImageView.h"
#include "Widgets/ItemsView.h"
#include "Widgets/MenuButtonView.h"
#include "Widgets/PropertyRowView.h"
#include "Widgets/SwatchView.h"
#include "Widgets/TextView.h"
#include "Widgets/ThrobberView.h"

namespace ViewTable
{
	template<typename ViewType>
	std::unique_ptr<FWidgetView> MakeOne(IViewHost& Host, QWidget& Parent)
	{
		return std::make_unique<ViewType>(Host, Parent);
	}

	struct FRow
	{
		const TCHAR* Role;
		std::unique_ptr<FWidgetView> (*Make)(IViewHost& Host, QWidget& Parent);
	};

	static const FRow Rows[] = {
		{TEXT("text"), &MakeOne<FTextView>},
		{TEXT("button"), &MakeOne<FButtonView>},
		{TEXT("entry"), &MakeOne<FButtonView>},
		{TEXT("checkbox"), &MakeOne<FCheckView>},
		{TEXT("edit"), &MakeOne<FEditView>},
		{TEXT("search"), &MakeOne<FEditView>},
		{TEXT("combo"), &MakeOne<FComboView>},
		{TEXT("menu button"), &MakeOne<FMenuButtonView>},
		{TEXT("list"), &MakeOne<FItemsView>},
		{TEXT("tiles"), &MakeOne<FItemsView>},
		{TEXT("item"), &MakeOne<FItemView>},
		{TEXT("image"), &MakeOne<FImageView>},
		{TEXT("throbber"), &MakeOne<FThrobberView>},
		{TEXT("swatch"), &MakeOne<FSwatchView>},
		{TEXT("row"), &MakeOne<FPropertyRowView>},
		{TEXT("category"), &MakeOne<FPropertyRowView>},
	};

	std::unique_ptr<FWidgetView> Make(const FSeenWidget& Seen, IViewHost& Host, QWidget& Parent)
	{
		for (const FRow& Row : Rows)
		{
			if (Seen.GetDescription().Role.Equals(Row.Role))
			{
				return Row.Make(Host, Parent);
			}
		}
		return MakeOne<FBoxView>(Host, Parent);
	}
}
