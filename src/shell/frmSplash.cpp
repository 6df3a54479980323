#include "frmSplash.h"

#include "MDIMainForm.h"
#include "platform/clock.h"
#include "platform/forms/do_events.h"
#include "platform/forms/label.h"
#include "platform/forms/timer.h"
#include "product_art.h"
#include "settings/registry_values.h"
#include "shared_state.h"
#include "sla/group_files.h"

#include <QGuiApplication>
#include <QScreen>

FormRef<SplashForm> frmSplash;
QString ConsoleCommandLine;

SplashForm::SplashForm()
    : Form(QStringLiteral("frmSplash"), Kind::Window)
{
    setWindowFlags(Qt::SplashScreen | Qt::FramelessWindowHint);
    imgSplash = new Image(this, QStringLiteral("imgSplash"));
    imgSplash->SetPicture(ProductArt::splash());
    imgSplash->move(0, 0);
    tmrSplash = new Timer(this, QStringLiteral("tmrSplash"));
    tmrSplash->SetInterval(100);
    tmrSplash->TimerEvent.connect(this, &SplashForm::tmrSplash_Timer);
}

bool SkipsSplashDelay(const QString& commandLine)
{
    return commandLine.toUpper().contains(QLatin1String("-D"));
}

void SplashForm::Form_Load()
{
    if (SkipsSplashDelay(ConsoleCommandLine))
        SkipSplashDelay = true;
    setFixedSize(imgSplash->size());
    if (const QScreen* screen = QGuiApplication::primaryScreen())
        move(screen->availableGeometry().center() - rect().center());
    Show();
    tmrSplash->SetTimerEnabled(true);
}

void SplashForm::tmrSplash_Timer()
{
    const int wait = 3;
    const double start = Clock::secondsSinceMidnight();
    BinDir = ReadRegValue(QStringLiteral("BinDir"));
    LoadAppGroups();
    LoadTransGroups();
    // spins, yielding, with no wrap at midnight: a start in the day's last seconds waits for ever
    if (!SkipSplashDelay) {
        while (Clock::secondsSinceMidnight() < start + wait)
            DoEvents();
    }
    MDIMainForm.get();
    MDIMainForm->Show();
    frmSplash.Unload();
}
