#pragma once

#include "platform/event_guard.h"
#include "shell/startup.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include "qd7gd.h"

// A console started in this process on a temporary installation and settings file. Its end is
// recorded instead of ending the test.
class ConsoleFixture
{
public:
    ConsoleFixture()
    {
        binDir = dir.path() + QStringLiteral("/bin");
        QDir().mkpath(binDir);
        qputenv("QD7_REGISTRY", QFile::encodeName(dir.path() + QStringLiteral("/registry.ini")));
        setValue("BinDir", binDir);
        EventGuard::setTerminateHandler([this](int status) { exitStatuses << status; });
    }
    ~ConsoleFixture() { EventGuard::setTerminateHandler({}); }
    ConsoleFixture(const ConsoleFixture&) = delete;
    ConsoleFixture& operator=(const ConsoleFixture&) = delete;

    // Starts the console with "-D" in this process and waits for its first page; call it as
    // QVERIFY(ConsoleFixture::startWithFirstPage()).
    static bool startWithFirstPage()
    {
        StartConsole(QStringLiteral("qd7console -D"));
        return QTest::qWaitFor([] { return shown(QStringLiteral("frmCurrentConfig")); }, 10000);
    }

    static void setValue(const char* name, const QString& value)
    {
        QByteArray buffer(255, ' ');
        const QByteArray bytes = value.toLatin1() + '\0';
        buffer.replace(0, bytes.size(), bytes);
        UpdateRegistry(name, buffer.constData());
    }

    // The current test row's QString columns of these names stored as the settings of the same names;
    // a null text deletes the setting.
    static void storeColumns(std::initializer_list<const char*> names)
    {
        for (const char* name : names) {
            const QString& value = *static_cast<QString*>(QTest::qData(name, qMetaTypeId<QString>()));
            if (value.isNull())
                DeleteRegistry(name);
            else
                setValue(name, value);
        }
    }

    static QWidget* widget(const QString& name)
    {
        for (QWidget* w : QApplication::allWidgets()) {
            if (w->objectName() == name)
                return w;
        }
        return nullptr;
    }

    static bool shown(const QString& name)
    {
        QWidget* w = widget(name);
        return w && w->isVisible();
    }

    QTemporaryDir dir;
    QString binDir;
    QList<int> exitStatuses;
};
