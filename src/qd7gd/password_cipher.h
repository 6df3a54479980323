#pragma once
// The password cipher: a length-preserving substitution over three classes of bytes, with a
// keystream from HMAC-SHA-256 keyed by a pass phrase. Obfuscation against casual reading, not
// protection against anyone who has the product. docs/cipher.md describes it byte by byte.
#include <QByteArray>
#include <QByteArrayView>

#include <optional>

namespace qd7gd {

class PasswordCipher {
public:
    // The pass phrase the console and the tool use.
    static constexpr const char* kConsolePassPhrase = "Hostelm4_Brandiwickt7";
    static constexpr qsizetype kMaxLength = 254;

    explicit PasswordCipher(QByteArrayView passPhrase);

    // Same length as the input; empty when the text cannot be mapped: empty, longer than
    // kMaxLength, holding a NUL, or with a blank (0x20) at either end.
    std::optional<QByteArray> encrypt(QByteArrayView clear) const;
    std::optional<QByteArray> decrypt(QByteArrayView enciphered) const;

    // The keystream word k_i for position i of a text of length n.
    quint32 keystream(int n, int i) const;

private:
    std::optional<QByteArray> transform(QByteArrayView text, bool forward) const;

    QByteArray m_passPhrase;
};

} // namespace qd7gd
