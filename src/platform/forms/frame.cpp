#include "frame.h"

Frame::Frame(QWidget* parent, const QString& name)
    : QGroupBox(parent)
    , Control(this, this, parent, QStringLiteral("Frame"), name)
{
}
