#include "registry_values.h"

#include "platform/forms/msg_box.h"
#include "platform/numeric.h"
#include "qd7gd.h"
#include "shell/catalogue.h"
#include "shell/shared_state.h"

namespace {

constexpr int BufferLength = 255;

QByteArray terminated(const QString& text)
{
    return text.toLatin1() + '\0';
}

} // namespace

QString ReadRegValue(const QString& ValueName)
{
    QByteArray buffer(BufferLength, '\0');
    const qint16 count = Numeric::toInt16(double(ReadRegistry(terminated(ValueName).constData(), buffer.data())));
    return QString::fromLatin1(buffer.left(qBound<int>(0, count, BufferLength)));
}

void WriteRegValue(const QString& ValueName, const QString& Value)
{
    QByteArray buffer(BufferLength, ' ');
    const QByteArray value = terminated(Value).left(BufferLength);
    buffer.replace(0, value.size(), value);
    const qint16 status = Numeric::toInt16(double(UpdateRegistry(terminated(ValueName).constData(), buffer.constData())));
    if (status != 0)
        ShowRegistryError(status);
}

void ShowRegistryError(qint16 Code)
{
    int id;
    switch (Code) {
    case 1:
        id = 1458;
        break;
    case 2:
        id = 1459;
        break;
    case 3:
        id = 1460;
        break;
    case 4:
        id = 1461;
        break;
    case 5:
        id = 1462;
        break;
    case 6:
        id = 1463;
        break;
    case 8:
        id = 1464;
        break;
    case 87:
        id = 1465;
        break;
    case 259:
        id = 1466;
        break;
    default:
        return;
    }
    LoadMsgText(id);
    LoadMsgTitle(1452);
    MsgBox(MsgText, MsgBoxFlags::OkOnly, MsgTitle);
}
