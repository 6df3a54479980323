#pragma once

#include <QString>
#include <QStringList>

// Splits a command line into arguments the way the usual Windows argument parser does; the console
// builds collector command lines in that form. docs/platform-services.md gives the rules:
// - Blanks and tabs outside double quotes separate arguments; runs of them count as one.
// - The first argument is the program: double quotes only group, backslashes stay as they are.
// - After it, 2n backslashes and a quote give n backslashes and the quote begins or ends a quoted
//   part; 2n+1 backslashes and a quote give n backslashes and a literal quote; backslashes before
//   anything else are literal.
// - Inside a quoted part, "" gives a literal quote and the part goes on.
// - A quote left open runs to the end of the line; "" alone is an empty argument.
QStringList splitWindowsCommandLine(const QString& commandLine);
