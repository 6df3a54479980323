#include "msg_box.h"

#include "platform/event_guard.h"

#include <QApplication>
#include <QMessageBox>
#include <QPointer>

namespace {

MsgBoxResponder& responder()
{
    static MsgBoxResponder installed;
    return installed;
}

QMessageBox::Icon iconFor(int flags)
{
    switch (flags & 0x70) {
    case MsgBoxFlags::Critical:
        return QMessageBox::Critical;
    case MsgBoxFlags::Question:
        return QMessageBox::Question;
    case MsgBoxFlags::Exclamation:
        return QMessageBox::Warning;
    case MsgBoxFlags::Information:
        return QMessageBox::Information;
    default:
        return QMessageBox::NoIcon;
    }
}

QMessageBox::StandardButtons buttonsFor(int flags)
{
    switch (flags & 0x7) {
    case MsgBoxFlags::OkCancel:
        return QMessageBox::Ok | QMessageBox::Cancel;
    case 2:
        return QMessageBox::Abort | QMessageBox::Retry | QMessageBox::Ignore;
    case MsgBoxFlags::YesNoCancel:
        return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    case MsgBoxFlags::YesNo:
        return QMessageBox::Yes | QMessageBox::No;
    case 5:
        return QMessageBox::Retry | QMessageBox::Cancel;
    default:
        return QMessageBox::Ok;
    }
}

int resultFor(QMessageBox::StandardButton button)
{
    switch (button) {
    case QMessageBox::Cancel:
        return MsgBoxResult::Cancel;
    case QMessageBox::Abort:
        return 3;
    case QMessageBox::Retry:
        return 4;
    case QMessageBox::Ignore:
        return 5;
    case QMessageBox::Yes:
        return MsgBoxResult::Yes;
    case QMessageBox::No:
        return MsgBoxResult::No;
    default:
        return MsgBoxResult::Ok;
    }
}

// The first button is the default unless the flags name the second (256) or third (512).
QMessageBox::StandardButton defaultButton(QMessageBox& box, int flags)
{
    const int wanted = (flags & 0x300) >> 8;
    QList<QMessageBox::StandardButton> ordered;
    for (QMessageBox::StandardButton b : { QMessageBox::Ok, QMessageBox::Yes, QMessageBox::No, QMessageBox::Abort,
             QMessageBox::Retry, QMessageBox::Ignore, QMessageBox::Cancel }) {
        if (box.button(b))
            ordered << b;
    }
    return ordered.value(qMin(wanted, int(ordered.size()) - 1), QMessageBox::Ok);
}

} // namespace

void setMsgBoxResponder(MsgBoxResponder installed)
{
    responder() = std::move(installed);
}

int MsgBox(const QString& text, int flags, const QString& title)
{
    const QString shownTitle = title.isEmpty() ? EventGuard::productTitle() : title;
    if (responder())
        return responder()({ text, flags, shownTitle });

    QPointer<QWidget> parent = QApplication::activeWindow();
    QMessageBox box(iconFor(flags), shownTitle, text, buttonsFor(flags), parent);
    box.setDefaultButton(defaultButton(box, flags));
    if (box.button(QMessageBox::Cancel))
        box.setEscapeButton(QMessageBox::Cancel);
    int result;
    {
        EventGuard::EventLoopBoundary boundary;
        box.exec();
        result = resultFor(box.standardButton(box.clickedButton()));
    }
    // a desktop gives the focus back by itself; the offscreen platform leaves no active window
    if (parent)
        parent->activateWindow();
    return result;
}
