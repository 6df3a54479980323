#pragma once

#include "platform/forms/msg_box.h"

#include <QList>
#include <QStringList>

// Answers the console's message boxes ahead, in order, and records what they asked. Boxes beyond
// the prepared answers are answered OK (1).
class MsgBoxRecorder
{
public:
    MsgBoxRecorder()
    {
        setMsgBoxResponder([this](const MsgBoxCall& call) {
            calls << call;
            return answers.isEmpty() ? 1 : answers.takeFirst();
        });
    }
    ~MsgBoxRecorder() { setMsgBoxResponder({}); }
    MsgBoxRecorder(const MsgBoxRecorder&) = delete;
    MsgBoxRecorder& operator=(const MsgBoxRecorder&) = delete;

    QStringList texts() const
    {
        QStringList out;
        for (const MsgBoxCall& call : calls)
            out << call.text;
        return out;
    }

    QList<int> answers;
    QList<MsgBoxCall> calls;
};
