#pragma once

#include <QString>

// Opens a file in the text viewer, detached: the program named by QD7_TEXT_VIEWER (a program, not
// a command line), else xdg-open. The path is one argument, never seen by a shell. A viewer that
// can't be started is error 53.
void openInTextViewer(const QString& path);
