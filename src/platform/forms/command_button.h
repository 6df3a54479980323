#pragma once

#include "control.h"

#include <QPushButton>

class CommandButton : public QPushButton, public Control
{
    Q_OBJECT

public:
    CommandButton(QWidget* parent, const QString& name);

    bool HasCaption() const override { return true; }
    QString Caption() const override { return text(); }
    void SetCaption(const QString& caption) override { setText(caption); }

    Event<> Click;
};
