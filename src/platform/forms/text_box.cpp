#include "text_box.h"

#include "key_preview.h"

#include <QKeyEvent>
#include <QSignalBlocker>

TextBox::TextBox(QWidget* parent, const QString& name)
    : QLineEdit(parent)
    , Control(this, this, parent, QStringLiteral("TextBox"), name)
{
    connect(this, &QLineEdit::textEdited, this, [this] { Change.raiseFromQt(); });
}

void TextBox::SetText(const QString& newText)
{
    if (newText == text())
        return;
    {
        const QSignalBlocker blocker(this);
        setText(newText);
    }
    Change.raise();
}

void TextBox::SetMaxLength(int length)
{
    m_maxLength = qMax(0, length);
    setMaxLength(m_maxLength == 0 ? 32767 : m_maxLength);
}

int TextBox::SelStart() const
{
    return hasSelectedText() ? selectionStart() : cursorPosition();
}

void TextBox::SetSelStart(int start)
{
    deselect();
    setCursorPosition(qBound(0, start, int(text().size())));
}

int TextBox::SelLength() const
{
    return hasSelectedText() ? int(selectedText().size()) : 0;
}

// The selection runs from SelStart; the cursor stays at its end, as after a drag to the right.
void TextBox::SetSelLength(int length)
{
    const int start = SelStart();
    setSelection(start, qBound(0, length, int(text().size()) - start));
}

void TextBox::SetPasswordChar(const QString& character)
{
    setEchoMode(character.isEmpty() ? QLineEdit::Normal : QLineEdit::Password);
    // the style's own mask character (often a dot) gives way to the one asked for
    setStyleSheet(character.isEmpty()
            ? QString()
            : QStringLiteral("QLineEdit { lineedit-password-character: %1; }").arg(character.at(0).unicode()));
}

void TextBox::keyPressEvent(QKeyEvent* event)
{
    KeyDown.raiseFromQt(KeyPreview::keyCode(event), KeyPreview::shiftMask(event));
    QLineEdit::keyPressEvent(event);
}
