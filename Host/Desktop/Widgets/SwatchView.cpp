// Copyright Velmorant. All Rights Reserved.

#include "Widgets/SwatchView.h"

#include "Look/EditorStyle.h"
#include "Look/Theme.h"

namespace SwatchView
{
	static const QSize Least(16, 16);

	class FColorField : public QWidget
	{
	public:
		using QWidget::QWidget;

		void SetColor(const QColor& InColor)
		{
			if (Color != InColor)
			{
				Color = InColor;
				update();
			}
		}

		virtual QSize sizeHint() const override { return Least; }
		virtual QSize minimumSizeHint() const override { return Least; }

	protected:
		virtual void paintEvent(QPaintEvent*) override
		{
			QPainter Painter(this);
			Painter.setRenderHint(QPainter::Antialiasing);
			const QRectF Frame = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
			QPainterPath Path;
			Path.addRoundedRect(Frame, EditorStyle::Radius, EditorStyle::Radius);
			if (Color.alpha() < 255)
			{
				Painter.fillPath(Path, Qt::white);
				Painter.fillPath(Path, QBrush(Qt::gray, Qt::Dense4Pattern)); // shows through
			}
			Painter.fillPath(Path, Color);
			Painter.setPen(Theme::GetColors().FieldLine);
			Painter.drawPath(Path);
		}

	private:
		QColor Color;
	};
}

FSwatchView::FSwatchView(IViewHost& InHost, QWidget& Parent)
	: FWidgetView(InHost, *new SwatchView::FColorField(&Parent))
{
}

void FSwatchView::Refresh(FSeenWidget& Seen)
{
	static_cast<SwatchView::FColorField&>(GetScreen()).SetColor(Theme::ToQt(Seen.GetLook().Color.GetSpecifiedColor()));
}
