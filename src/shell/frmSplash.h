#pragma once

#include "platform/forms/form.h"
#include "platform/forms/form_ref.h"

class Image;
class Timer;

// The start-up form: holds the splash for three seconds while the groups are read, then hands
// over to the frame.
class SplashForm : public Form
{
    Q_OBJECT

public:
    SplashForm();

    void Form_Load() override;
    void tmrSplash_Timer();

    Image* imgSplash;
    Timer* tmrSplash;

private:
    bool SkipSplashDelay = false;
};

extern FormRef<SplashForm> frmSplash;

// The console's command line, as StartConsole was given it.
extern QString ConsoleCommandLine;

// "-D" anywhere in the command line, in any case, even inside a longer word, skips the wait.
bool SkipsSplashDelay(const QString& commandLine);
