#include "command_line.h"

namespace {

bool isBlank(QChar c)
{
    return c == QLatin1Char(' ') || c == QLatin1Char('\t');
}

const QChar Quote = QLatin1Char('"');
const QChar Backslash = QLatin1Char('\\');

} // namespace

QStringList splitWindowsCommandLine(const QString& commandLine)
{
    QStringList arguments;
    const qsizetype size = commandLine.size();
    qsizetype i = 0;

    auto skipBlanks = [&] {
        while (i < size && isBlank(commandLine[i]))
            ++i;
    };

    skipBlanks();
    if (i < size) {
        QString program;
        bool quoted = false;
        for (; i < size && (quoted || !isBlank(commandLine[i])); ++i) {
            if (commandLine[i] == Quote)
                quoted = !quoted;
            else
                program += commandLine[i];
        }
        arguments << program;
    }

    for (skipBlanks(); i < size; skipBlanks()) {
        QString argument;
        bool quoted = false;
        while (i < size && (quoted || !isBlank(commandLine[i]))) {
            const QChar c = commandLine[i];
            if (c == Backslash) {
                qsizetype count = 0;
                while (i < size && commandLine[i] == Backslash) {
                    ++count;
                    ++i;
                }
                if (i < size && commandLine[i] == Quote) {
                    argument += QString(count / 2, Backslash);
                    if (count % 2 == 1) {
                        argument += Quote;
                        ++i;
                    }
                    // An even count leaves the quote to the next round, which toggles.
                } else {
                    argument += QString(count, Backslash);
                }
            } else if (c == Quote) {
                if (quoted && i + 1 < size && commandLine[i + 1] == Quote) {
                    argument += Quote;
                    i += 2;
                } else {
                    quoted = !quoted;
                    ++i;
                }
            } else {
                argument += c;
                ++i;
            }
        }
        arguments << argument;
    }
    return arguments;
}
