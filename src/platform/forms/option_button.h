#pragma once

#include "control.h"

#include <QRadioButton>

// Option buttons inside one container exclude each other. Setting one to true when it was false
// raises its Click; so does the user choosing it.
class OptionButton : public QRadioButton, public Control
{
    Q_OBJECT

public:
    OptionButton(QWidget* parent, const QString& name);

    bool HasCaption() const override { return true; }
    QString Caption() const override { return text(); }
    void SetCaption(const QString& caption) override { setText(caption); }
    bool Value() const { return isChecked(); }
    void SetValue(bool value);

    Event<> Click;
};
