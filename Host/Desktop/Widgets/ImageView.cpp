// Copyright Velmorant. All Rights Reserved.

#include "Widgets/ImageView.h"

#include "Look/Brushes.h"

#include <cmath>

namespace ImageView
{
	class FPicture : public QWidget
	{
	public:
		FPicture(IViewHost& InHost, QWidget* Parent)
			: QWidget(Parent)
			, Host(InHost)
		{
		}

		void SetBrush(const TOptional<FSlateBrush>& InBrush, QSize InSize)
		{
			const FName Name = InBrush.IsSet() ? InBrush->GetResourceName() : FName();
			const bool bSame = Name == (Brush.IsSet() ? Brush->GetResourceName() : FName());
			Brush = InBrush;
			if (Size != InSize)
			{
				Size = InSize;
				updateGeometry();
			}
			if (!bSame)
			{
				update();
			}
		}

		virtual QSize sizeHint() const override { return Size; }
		virtual QSize minimumSizeHint() const override { return Size; }

	protected:
		virtual void paintEvent(QPaintEvent*) override
		{
			if (!Brush.IsSet())
			{
				return;
			}
			const QSize Room = Size.scaled(size(), Qt::KeepAspectRatio).boundedTo(Size);
			const QPixmap Picture = Host.GetBrushes().Find(Brush.GetValue(), Room, devicePixelRatioF());
			QPainter Painter(this);
			const QSize Drawn = Picture.size() / Picture.devicePixelRatio();
			Painter.drawPixmap((width() - Drawn.width()) / 2, (height() - Drawn.height()) / 2, Picture);
		}

	private:
		IViewHost& Host;
		TOptional<FSlateBrush> Brush;
		QSize Size;
	};
}

FImageView::FImageView(IViewHost& InHost, QWidget& Parent)
	: FWidgetView(InHost, *new ImageView::FPicture(InHost, &Parent))
{
}

void FImageView::Refresh(FSeenWidget& Seen)
{
	const FHostWidgetLook& Look = Seen.GetLook();
	const QSize Size(static_cast<int>(std::lround(Look.Width.Get(0.0f))), static_cast<int>(std::lround(Look.Height.Get(0.0f))));
	static_cast<ImageView::FPicture&>(GetScreen()).SetBrush(Look.Brush, Size);
}
