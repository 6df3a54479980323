#include <QApplication>
#include <QStringList>

#include "shell/startup.h"

int main(int argc, char* argv[])
{
    QApplication app(argc, argv);
    StartConsole(QCoreApplication::arguments().join(QLatin1Char(' ')));
    return QApplication::exec();
}
