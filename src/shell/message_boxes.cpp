#include "message_boxes.h"

#include "catalogue.h"
#include "page_frame.h"
#include "platform/forms/msg_box.h"
#include "platform/runtime_error.h"
#include "shared_state.h"

void ShowMessageBox(int id)
{
    LoadMsgText(id);
    LoadMsgTitle(1452);
    MsgBox(MsgText, MsgBoxFlags::OkOnly, MsgTitle);
}

void ShowRefusal(int id)
{
    ShowMessageBox(id);
    ShowStatus(1453);
}

void ShowFailure(const RuntimeError& failure, const QString& afterNumber)
{
    LoadMsgText(1402);
    const QString encountered = MsgText;
    LoadMsgText(1403);
    const QString number = MsgText;
    LoadMsgTitle(1452);
    MsgBox(encountered + failure.Description + QStringLiteral(" , ") + number + QString::number(failure.Number) + afterNumber,
        MsgBoxFlags::OkOnly, MsgTitle);
    ShowStatus(1453);
}
