#include "text_viewer.h"

#include "environment.h"
#include "processes.h"
#include "runtime_error.h"

void openInTextViewer(const QString& path)
{
    QString viewer = environmentValue(QStringLiteral("QD7_TEXT_VIEWER"));
    if (viewer.isEmpty())
        viewer = QStringLiteral("xdg-open");
    try {
        startDetached(viewer, { path });
    } catch (const RuntimeError& error) {
        throw RuntimeError(
            error.Number, error.Description, QStringLiteral("Opening %1 in the text viewer %2").arg(path, viewer));
    }
}
