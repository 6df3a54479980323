#pragma once

#include <QString>

class RuntimeError;

// The boxes in which the console tells the user of a refusal or a failure, always under the
// product title (catalogue id 1452) with the OK button and no icon.

// The text of a catalogue id in a box.
void ShowMessageBox(int id);

// A refused action: its message in a box, then "KQM7050E Status: Action failed" on the status bar.
void ShowRefusal(int id);

// The box of a handler's failure path: id 1402, the failure's text, " , ", id 1403, the
// failure's number and `afterNumber` right behind it, then the failed status.
void ShowFailure(const RuntimeError& failure, const QString& afterNumber = QString());
