#pragma once

#include <QString>

// Named settings values through the settings library. A read never fails visibly: an absent or
// unreadable value is the empty text. A failed write shows its message and the caller carries on.

// At most 255 characters come back, untrimmed.
QString ReadRegValue(const QString& ValueName);

// Up to 254 characters are stored with their terminator; the 255th is kept without it, the rest cut.
void WriteRegValue(const QString& ValueName, const QString& Value);

// A box with the message of a known status under the product title; any other status, nothing.
void ShowRegistryError(qint16 Code);
