#include "do_events.h"

#include "platform/event_guard.h"

#include <QCoreApplication>

void DoEvents()
{
    EventGuard::EventLoopBoundary boundary;
    QCoreApplication::processEvents(QEventLoop::AllEvents);
}
