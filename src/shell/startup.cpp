#include "startup.h"

#include "platform/event_guard.h"
#include "shell/catalogue.h"

#include <QLabel>
#include <QMainWindow>
#include <QStatusBar>

#include "shell/main_status_bar.h"

// Until the console's pages stand, the start shows the frame with a word on what is to come.
void StartConsole(const QString& commandLine)
{
    Q_UNUSED(commandLine);
    EventGuard::setProductTitleSource([] { return Catalogue::text(1452); });
    auto* frame = new QMainWindow;
    frame->setObjectName(QStringLiteral("MDIMainForm"));
    frame->setAttribute(Qt::WA_DeleteOnClose);
    frame->setWindowTitle(Catalogue::text(1400));
    auto* notice = new QLabel(QStringLiteral("The configuration pages arrive with the console shell."), frame);
    notice->setAlignment(Qt::AlignCenter);
    frame->setCentralWidget(notice);
    auto* status = new QStatusBar(frame);
    status->setObjectName(QStringLiteral("staMainStatusBar"));
    frame->setStatusBar(status);
    SetMainStatusBar(status);
    ShowStatusText(Catalogue::text(1454));
    frame->resize(633, 410);
    frame->show();
}
