// The server file at its largest, 32,767 servers, in one run:
// - LoadServerFile for the server page against one buffered read of the same bytes;
// - the OK of the server page (settings, backup, delete, write, reload) against one buffered write
//   of the same bytes;
// - the activation of frmServers, in milliseconds, beside a plain QListWidget filled with the
//   same texts.
// The console runs in this process on the offscreen platform, on a temporary installation.
#include "bench_util.h"
#include "platform/forms/list_box.h"
#include "qd7gd.h"
#include "servers/frmServers.h"
#include "servers/server_lists.h"
#include "shell/startup.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QListWidget>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <vector>

namespace {

constexpr int Servers = 32767;

void setValue(const char* name, const QString& value)
{
    QByteArray buffer(255, ' ');
    const QByteArray bytes = value.toLatin1() + '\0';
    std::memcpy(buffer.data(), bytes.constData(), size_t(bytes.size()));
    UpdateRegistry(name, buffer.constData());
}

QByteArray record(int n)
{
    const QByteArray server = "sap" + QByteArray::number(n).rightJustified(5, '0') + ".corp.example.com";
    return server.leftJustified(100, ' ') + QByteArray("QD7MON").leftJustified(30, ' ')
        + QByteArray("zGqu'FSU0x!").leftJustified(30, ' ') + "PRD100"
        + QByteArray::number(n % 100).rightJustified(2, '0') + "000000240000E\r\n";
}

bool waitUntilShown(const QString& name)
{
    QElapsedTimer waited;
    waited.start();
    while (waited.elapsed() < 20000) {
        QApplication::processEvents();
        for (QWidget* widget : QApplication::allWidgets()) {
            if (widget->objectName() == name && widget->isVisible())
                return true;
        }
    }
    return false;
}

template<typename F>
double medianMs(F&& f, int runs)
{
    std::vector<double> samples;
    for (int i = 0; i < runs; ++i) {
        QElapsedTimer clock;
        clock.start();
        f();
        samples.push_back(double(clock.nsecsElapsed()) / 1e6);
    }
    std::sort(samples.begin(), samples.end());
    return samples[samples.size() / 2];
}

} // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QTemporaryDir dir;
    qputenv("QD7_REGISTRY", QFile::encodeName(dir.filePath(QStringLiteral("registry.ini"))));
    qputenv("XDG_RUNTIME_DIR", QFile::encodeName(dir.path()));
    QApplication app(argc, argv);

    const QString path = dir.filePath(QStringLiteral("qd7server.dat"));
    QByteArray bytes;
    bytes.reserve(qsizetype(Servers) * 183);
    QStringList entries;
    for (int n = 1; n <= Servers; ++n) {
        bytes += record(n);
        entries << QStringLiteral("sap%1.corp.example.com %2")
                       .arg(n, 5, 10, QLatin1Char('0'))
                       .arg(n % 100, 2, 10, QLatin1Char('0'));
    }
    QFile seed(path);
    if (!seed.open(QIODevice::WriteOnly) || seed.write(bytes) != bytes.size())
        return 1;
    seed.close();
    setValue("BinDir", dir.path());
    setValue("StatiInput", path);

    StartConsole(QStringLiteral("qd7console -D"));
    if (!waitUntilShown(QStringLiteral("frmCurrentConfig")))
        return 1;
    frmServers->Show();
    std::printf("server file: %d servers, %lld bytes, %d listed\n", Servers, qint64(bytes.size()),
        frmServers->lstServer->ListCount());

    const bench::Options slow { .minSamples = 11, .minTime = std::chrono::milliseconds(2000) };
    const auto plainRead = [&] {
        QFile file(path);
        file.open(QIODevice::ReadOnly);
        bench::keep(file.readAll().size());
    };
    bench::report("LoadServerFile",
        bench::compare(
            [] {
                frmServers->lstServer->Clear();
                LoadServerFile(QStringLiteral("frmServers"));
            },
            plainRead, slow));

    const QString copy = dir.filePath(QStringLiteral("plain.dat"));
    bench::report("OK on the server page",
        bench::compare([] { frmServers->cmdOK_Click(); },
            [&] {
                QFile file(copy);
                file.open(QIODevice::WriteOnly | QIODevice::Truncate);
                file.write(bytes);
            },
            slow));

    const double activation = medianMs([] { frmServers->Form_Activate(); }, 9);
    QListWidget plain;
    plain.show();
    const double plainFill = medianMs(
        [&] {
            plain.clear();
            plain.addItems(entries);
        },
        9);
    std::printf("activation of frmServers: %.1f ms, a plain QListWidget filled: %.1f ms, ratio %.2f\n", activation,
        plainFill, activation / plainFill);
    std::fflush(stdout);
    // at once, as the console ends: its instance lock would outlive the temporary directory
    dir.remove();
    std::_Exit(0);
}
