#pragma once

#include "control.h"

#include <QListWidget>

// A list of texts with one selected row. ListIndex is the selected row or -1: adding items never
// selects, and the current row a view sets when it gets the focus is no selection. Setting
// ListIndex raises Click, as does the user selecting a row.
class ListBox : public QListWidget, public Control
{
    Q_OBJECT

public:
    ListBox(QWidget* parent, const QString& name);

    int ListIndex() const;
    void SetListIndex(int index);
    int ListCount() const { return count(); }
    // The text of row index; an index outside the list gives the empty text.
    QString List(int index) const;
    void SetList(int index, const QString& text);
    QString Text() const;

    // A sorted list puts an added item in ascending place, comparing without regard to case; equal
    // items keep the order they came in.
    void AddItem(const QString& text, int index = -1);
    // The same as adding each at the end in turn, in one step.
    void AddItems(const QStringList& texts);
    void RemoveItem(int index);
    void Clear();
    bool Sorted() const { return m_sorted; }
    void SetSorted(bool sorted) { m_sorted = sorted; }

    // Width in pixels the list can scroll to sideways; 0 hides the horizontal scroll bar.
    int HorizontalExtent() const { return m_extent; }
    void SetHorizontalExtent(int pixels);

    Event<> Click;
    Event<> DblClick;
    Event<int, int> KeyDown;

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    bool m_sorted = false;
    int m_extent = 0;
};
