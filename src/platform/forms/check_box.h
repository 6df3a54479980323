#pragma once

#include "control.h"

#include <QCheckBox>

// Value 0 unchecked, 1 checked, 2 greyed. Setting a different Value raises Click, as does the user.
class CheckBox : public QCheckBox, public Control
{
    Q_OBJECT

public:
    CheckBox(QWidget* parent, const QString& name);

    bool HasCaption() const override { return true; }
    QString Caption() const override { return text(); }
    void SetCaption(const QString& caption) override { setText(caption); }
    int Value() const;
    void SetValue(int value);

    Event<> Click;
};
