#pragma once

#include "control.h"

#include <QComboBox>

// A drop-down list, editable or not. ListIndex is -1 until something selects: QComboBox picks its
// first item by itself, and AddItem undoes that. Typing raises Change; choosing an entry, or
// setting ListIndex, raises Click.
class ComboBox : public QComboBox, public Control
{
    Q_OBJECT

public:
    enum Style { DropdownCombo = 0, DropdownList = 2 };

    ComboBox(QWidget* parent, const QString& name, Style style = DropdownCombo);

    int ListIndex() const { return currentIndex(); }
    void SetListIndex(int index);
    int ListCount() const { return count(); }
    QString List(int index) const;
    // The edit text of an editable box, else the text of the selected entry.
    QString Text() const { return currentText(); }
    void SetText(const QString& text);

    void AddItem(const QString& text, int index = -1);
    void RemoveItem(int index);
    void Clear();
    bool Sorted() const { return m_sorted; }
    void SetSorted(bool sorted) { m_sorted = sorted; }

    Event<> Click;
    Event<> Change;
    Event<int, int> KeyDown;

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    bool m_sorted = false;
};
