#pragma once

#include <QString>

#include <exception>

// A failed platform operation, numbered as the console's routines expect: a routine with a failure
// path catches it and shows Number and Description; anything else ends at the event guard.
class RuntimeError : public std::exception
{
public:
    enum Code {
        InvalidProcedureCall = 5,
        Overflow = 6,
        SubscriptOutOfRange = 9,
        TypeMismatch = 13,
        BadFileNameOrNumber = 52,
        FileNotFound = 53,
        BadFileMode = 54,
        DiskFull = 61,
        InputPastEndOfFile = 62,
        BadRecordNumber = 63,
        TooManyFiles = 67,
        PermissionDenied = 70,
        PathFileAccessError = 75,
        PathNotFound = 76,
        InvalidPropertyValue = 380,
    };

    // The classic description of the number; Context says what was being done, for the last box.
    explicit RuntimeError(int number, QString context = QString());
    RuntimeError(int number, QString description, QString context);

    int Number;
    QString Description;
    QString Context;

    static QString describe(int number);
    const char* what() const noexcept override;

private:
    QByteArray m_what;
};
