#pragma once

#include "servers/server_record.h"
#include "sla/group_records.h"
#include "text_table.h"

#include <QString>

class QTranslator;

// The console's shared state: one value under one name, as every page uses it. All start empty or
// zero.

// The installation bin directory, read once at start-up; every data file path begins with it.
extern QString BinDir;
// Form name of the page on screen ("frmServers").
extern QString CurrentPage;
// Key of the tree node last hit by the mouse.
extern QString SelectedNodeKey;
// The loaded string library; null until a language search found one.
extern QTranslator* ResourceLibrary;
// Length of the text the last catalogue lookup loaded, or of the last list item measured.
extern qint32 LastStringLength;
// Work buffers a catalogue text is loaded into before it goes to a box, a control or the status
// bar; each lookup overwrites what the last one left.
extern QString MsgText;
extern QString MsgTitle;

// The target servers: row i is server i, columns 1 to 9; row 0 and column 0 stay unused.
extern TextTable ServerTable;
extern qint16 ServerCount;
// One record of the server file while it passes between file and table.
extern ServerRecordBuffer ServerRecord;
// The server file picked on the network page; empty means the path held in StatiInput.
extern QString ServerFilePath;
// Only ever set to empty.
extern QString ServerListOrigin;

// The application groups (column 1 name, 2 target) and their transactions (column 1 group name,
// 2 transaction code), rows 1 to the count.
extern TextTable AppGroupTable;
extern qint16 AppGroupCount;
extern AppGroupRecordBuffer AppGroupRecord;
extern TextTable TransGroupTable;
extern qint16 TransGroupCount;
extern TransGroupRecordBuffer TransGroupRecord;

// The last debug switch read, and the last INST value read.
extern QString DebugValue;
extern QString DbInstance;
