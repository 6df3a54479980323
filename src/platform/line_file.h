#pragma once

#include "file_errors.h"

#include <QByteArray>
#include <QString>

#include <memory>

// A text file read or written a line at a time, its text single-byte (ISO-8859-1). Open while the
// object lives, holding the shared lock of docs/locking.md.
class LineFile
{
public:
    enum class Mode {
        Input, // a missing file is error 53
        Output, // created or emptied
        Append, // created when missing
    };

    LineFile(const QString& path, Mode mode);
    // For tests: works on a device they prepared.
    LineFile(std::unique_ptr<FileDevice> device, Mode mode, const QString& name);
    ~LineFile();

    LineFile(const LineFile&) = delete;
    LineFile& operator=(const LineFile&) = delete;

    bool isOpen() const { return m_device != nullptr; }

    // The next line without its end: CR LF, a lone LF or a lone CR ends a line, and a last line
    // needs no end. Error 62 once nothing is left.
    QString readLine();
    bool atEnd();

    // Writes the text and CR LF; a character beyond ISO-8859-1 becomes "?".
    void writeLine(const QString& text);

    void close();

private:
    FileDevice& device(const char* what) const;
    bool fill();
    QString context(const char* what) const;

    std::unique_ptr<FileDevice> m_device;
    Mode m_mode;
    QString m_name;
    QByteArray m_buffer;
    qsizetype m_next = 0;
};
