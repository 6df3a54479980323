#include "combo_box.h"

#include "key_preview.h"
#include "sorted_insert.h"
#include "platform/runtime_error.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QSignalBlocker>

ComboBox::ComboBox(QWidget* parent, const QString& name, Style style)
    : QComboBox(parent)
    , Control(this, this, parent, QStringLiteral("ComboBox"), name)
{
    setEditable(style == DropdownCombo);
    setInsertPolicy(QComboBox::NoInsert);
    connect(this, &QComboBox::activated, this, [this] { Click.raiseFromQt(); });
    if (QLineEdit* edit = lineEdit())
        connect(edit, &QLineEdit::textEdited, this, [this] { Change.raiseFromQt(); });
}

void ComboBox::SetListIndex(int index)
{
    if (index < -1 || index >= count())
        throw RuntimeError(RuntimeError::InvalidPropertyValue, QStringLiteral("Selecting entry %1 of %2").arg(index).arg(Name()));
    {
        const QSignalBlocker blocker(this);
        setCurrentIndex(index);
    }
    Click.raise();
}

QString ComboBox::List(int index) const
{
    return index >= 0 && index < count() ? itemText(index) : QString();
}

void ComboBox::SetText(const QString& text)
{
    if (text == currentText())
        return;
    {
        const QSignalBlocker blocker(this);
        if (isEditable()) {
            setEditText(text);
        } else {
            const int found = findText(text, Qt::MatchFixedString);
            if (found < 0)
                throw RuntimeError(RuntimeError::InvalidPropertyValue, QStringLiteral("Setting the text of %1").arg(Name()));
            setCurrentIndex(found);
        }
    }
    Change.raise();
}

void ComboBox::AddItem(const QString& text, int index)
{
    int at = count();
    if (m_sorted) {
        at = sortedInsertPosition(count(), [this](int row) { return itemText(row); }, text);
    } else if (index >= 0) {
        if (index > count())
            throw RuntimeError(RuntimeError::InvalidProcedureCall, QStringLiteral("Adding to %1").arg(Name()));
        at = index;
    }
    const QSignalBlocker blocker(this);
    const int before = currentIndex();
    const QString editText = currentText();
    insertItem(at, text);
    // QComboBox selects the first item it gets; adding never selects here
    if (before == -1) {
        setCurrentIndex(-1);
        if (isEditable())
            setEditText(editText);
    }
}

void ComboBox::RemoveItem(int index)
{
    if (index < 0 || index >= count())
        throw RuntimeError(RuntimeError::InvalidProcedureCall, QStringLiteral("Removing from %1").arg(Name()));
    const QSignalBlocker blocker(this);
    removeItem(index);
}

void ComboBox::Clear()
{
    const QSignalBlocker blocker(this);
    clear();
    if (isEditable())
        clearEditText();
}

void ComboBox::keyPressEvent(QKeyEvent* event)
{
    KeyDown.raiseFromQt(KeyPreview::keyCode(event), KeyPreview::shiftMask(event));
    QComboBox::keyPressEvent(event);
}
