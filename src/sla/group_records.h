#pragma once

#include <QString>

// One record of qd7AppGroup.dat: 39 bytes, the group name in 35 and the stored target in 4.
struct AppGroupRecordBuffer {
    static constexpr int NameWidth = 35;
    static constexpr int TargetWidth = 4;
    static constexpr int Length = NameWidth + TargetWidth;

    QString Name;
    QString Target;
};

// One record of qd7TransGroup.dat: 55 bytes, the group name in 35 and the transaction code in 20.
struct TransGroupRecordBuffer {
    static constexpr int NameWidth = 35;
    static constexpr int CodeWidth = 20;
    static constexpr int Length = NameWidth + CodeWidth;

    QString Name;
    QString Code;
};
