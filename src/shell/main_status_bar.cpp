#include "main_status_bar.h"

#include <QPointer>
#include <QStatusBar>

namespace {
QPointer<QStatusBar> registered;
}

void SetMainStatusBar(QStatusBar* bar)
{
    registered = bar;
}

QStatusBar* MainStatusBar()
{
    return registered;
}

void ShowStatusText(const QString& text)
{
    if (registered)
        registered->showMessage(text);
}

QString StatusText()
{
    return registered ? registered->currentMessage() : QString();
}
