#pragma once

#include <QString>

// Creates the start-up form and starts its timer; everything after runs in the caller's event loop.
void StartConsole(const QString& commandLine);
