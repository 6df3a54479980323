#include "check_box.h"

#include <QSignalBlocker>

CheckBox::CheckBox(QWidget* parent, const QString& name)
    : QCheckBox(parent)
    , Control(this, this, parent, QStringLiteral("CheckBox"), name)
{
    connect(this, &QCheckBox::clicked, this, [this] { Click.raiseFromQt(); });
}

int CheckBox::Value() const
{
    switch (checkState()) {
    case Qt::Checked:
        return 1;
    case Qt::PartiallyChecked:
        return 2;
    default:
        return 0;
    }
}

void CheckBox::SetValue(int value)
{
    if (value == Value())
        return;
    {
        const QSignalBlocker blocker(this);
        setTristate(value == 2);
        setCheckState(value == 1 ? Qt::Checked : value == 2 ? Qt::PartiallyChecked : Qt::Unchecked);
    }
    Click.raise();
}
