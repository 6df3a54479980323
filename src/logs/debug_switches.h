#pragma once

#include <QStringList>

class MenuItem;

// The debug switches are settings values holding "True" or "False"; only the exact text "True" is
// on. They take effect at once, tied to no page's OK, and set no status text.

// Reads the value into DebugValue and checks the item if and only if it is on.
void ShowDebugSwitch(MenuItem* item, const QString& valueName);

// Goes by the item's check mark, not by the store: flips it and writes the new state to each value
// in turn. A failed write shows its message; the check mark stays flipped.
void FlipDebugSwitch(MenuItem* item, const QStringList& valueNames);
