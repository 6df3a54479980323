#pragma once

#include <QString>

// The value of an environment variable; empty when it is unset.
QString environmentValue(const QString& name);
