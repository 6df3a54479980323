#pragma once

#include "control.h"

#include <QGroupBox>

// A titled container; option buttons inside one frame exclude each other.
class Frame : public QGroupBox, public Control
{
    Q_OBJECT

public:
    Frame(QWidget* parent, const QString& name);

    bool HasCaption() const override { return true; }
    QString Caption() const override { return title(); }
    void SetCaption(const QString& caption) override { setTitle(caption); }
};
