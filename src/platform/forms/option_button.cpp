#include "option_button.h"

#include <QSignalBlocker>

OptionButton::OptionButton(QWidget* parent, const QString& name)
    : QRadioButton(parent)
    , Control(this, this, parent, QStringLiteral("OptionButton"), name)
{
    connect(this, &QRadioButton::toggled, this, [this](bool on) {
        if (on)
            Click.raiseFromQt();
    });
}

void OptionButton::SetValue(bool value)
{
    if (value == isChecked())
        return;
    {
        const QSignalBlocker blocker(this);
        if (value) {
            setChecked(true);
        } else {
            // an exclusive button can't be switched off on its own
            setAutoExclusive(false);
            setChecked(false);
            setAutoExclusive(true);
        }
    }
    if (value)
        Click.raise();
}
