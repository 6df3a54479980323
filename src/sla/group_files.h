#pragma once

#include <QString>

// The two SLA group files in BinDir and the shared tables that mirror them: AppGroupTable (column 1
// name, 2 stored target) and TransGroupTable (column 1 group name, 2 transaction code). A member
// belongs to the group whose trimmed name equals its own, case included. Failures to open or read
// are not caught here: they rise as RuntimeError to the event guard.

QString AppGroupFilePath(); // BinDir/qd7AppGroup.dat
QString TransGroupFilePath(); // BinDir/qd7TransGroup.dat
// The work files that saving writes first and then copies over the .dat files.
QString AppGroupWorkFilePath(); // BinDir/qd7AppGroup.new
QString TransGroupWorkFilePath(); // BinDir/qd7TransGroup.new

// Reads qd7AppGroup.dat into AppGroupTable and AppGroupCount. A missing file leaves both as they
// were. The first record of a name wins; a later one of the same name, or one with a blank name,
// leaves an empty row at the end while AppGroupCount still counts every record.
void LoadAppGroups();

// Reads qd7TransGroup.dat into TransGroupTable and TransGroupCount, every record as it stands, under
// the hourglass. A missing file sets TransGroupCount to 0 and leaves the table as it was.
void LoadTransGroups();
