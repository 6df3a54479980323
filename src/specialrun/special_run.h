#pragma once

#include <QString>

// BinDir/qd7SpecRunServList.dat: the records of the server file chosen for a special run.
QString SpecialRunListPath();

// Hands the period and the servers on frmSpecRun to the collector: the chosen records of the
// server file named by StatiInput, in file order, into the list file, then qd7stati.exe started
// detached when it exists. The frame is disabled meanwhile. Reports its own failures, except that
// a file held by another process leads into a log write that fails in turn: that failure rises to
// the caller, and the frame stays disabled.
void SubmitSpecialRun(const QString& RunKind);
