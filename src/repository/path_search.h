#pragma once

#include <QString>

// Whether a directory of the PATH holds a normal file of this name: the check for a database
// client program before its type is saved. The search keeps the habits the collector scripts rely
// on: only items followed by a ":" are searched, so the text after the last ":" never is; an empty
// item ends the search there; an empty PATH finds nothing. A directory whose name the system
// refuses (too long) is passed over; one that can't be searched simply doesn't hold the file.
bool FindOnPath(const QString& file);
