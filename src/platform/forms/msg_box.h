#pragma once

#include <QString>

#include <functional>

// Flags and results as the console's routines pass and compare them.
namespace MsgBoxFlags {
constexpr int OkOnly = 0;
constexpr int OkCancel = 1;
constexpr int YesNoCancel = 3;
constexpr int YesNo = 4;
constexpr int Critical = 16;
constexpr int Question = 32;
constexpr int Exclamation = 48;
constexpr int Information = 64;
} // namespace MsgBoxFlags

namespace MsgBoxResult {
constexpr int Ok = 1;
constexpr int Cancel = 2;
constexpr int Yes = 6;
constexpr int No = 7;
} // namespace MsgBoxResult

struct MsgBoxCall {
    QString text;
    int flags = 0;
    QString title;
};

// Shows a real modal box (QMessageBox::exec) and returns the button pressed, unless a responder is
// installed: the console's own unit tests answer ahead with one and record what was asked.
int MsgBox(const QString& text, int flags = MsgBoxFlags::OkOnly, const QString& title = QString());

using MsgBoxResponder = std::function<int(const MsgBoxCall&)>;
void setMsgBoxResponder(MsgBoxResponder responder);
