#include "log_files.h"

#include "platform/file_system.h"
#include "platform/text_viewer.h"
#include "shell/message_boxes.h"
#include "shell/shared_state.h"

void OpenLog(const char* name)
{
    const QString path = BinDir + QLatin1String(name);
    if (fileExists(path))
        openInTextViewer(path);
    else
        ShowRefusal(1445);
}
