#pragma once

#include "control.h"

#include <QLabel>

// Static text; the caption wraps within the label's width.
class Label : public QLabel, public Control
{
    Q_OBJECT

public:
    Label(QWidget* parent, const QString& name);

    bool HasCaption() const override { return true; }
    QString Caption() const override { return text(); }
    void SetCaption(const QString& caption) override { setText(caption); }
};

// A picture.
class Image : public QLabel, public Control
{
    Q_OBJECT

public:
    Image(QWidget* parent, const QString& name);

    void SetPicture(const QPixmap& picture);
};
