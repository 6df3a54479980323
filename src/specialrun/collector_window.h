#pragma once

#include <QString>

// Whether a running program's "window" holds `pattern`: the command lines of the running
// processes stand in for top-level window titles. Exact case, containment anywhere; pending events
// run once per process looked at.
bool FindCollectorWindow(const QString& Pattern);

// The running check before a special run: both patterns are always asked, loader first.
bool CollectorOrLoaderRunning();
