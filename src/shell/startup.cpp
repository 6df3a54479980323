#include "startup.h"

#include "catalogue.h"
#include "frmSplash.h"
#include "platform/event_guard.h"

void StartConsole(const QString& commandLine)
{
    ConsoleCommandLine = commandLine;
    EventGuard::setProductTitleSource([] { return Catalogue::text(1452); });
    // the first reference loads the splash, which shows itself and starts its timer
    frmSplash.get();
}
