#include "collector_window.h"

#include "platform/forms/do_events.h"
#include "platform/processes.h"

bool FindCollectorWindow(const QString& Pattern)
{
    const QStringList titles = runningCommandLines();
    for (const QString& title : titles) {
        if (title.contains(Pattern, Qt::CaseSensitive))
            return true;
        DoEvents();
    }
    return false;
}

bool CollectorOrLoaderRunning()
{
    const bool loader = FindCollectorWindow(QStringLiteral("qd7load"));
    const bool collector = FindCollectorWindow(QStringLiteral("qd7stati"));
    return loader || collector;
}
