// The C interface: marshals the 255-byte buffers and makes sure no exception leaves.
#include "qd7gd.h"

#include "password_cipher.h"
#include "settings_store.h"

#include <algorithm>
#include <cstring>
#include <new>

using namespace qd7gd;

namespace {

constexpr size_t kBufferSize = 255;

// A name longer than the store allows is cut to one byte more, so the store still refuses it.
QByteArrayView nameView(const char* name)
{
    return QByteArrayView(name, qsizetype(strnlen(name, size_t(SettingsStore::kMaxNameLength) + 1)));
}

int32_t guarded(auto&& call)
{
    try {
        return call();
    } catch (const std::bad_alloc&) {
        return StoreOutOfMemory;
    } catch (...) {
        return StoreCannotWrite;
    }
}

int32_t cipherCall(const char* input, const char* key, char* output, bool forward)
{
    try {
        if (input && key && output) {
            const QByteArrayView text(input, qsizetype(strnlen(input, kBufferSize)));
            const PasswordCipher cipher{QByteArrayView(key, qsizetype(std::strlen(key)))};
            const auto result = forward ? cipher.encrypt(text) : cipher.decrypt(text);
            if (result) {
                std::memcpy(output, result->constData(), size_t(result->size()));
                output[result->size()] = '\0';
                return int32_t(result->size());
            }
        }
    } catch (...) {
    }
    if (output)
        output[0] = '\0';
    return 0;
}

} // namespace

extern "C" {

int32_t ReadRegistry(const char* name, char* buffer)
{
    if (!buffer)
        return 0;
    try {
        if (name) {
            QByteArray value;
            if (SettingsStore::fromEnvironment().read(nameView(name), &value) == StoreOk) {
                const size_t n = std::min(size_t(value.size()), kBufferSize);
                std::memcpy(buffer, value.constData(), n);
                if (n < kBufferSize)
                    buffer[n] = '\0';
                return int32_t(n);
            }
        }
    } catch (...) {
    }
    buffer[0] = '\0';
    return 0;
}

int32_t UpdateRegistry(const char* name, const char* buffer)
{
    return guarded([&] {
        if (!name || !buffer)
            return int32_t(StoreInvalidParameter);
        const QByteArrayView value(buffer, qsizetype(strnlen(buffer, kBufferSize))); // a full buffer may lack its NUL
        return int32_t(SettingsStore::fromEnvironment().write(nameView(name), value));
    });
}

int32_t DeleteRegistry(const char* name)
{
    return guarded([&] {
        if (!name)
            return int32_t(StoreInvalidParameter);
        return int32_t(SettingsStore::fromEnvironment().remove(nameView(name)));
    });
}

int32_t Encrypt(const char* input, const char* key, char* output)
{
    return cipherCall(input, key, output, true);
}

int32_t Decrypt(const char* input, const char* key, char* output)
{
    return cipherCall(input, key, output, false);
}

} // extern "C"
