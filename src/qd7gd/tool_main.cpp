// qd7gd: the settings store and the password cipher on the command line, for installers and
// collector scripts. Arguments arrive in the locale's encoding and are taken as Latin-1 text;
// output goes back to the locale's encoding. Exit status 0, else the store's status, or 87 for
// a usage error or a text the cipher cannot map.
#include "password_cipher.h"
#include "settings_store.h"

#include <QString>
#include <QStringList>

#include <cstdio>
#include <optional>

using namespace qd7gd;

namespace {

constexpr qsizetype kValueLimit = 255; // the C interface's buffer

const char kUsage[] =
    "usage: qd7gd get NAME           print the value of NAME\n"
    "       qd7gd set NAME VALUE     store VALUE (kept exactly, outer blanks too; cut at 255)\n"
    "       qd7gd list               print every NAME=VALUE in file order\n"
    "       qd7gd encrypt TEXT       print TEXT enciphered with the console's pass phrase\n"
    "       qd7gd decrypt TEXT       print TEXT deciphered\n"
    "The store is the file named by QD7_REGISTRY, else /etc/opt/orvanta/qd7gd.ini.\n";

void print(FILE* stream, const QString& text)
{
    const QByteArray bytes = text.toLocal8Bit();
    std::fwrite(bytes.constData(), 1, size_t(bytes.size()), stream);
}

int fail(int status, const QString& message)
{
    print(stderr, "qd7gd: " + message + '\n');
    return status;
}

const char* statusText(StoreStatus status)
{
    switch (status) {
    case StoreCorrupt: return "the store does not parse (corrupt)";
    case StoreBadName: return "the name is longer than 255 characters";
    case StoreCannotOpen: return "the store's directory cannot be made";
    case StoreCannotRead: return "the store cannot be read";
    case StoreCannotWrite: return "the store cannot be written";
    case StoreOutOfMemory: return "out of memory";
    case StoreAccessDenied: return "access to the store is denied";
    case StoreInvalidParameter: return "the name is empty";
    default: return "failed";
    }
}

int storeFailure(const SettingsStore& store, StoreStatus status)
{
    return fail(status, QString::fromLatin1(statusText(status)) + ": " + QString::fromLocal8Bit(store.path()));
}

// The argument as single-byte text; empty when it holds a character outside Latin-1.
std::optional<QByteArray> toLatin1(const QString& arg)
{
    for (const QChar c : arg) {
        if (c.unicode() > 0xFF)
            return std::nullopt;
    }
    return arg.toLatin1();
}

int run(const QStringList& args)
{
    const QString command = args.value(0);
    const qsizetype operands = command == "list" ? 0 : command == "set" ? 2 : 1;
    if (command == "help" || command == "--help" || command == "-h") {
        print(stdout, kUsage);
        return 0;
    }
    const bool known = command == "get" || command == "set" || command == "list" || command == "encrypt" || command == "decrypt";
    if (!known || args.size() != operands + 1) {
        print(stderr, known || args.isEmpty() ? QString(kUsage) : "qd7gd: unknown command \"" + command + "\"\n" + kUsage);
        return StoreInvalidParameter;
    }
    QList<QByteArray> texts;
    for (qsizetype i = 1; i < args.size(); ++i) {
        const auto text = toLatin1(args[i]);
        if (!text)
            return fail(StoreInvalidParameter, "\"" + args[i] + "\" holds a character outside Latin-1 (ISO-8859-1)");
        texts.append(*text);
    }

    if (command == "encrypt" || command == "decrypt") {
        const PasswordCipher cipher(PasswordCipher::kConsolePassPhrase);
        const auto result = command == "encrypt" ? cipher.encrypt(texts[0]) : cipher.decrypt(texts[0]);
        if (!result)
            return fail(StoreInvalidParameter, "cannot " + command + " \"" + args[1] +
                                                   "\": it must have 1 to 254 characters and no blank at either end");
        print(stdout, QString::fromLatin1(*result) + '\n');
        return 0;
    }

    SettingsStore store = SettingsStore::fromEnvironment();
    if (command == "list") {
        QList<StoreEntry> entries;
        if (const StoreStatus s = store.list(&entries))
            return storeFailure(store, s);
        QString out;
        for (const StoreEntry& e : entries)
            out += QString::fromLatin1(e.name) + '=' + QString::fromLatin1(e.value) + '\n';
        print(stdout, out);
        return 0;
    }
    if (command == "get") {
        QByteArray value;
        if (const StoreStatus s = store.read(texts[0], &value))
            return storeFailure(store, s);
        print(stdout, QString::fromLatin1(value) + '\n');
        return 0;
    }
    QByteArray value = texts[1];
    if (value.size() > kValueLimit) {
        value.truncate(kValueLimit);
        print(stderr, "qd7gd: the value is cut to its first 255 characters\n");
    }
    if (const StoreStatus s = store.write(texts[0], value))
        return storeFailure(store, s);
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    QStringList args;
    for (int i = 1; i < argc; ++i)
        args.append(QString::fromLocal8Bit(argv[i]));
    try {
        return run(args);
    } catch (const std::bad_alloc&) {
        return fail(StoreOutOfMemory, "out of memory");
    }
}
