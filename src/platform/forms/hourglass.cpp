#include "hourglass.h"

#include <QCursor>
#include <QGuiApplication>

namespace Hourglass {
namespace {
bool shown = false;
}

void set(bool on)
{
    if (on == shown)
        return;
    shown = on;
    if (on)
        QGuiApplication::setOverrideCursor(QCursor(Qt::WaitCursor));
    else
        QGuiApplication::restoreOverrideCursor();
}

bool isOn()
{
    return shown;
}

} // namespace Hourglass
