#pragma once

#include <QString>

// The server file into ServerTable and into the lists of three pages. The caller, a form name,
// decides where entries go: "frmServers" appends each entry to lstServer of frmServers; any other
// caller appends the trimmed server name to lstServers of frmCurrentConfig and the entry to
// lstServers of frmSpecRun, unless lstSvrsToAgg there holds it already. lstServers of frmSpecRun
// is cleared first whatever the caller; the other lists are the callers' to clear.

// Reads the file in force (ServerFilePath, else StatiInput). A file another process holds: a
// one-second wait, a box unless the caller is "frmCurrentConfig", the status "KQM7044E ...", and
// lstServer disabled until the next good load. Any other failure ends the load without a word.
void LoadServerFile(const QString& caller);

// The same lists from ServerTable, without touching the file.
void FillServerList(const QString& caller);
