// Copyright Velmorant. All Rights Reserved.

#include "Widgets/EditView.h"

#include "Look/EditorStyle.h"
#include "Look/Fonts.h"
#include "QtText.h"

namespace EditView
{
	static const int LeastWidth = 48;
	static const int HintMargin = 8;
	static const int HintGap = 24; // between a text and its hint, with what is before the text

	class FField : public QLineEdit
	{
	public:
		explicit FField(QWidget* Parent)
			: QLineEdit(Parent)
		{
			setTextMargins(4, 0, 4, 0);
		}

		virtual QSize sizeHint() const override { return QSize(QLineEdit::sizeHint().width(), EditorStyle::ControlHeight); }
		virtual QSize minimumSizeHint() const override { return QSize(LeastWidth, EditorStyle::ControlHeight); }

	protected:
		/** What a field is for stands behind its text where there is room: "24" says nothing by itself. */
		virtual void paintEvent(QPaintEvent* Event) override
		{
			QLineEdit::paintEvent(Event);
			const int Left = fontMetrics().horizontalAdvance(displayText()) + HintGap;
			const QRect Room = rect().adjusted(Left, 0, -HintMargin, 0);
			if (text().isEmpty() || isClearButtonEnabled() || fontMetrics().horizontalAdvance(placeholderText()) > Room.width())
			{
				return;
			}
			QPainter Painter(this);
			Painter.setPen(palette().color(QPalette::PlaceholderText));
			Painter.drawText(Room, Qt::AlignRight | Qt::AlignVCenter, placeholderText());
		}
	};
}

FEditView::FEditView(IViewHost& InHost, QWidget& Parent)
	: FWidgetView(InHost, *new EditView::FField(&Parent))
{
	connect(&GetField(), &QLineEdit::textChanged, this, [this](const QString& Text) { TellTyped(Text); });
	connect(&GetField(), &QLineEdit::returnPressed, this, [this] { Commit(ETextCommit::OnEnter); });
	GetField().installEventFilter(this);
}

QString FEditView::NameIt(const FHostWidgetDescription& Description) const
{
	const QString Name = FWidgetView::NameIt(Description);
	return Name.isEmpty() ? GetField().placeholderText() : Name;
}

void FEditView::Refresh(FSeenWidget& Seen)
{
	bRefreshing = true;
	const FHostWidgetDescription& Description = Seen.GetDescription();
	bSearch = Description.Role == TEXT("search");
	GetField().setClearButtonEnabled(bSearch);
	if (GetField().isReadOnly() != Description.bReadOnly)
	{
		GetField().setReadOnly(Description.bReadOnly);
	}
	const QLineEdit::EchoMode Echo = Description.bPassword ? QLineEdit::Password : QLineEdit::Normal;
	if (GetField().echoMode() != Echo)
	{
		GetField().setEchoMode(Echo);
	}
	// What is being typed stays, unless the text became another one meanwhile.
	const FString Text = Description.Value.Get(FString());
	if (!ShownText.Equals(Text) || (!bTyped && GetField().text() != QtText::From(Text)))
	{
		ShownText = Text;
		if (GetField().text() != QtText::From(Text))
		{
			GetField().setText(QtText::From(Text));
			GetField().setCursorPosition(GetField().hasFocus() ? static_cast<int>(Text.Len()) : 0);
			bTyped = false;
		}
	}
	const FString& Hint = Seen.GetLook().Hint;
	if (!ShownHint.Equals(Hint))
	{
		ShownHint = Hint;
		GetField().setPlaceholderText(QtText::From(Hint));
	}
	ShowError(Description.Error);
	bRefreshing = false;
}

void FEditView::ShowError(const FString& Error)
{
	if (!ShownError.Equals(Error))
	{
		ShownError = Error;
		GetField().setProperty("wrong", !Error.IsEmpty());
		GetField().setToolTip(QtText::From(Error));
		GetField().setAccessibleDescription(QtText::From(Error));
		GetField().update();
	}
}

void FEditView::TellTyped(const QString& Text)
{
	if (bRefreshing)
	{
		return;
	}
	bTyped = true;
	FHostInput Input;
	Input.Kind = EHostInput::Edit;
	Input.Text = QtText::ToEditor(Text);
	Give(Input);
}

void FEditView::Commit(ETextCommit::Type How)
{
	bTyped = false;
	FHostInput Input;
	Input.Kind = EHostInput::Commit;
	Input.Text = QtText::ToEditor(GetField().text());
	Input.Commit = How;
	Give(Input);
}

bool FEditView::eventFilter(QObject* Watched, QEvent* Event)
{
	if (Event->type() == QEvent::FocusOut && bTyped && static_cast<QFocusEvent*>(Event)->reason() != Qt::PopupFocusReason)
	{
		Commit(ETextCommit::OnUserMovedFocus);
	}
	const bool bEscape = Event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(Event)->key() == Qt::Key_Escape;
	if (bEscape && bSearch && !GetField().text().isEmpty())
	{
		GetField().clear();
		return true;
	}
	return FWidgetView::eventFilter(Watched, Event);
}
