#include "credentials.h"

#include "platform/numeric.h"
#include "platform/text.h"
#include "qd7gd.h"
#include "shell/catalogue.h"
#include "shell/main_status_bar.h"
#include "shell/shared_state.h"

namespace {

constexpr int BufferLength = 255;
const QString PassPhrase = QStringLiteral("Hostelm4_Brandiwickt7");

using CipherFunction = int32_t (*)(const char*, const char*, char*);

QString runCipher(QString& text, CipherFunction cipher, int emptyResultId)
{
    QByteArray buffer(BufferLength, ' ');
    text = Text::Trim(text) + QChar(u'\0');
    const QByteArray input = text.toLatin1();
    const QByteArray key = (PassPhrase + QChar(u'\0')).toLatin1();
    const qint16 length = Numeric::toInt16(double(cipher(input.constData(), key.constData(), buffer.data())));
    const QString kept = QString::fromLatin1(buffer.left(qBound<int>(0, length, BufferLength)));
    if (Text::Trim(kept).isEmpty()) {
        LoadMsgText(emptyResultId);
        ShowStatusText(MsgText);
    }
    return kept;
}

} // namespace

QString EncryptText(QString& text)
{
    return runCipher(text, &Encrypt, 1448);
}

QString DecryptText(QString& text)
{
    return runCipher(text, &Decrypt, 1447);
}
