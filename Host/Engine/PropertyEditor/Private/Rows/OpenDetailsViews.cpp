// Copyright Velmorant. All Rights Reserved.

#include "Rows/OpenDetailsViews.h"

#include "HostDetailsView.h"

namespace OpenDetailsViews
{
	/** A plain list: each view enters and leaves it by itself, so there is nothing to reset with an editor. */
	TArray<FHostDetailsView*>& GetAll()
	{
		static TArray<FHostDetailsView*> Views;
		return Views;
	}

	void Add(FHostDetailsView& View)
	{
		GetAll().Add(&View);
	}

	void Remove(FHostDetailsView& View)
	{
		GetAll().Remove(&View);
	}

	void RebuildAll()
	{
		const TArray<FHostDetailsView*> Views = GetAll();
		for (FHostDetailsView* View : Views)
		{
			if (GetAll().Contains(View))
			{
				View->Rebuild();
			}
		}
	}
}
