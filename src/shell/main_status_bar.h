#pragma once

#include <QString>

class QStatusBar;

// The console's one status display, the frame's staMainStatusBar. Pages and routines write to it
// without knowing whether the frame stands yet; the frame registers its bar when it is built.
void SetMainStatusBar(QStatusBar* bar);
QStatusBar* MainStatusBar();
void ShowStatusText(const QString& text);
QString StatusText();
