#include "command_button.h"

CommandButton::CommandButton(QWidget* parent, const QString& name)
    : QPushButton(parent)
    , Control(this, this, parent, QStringLiteral("CommandButton"), name)
{
    setAutoDefault(false);
    connect(this, &QPushButton::clicked, this, [this] { Click.raiseFromQt(); });
}
