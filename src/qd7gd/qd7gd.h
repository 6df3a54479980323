/* libqd7gd: the settings store and password cipher of Orvanta Monitor, for C and C++.
 *
 * All texts are single-byte (Latin-1) and NUL-terminated unless told otherwise. Buffers are
 * 255 bytes. No function throws; each one catches everything inside the library.
 * docs/settings-store.md and docs/cipher.md describe the store file, the statuses and the
 * cipher byte by byte. */
#ifndef QD7GD_H
#define QD7GD_H

#include <stdint.h>

#if defined(QD7GD_BUILDING) && (defined(__GNUC__) || defined(__clang__))
#define QD7GD_EXPORT __attribute__((visibility("default")))
#else
#define QD7GD_EXPORT
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* Copies the value `name` into `buffer` (255 bytes): at most 255 bytes, then a NUL if there is
 * room. Returns the number of value bytes in the buffer; 0 for an absent or empty value, a null
 * argument, or a store that is missing, unreadable or corrupt. */
QD7GD_EXPORT int32_t ReadRegistry(const char* name, char* buffer);

/* Stores the value held in `buffer` (255 bytes: the value, a NUL, then anything) under `name`.
 * The value is the bytes before the first NUL, never more than 255. Returns 0 on success, else
 * a status: 1 corrupt store, 2 name longer than 255 bytes, 3 directory cannot be made,
 * 4 store cannot be read, 5 write failed, 6 out of memory, 8 access denied,
 * 87 null or empty name or null buffer. */
QD7GD_EXPORT int32_t UpdateRegistry(const char* name, const char* buffer);

/* Removes the value `name`. An absent value (or a missing store) is success: 0. Statuses as
 * for UpdateRegistry. */
QD7GD_EXPORT int32_t DeleteRegistry(const char* name);

/* Enciphers or deciphers `input` with the pass phrase `key` into `output` (255 bytes; the
 * result and a NUL, at most 255 bytes). Returns the result's length, which equals the input's;
 * 0, with an empty `output`, for a text that cannot be mapped (empty, longer than 254 bytes, a
 * blank at either end) or a null argument. */
QD7GD_EXPORT int32_t Encrypt(const char* input, const char* key, char* output);
QD7GD_EXPORT int32_t Decrypt(const char* input, const char* key, char* output);

#ifdef __cplusplus
}
#endif

#endif /* QD7GD_H */
