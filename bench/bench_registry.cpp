// The settings store against the plainest way to do the same file work, in one run:
// - ReadRegistry against reading the whole store file with QFile::readAll;
// - UpdateRegistry of a changing value against a QSaveFile write and commit of the same bytes;
// - UpdateRegistry of an unchanged value against the same plain read.
// The store holds the console's ~25 values, with realistic texts, in a temporary directory.
#include "bench_util.h"
#include "qd7gd.h"

#include <QByteArray>
#include <QFile>
#include <QSaveFile>
#include <QTemporaryDir>

#include <cstdio>
#include <cstring>

namespace {

int32_t update(const char* name, const QByteArray& value)
{
    char buffer[255];
    std::memset(buffer, ' ', sizeof buffer);
    std::memcpy(buffer, value.constData(), size_t(value.size()));
    buffer[value.size()] = '\0';
    return UpdateRegistry(name, buffer);
}

const char* const kValues[][2] = {
    {"BinDir", "/opt/orvanta/monitor/bin"},
    {"StatiInput", "/opt/orvanta/monitor/bin/servers.dat"},
    {"SnapInput", "/opt/orvanta/monitor/bin/servers.dat"},
    {"SnapDebug", "False"},
    {"StatiDebug", "False"},
    {"LoadDebug", "True"},
    {"Notation", "1,234.56"},
    {"System_SLA", "2.5"},
    {"StatiSchedule", "00:30"},
    {"StatiSchedule2", "06:30"},
    {"StatiSchedule3", "12:30"},
    {"StatiSchedule4", "18:30"},
    {"StatiSchedule5", ""},
    {"StatiSchedule6", ""},
    {"SnapRunDays", "1111100"},
    {"SnapSleepTime", "300"},
    {"DetailKeepDays", "31"},
    {"DB", "Oracle"},
    {"Oracle", "81"},
    {"INST", "PRD"},
    {"User", "ORVMON"},
    {"DSN", "ORVREPO"},
    {"Access", "zGqu'FSU0x!"},
    {"Tracer", " 08:00 17:30 "},
    {"Site", "Z\xfcrich \\ Nord"},
};

} // namespace

int main()
{
    QTemporaryDir dir;
    const QString store = dir.path() + "/qd7gd.ini";
    qputenv("QD7_REGISTRY", QFile::encodeName(store));
    for (const auto& [name, value] : kValues) {
        if (update(name, value) != 0) {
            std::fprintf(stderr, "cannot seed the store at %s\n", qPrintable(store));
            return 1;
        }
    }
    QFile file(store);
    file.open(QIODevice::ReadOnly);
    const QByteArray bytes = file.readAll();
    file.close();
    std::printf("store: %d values, %lld bytes, in %s\n", int(std::size(kValues)), qint64(bytes.size()), qPrintable(dir.path()));

    const auto plainRead = [&] {
        QFile f(store);
        f.open(QIODevice::ReadOnly);
        bench::keep(f.readAll().size());
    };
    char buffer[255];
    bench::report("ReadRegistry", bench::compare([&] { bench::keep(ReadRegistry("Access", buffer)); }, plainRead));

    long counter = 0;
    const QString copy = dir.path() + "/plain.ini";
    const bench::Options writes{.minSamples = 15, .minTime = std::chrono::milliseconds(1500)};
    bench::report("UpdateRegistry",
                  bench::compare([&] { update("SnapSleepTime", QByteArray::number(100000 + counter++ % 900000)); },
                                 [&] {
                                     QSaveFile f(copy);
                                     f.open(QIODevice::WriteOnly);
                                     f.write(bytes);
                                     f.commit();
                                 },
                                 writes));
    bench::report("UpdateRegistry unchanged", bench::compare([&] { update("DB", "Oracle"); }, plainRead));
    return 0;
}
