#include "special_run.h"

#include "collector_command.h"
#include "frmSpecRun.h"
#include "platform/clock.h"
#include "platform/file_system.h"
#include "platform/format_pattern.h"
#include "platform/forms/list_box.h"
#include "platform/forms/text_box.h"
#include "platform/processes.h"
#include "platform/record_file.h"
#include "platform/runtime_error.h"
#include "platform/text.h"
#include "servers/server_record.h"
#include "settings/registry_values.h"
#include "shell/MDIMainForm.h"
#include "shell/catalogue.h"
#include "shell/message_boxes.h"
#include "shell/shared_state.h"

#include <memory>

namespace {

// A failing step leaves its files open until the console ends, as a failed run always has.
std::vector<std::unique_ptr<RecordFile>> filesLeftOpen;

// Whether a list entry ("name instance") stands for a record: split by position, the name is all
// but the last three characters of the trimmed length and the instance the last two.
bool entryMatches(const QString& entry, const ServerRecordBuffer& record)
{
    const QString trimmed = Text::Trim(entry);
    const QString name = Text::Left(entry, trimmed.size() - 3);
    const QString instance = Text::Right(trimmed, 2);
    return Text::Trim(record.Server) == name && Text::Trim(record.Instance) == instance;
}

bool switchedOn(const QString& name)
{
    DebugValue.clear();
    DebugValue = ReadRegValue(name);
    return DebugValue == QLatin1String("True");
}

QString logLine(const QString& text)
{
    return Text::fixedField(text, 120);
}

// The permission failure is to be logged on file channel 4, which only the transaction group page
// opens, and closes again: the write itself fails, and that failure is what the caller sees.
[[noreturn]] void logPermissionFailure(const RuntimeError& failure, const QString& FailureContext)
{
    QString LogLine = logLine(Text::Space(80));
    LoadMsgText(1402);
    const QString moment = FormatPattern::formatDateTime(Clock::now(), QStringLiteral("mm/dd/yyyy hh:mm:ss"));
    LogLine = logLine(Text::Space(4) + moment + MsgText + QLatin1Char(' ') + failure.Description + QStringLiteral(" Err=")
        + QString::number(failure.Number) + QStringLiteral(" , ") + FailureContext);
    LoadMsgText(1473);
    LogLine = logLine(Text::Space(4) + moment + QLatin1Char(' ') + MsgText);
    throw RuntimeError(RuntimeError::BadFileNameOrNumber, QStringLiteral("Bad file name or number"),
        QStringLiteral("Writing to file channel 4, which is not open: ") + Text::RTrim(LogLine));
}

} // namespace

QString SpecialRunListPath()
{
    return BinDir + QStringLiteral("/qd7SpecRunServList.dat");
}

void SubmitSpecialRun(const QString& RunKind)
{
    Q_UNUSED(RunKind);
    QString FailureContext;
    std::unique_ptr<RecordFile> source;
    std::unique_ptr<RecordFile> target;
    try {
        MDIMainForm->SetEnabled(false);
        const QString DbTypeText = Text::UCase(ReadRegValue(QStringLiteral("DB")));
        const QString statiInput = ReadRegValue(QStringLiteral("StatiInput"));
        FailureContext = QStringLiteral("6 Server.dat");
        // a random-access open: a missing server file is created, empty
        source = std::make_unique<RecordFile>(statiInput, ServerRecordBuffer::Length);
        if (fileExists(SpecialRunListPath()))
            deleteFile(SpecialRunListPath());
        target = std::make_unique<RecordFile>(SpecialRunListPath(), ServerRecordBuffer::Length);

        ListBox* chosen = frmSpecRun->lstSvrsToAgg;
        int OutRecordNumber = 1;
        const qint16 records = source->recordCount();
        for (int r = 1; r <= records; ++r) {
            const QByteArray bytes = source->read(r);
            ServerRecord = ServerRecordBuffer::fromBytes(bytes);
            // every matching pair writes: a server chosen once but filed twice goes out twice
            for (int i = 0; i < chosen->ListCount(); ++i) {
                chosen->SetListIndex(i);
                if (!entryMatches(chosen->Text(), ServerRecord))
                    continue;
                if (OutRecordNumber == 32767)
                    throw RuntimeError(RuntimeError::Overflow, QStringLiteral("Overflow"),
                        QStringLiteral("Counting the records of ") + SpecialRunListPath());
                target->write(OutRecordNumber++, bytes);
            }
        }
        source->close();
        target->close();

        if (OutRecordNumber == 1) {
            ShowMessageBox(1438);
            MDIMainForm->SetEnabled(true);
            return;
        }
        CollectorRun run;
        run.binDir = BinDir;
        run.loadDebug = switchedOn(QStringLiteral("LoadDebug"));
        run.statiDebug = switchedOn(QStringLiteral("StatiDebug"));
        run.startDate = frmSpecRun->txtStartDate->Text();
        run.startTime = frmSpecRun->txtStartTime->Text();
        run.endDate = frmSpecRun->txtEndDate->Text();
        run.endTime = frmSpecRun->txtEndTime->Text();
        run.dbType = DbTypeText;
        const QString CommandLine = CollectorCommandLine(run);
        // a missing collector is passed over without a word
        if (fileExists(CollectorProgramPath(BinDir)))
            startDetached(CommandLine);
        MDIMainForm->SetEnabled(true);
    } catch (const RuntimeError& failure) {
        if (failure.Number == RuntimeError::PermissionDenied) {
            for (auto* file : { &source, &target }) {
                if (*file)
                    filesLeftOpen.push_back(std::move(*file));
            }
            logPermissionFailure(failure, FailureContext);
        }
        ShowFailure(failure, FailureContext);
        MDIMainForm->SetEnabled(true);
    }
}
