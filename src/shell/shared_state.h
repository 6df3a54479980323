#pragma once

#include <QString>

// The console's shared state: one value under one name, as every page uses it.

// Work buffers a catalogue text is loaded into before it goes to a box, a control or the status
// bar; each lookup overwrites what the last one left.
extern QString MsgText;
extern QString MsgTitle;
// Length of the text the last lookup loaded.
extern qint32 LastStringLength;
