#pragma once
// The settings store: named single-byte text values in one text file (store_format.h), shared
// by the console, the collector programs and the qd7gd tool. Reads take no lock and read the
// whole file each time; writes are serialised between processes by a lock file next to the
// store, re-read the file under the lock, and replace it atomically. docs/settings-store.md.
#include "store_format.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QList>

#include <cstdint>
#include <optional>

namespace qd7gd {

// The registry-style status numbers of the C interface (0 is success).
enum StoreStatus : int32_t {
    StoreOk = 0,
    StoreCorrupt = 1,          // the file does not parse
    StoreBadName = 2,          // a name longer than kMaxNameLength
    StoreCannotOpen = 3,       // the store's directory is missing and cannot be made
    StoreCannotRead = 4,       // reading the file failed (EIO and the like)
    StoreCannotWrite = 5,      // writing failed (ENOSPC, EIO, lock not obtained in time)
    StoreOutOfMemory = 6,
    StoreAccessDenied = 8,     // read-only file or directory, a directory at the path, EACCES
    StoreInvalidParameter = 87 // null or empty name or buffer
};

class SettingsStore {
public:
    static constexpr const char* kDefaultPath = "/etc/opt/orvanta/qd7gd.ini";
    static constexpr const char* kPathVariable = "QD7_REGISTRY";
    static constexpr qsizetype kMaxNameLength = 255;
    static constexpr int kDefaultLockTimeoutMs = 5000;

    // `path` in the file system's encoding (bytes, as in the environment).
    explicit SettingsStore(QByteArray path, int lockTimeoutMs = kDefaultLockTimeoutMs);
    // The store named by QD7_REGISTRY, else the default path.
    static SettingsStore fromEnvironment();

    const QByteArray& path() const { return m_path; }

    // An absent value, or a missing store, is success with an empty value.
    StoreStatus read(QByteArrayView name, QByteArray* value) const;
    // The values that count, in file order.
    StoreStatus list(QList<StoreEntry>* entries) const;
    // Writes only when the value differs; creates the store and its directory when missing.
    StoreStatus write(QByteArrayView name, QByteArrayView value);
    // Removes every line of the name; an absent value is success and writes nothing.
    StoreStatus remove(QByteArrayView name);

private:
    StoreStatus checkName(QByteArrayView name) const;
    StoreStatus readFile(QByteArray* bytes) const;
    StoreStatus checkWritable() const;
    StoreStatus makeDirectory() const;
    StoreStatus save(const QByteArray& bytes) const;
    StoreStatus modify(QByteArrayView name, std::optional<QByteArrayView> value);

    QByteArray m_path;
    int m_lockTimeoutMs;
};

} // namespace qd7gd
