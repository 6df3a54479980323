#pragma once

#include <QString>

// Passwords are never stored in clear: they pass through the settings library's cipher, keyed by
// the console's pass phrase. Both routines replace the caller's text by its trimmed form followed
// by a NUL, so callers pass a copy. An empty result is reported on the status bar and returned.
QString EncryptText(QString& text);
QString DecryptText(QString& text);
