#pragma once

#include "control.h"

#include <QTimer>
#include <QWidget>

// Fires Timer every Interval milliseconds while Enabled. It never fires into its own running
// handler: a handler that yields to the queue (a wait) is not entered a second time.
class Timer : public QObject, public Control
{
    Q_OBJECT

public:
    Timer(QWidget* parent, const QString& name);

    int Interval() const { return m_timer.interval(); }
    void SetInterval(int milliseconds);
    bool TimerEnabled() const { return m_enabled; }
    void SetTimerEnabled(bool enabled);

    Event<> TimerEvent;

private:
    void restart();
    void fire();

    QTimer m_timer;
    bool m_enabled = false;
    bool m_running = false;
};
