#include "timer.h"

#include "form.h"

Timer::Timer(QWidget* parent, const QString& name)
    : QObject(parent)
    , Control(this, nullptr, parent, QStringLiteral("Timer"), name)
{
    m_timer.setSingleShot(true);
    // a coarse timer may fire 5% late; a form's interval is meant as given
    m_timer.setTimerType(Qt::PreciseTimer);
    connect(&m_timer, &QTimer::timeout, this, &Timer::fire);
}

void Timer::SetInterval(int milliseconds)
{
    m_timer.setInterval(qMax(0, milliseconds));
    restart();
}

void Timer::SetTimerEnabled(bool enabled)
{
    m_enabled = enabled;
    restart();
}

void Timer::restart()
{
    if (m_enabled && m_timer.interval() > 0 && !m_running)
        m_timer.start();
    else
        m_timer.stop();
}

void Timer::fire()
{
    m_running = true;
    QPointer<Timer> guard(this);
    TimerEvent.raise();
    if (!guard)
        return;
    m_running = false;
    // a form unloaded by its own timer waits for deletion; its timer stays quiet meanwhile
    if (ParentForm() && ParentForm()->isUnloaded())
        return;
    restart();
}
