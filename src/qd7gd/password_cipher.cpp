#include "password_cipher.h"

#include <QMessageAuthenticationCode>

namespace qd7gd {

namespace {

struct ByteClass {
    int first; // lowest byte of the class
    int size;  // number of symbols
};

// The class a byte belongs to at an end position or an interior one; size 0 for bytes that the
// cipher leaves as they are.
ByteClass classOf(unsigned char b, bool atEnd)
{
    if (atEnd && b >= 0x21 && b <= 0x7E)
        return {0x21, 94};
    if (!atEnd && b >= 0x20 && b <= 0x7E)
        return {0x20, 95};
    if (b >= 0xA1)
        return {0xA1, 95};
    return {0, 0};
}

} // namespace

PasswordCipher::PasswordCipher(QByteArrayView passPhrase) : m_passPhrase(passPhrase.toByteArray()) {}

quint32 PasswordCipher::keystream(int n, int i) const
{
    const char message[2] = {char(n), char(i)};
    const QByteArray mac = QMessageAuthenticationCode::hash(QByteArray(message, 2), m_passPhrase,
                                                            QCryptographicHash::Sha256);
    const auto* d = reinterpret_cast<const unsigned char*>(mac.constData());
    return quint32(d[0]) << 24 | quint32(d[1]) << 16 | quint32(d[2]) << 8 | quint32(d[3]);
}

std::optional<QByteArray> PasswordCipher::transform(QByteArrayView text, bool forward) const
{
    const qsizetype n = text.size();
    if (n == 0 || n > kMaxLength || text.contains('\0') || text.front() == ' ' || text.back() == ' ')
        return std::nullopt;
    QByteArray out(text.toByteArray());
    for (qsizetype i = 0; i < n; ++i) {
        const auto b = static_cast<unsigned char>(text[i]);
        const ByteClass c = classOf(b, i == 0 || i == n - 1);
        if (c.size == 0)
            continue;
        const int shift = int(keystream(int(n), int(i)) % quint32(c.size));
        const int index = b - c.first;
        const int moved = forward ? (index + shift) % c.size : (index - shift + c.size) % c.size;
        out[i] = char(c.first + moved);
    }
    return out;
}

std::optional<QByteArray> PasswordCipher::encrypt(QByteArrayView clear) const
{
    return transform(clear, true);
}

std::optional<QByteArray> PasswordCipher::decrypt(QByteArrayView enciphered) const
{
    return transform(enciphered, false);
}

} // namespace qd7gd
