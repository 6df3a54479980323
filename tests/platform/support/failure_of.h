#pragma once

#include "platform/runtime_error.h"

#include <functional>

// The RuntimeError that `operation` throws; number 0 when it throws none.
inline RuntimeError failureOf(const std::function<void()>& operation)
{
    try {
        operation();
    } catch (const RuntimeError& error) {
        return error;
    }
    return RuntimeError(0, QStringLiteral("no failure"), QString());
}
