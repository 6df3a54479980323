#include "list_box.h"

#include "key_preview.h"
#include "sorted_insert.h"
#include "platform/runtime_error.h"

#include <QKeyEvent>
#include <QSignalBlocker>


ListBox::ListBox(QWidget* parent, const QString& name)
    : QListWidget(parent)
    , Control(this, this, parent, QStringLiteral("ListBox"), name)
{
    setSelectionMode(QAbstractItemView::SingleSelection);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setUniformItemSizes(true);
    connect(this, &QListWidget::itemSelectionChanged, this, [this] { Click.raiseFromQt(); });
    connect(this, &QListWidget::itemDoubleClicked, this, [this] { DblClick.raiseFromQt(); });
}

int ListBox::ListIndex() const
{
    const QList<QListWidgetItem*> selected = selectedItems();
    return selected.isEmpty() ? -1 : row(selected.first());
}

void ListBox::SetListIndex(int index)
{
    if (index < -1 || index >= count())
        throw RuntimeError(RuntimeError::InvalidPropertyValue,
            QStringLiteral("Selecting row %1 of %2").arg(index).arg(Name()));
    {
        const QSignalBlocker blocker(this);
        if (index == -1) {
            clearSelection();
        } else {
            setCurrentRow(index, QItemSelectionModel::ClearAndSelect);
            scrollToItem(item(index));
        }
    }
    viewport()->update();
    Click.raise();
}

QString ListBox::List(int index) const
{
    const QListWidgetItem* entry = item(index);
    return entry ? entry->text() : QString();
}

void ListBox::SetList(int index, const QString& text)
{
    if (QListWidgetItem* entry = item(index))
        entry->setText(text);
}

QString ListBox::Text() const
{
    return List(ListIndex());
}

void ListBox::AddItem(const QString& text, int index)
{
    int at = count();
    if (m_sorted) {
        at = sortedInsertPosition(count(), [this](int row) { return item(row)->text(); }, text);
    } else if (index >= 0) {
        if (index > count())
            throw RuntimeError(RuntimeError::InvalidProcedureCall, QStringLiteral("Adding to %1").arg(Name()));
        at = index;
    }
    const QSignalBlocker blocker(this);
    insertItem(at, text);
}

void ListBox::AddItems(const QStringList& texts)
{
    if (m_sorted) {
        for (const QString& text : texts)
            AddItem(text);
        return;
    }
    const QSignalBlocker blocker(this);
    insertItems(count(), texts);
}

void ListBox::RemoveItem(int index)
{
    if (index < 0 || index >= count())
        throw RuntimeError(RuntimeError::InvalidProcedureCall, QStringLiteral("Removing from %1").arg(Name()));
    const bool wasSelected = index == ListIndex();
    const QSignalBlocker blocker(this);
    delete takeItem(index);
    // the view would select the row that moved into the place
    if (wasSelected)
        clearSelection();
}

void ListBox::Clear()
{
    const QSignalBlocker blocker(this);
    clear();
}

void ListBox::SetHorizontalExtent(int pixels)
{
    m_extent = qMax(0, pixels);
    setHorizontalScrollBarPolicy(m_extent > viewport()->width() ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff);
}

void ListBox::keyPressEvent(QKeyEvent* event)
{
    KeyDown.raiseFromQt(KeyPreview::keyCode(event), KeyPreview::shiftMask(event));
    QListWidget::keyPressEvent(event);
}
