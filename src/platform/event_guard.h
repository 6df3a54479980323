#pragma once

#include <QString>

#include <exception>
#include <functional>

// Every event entry point runs inside the guard. A failure that no routine handled ends up here:
// the outermost entry shows "Run-time error 'N': Description" under the product title and ends the
// console with exit status 1. Inside an event that another event raised (a handler setting
// ListIndex raises Click), a failure travels on to the caller's handler, which may have a failure
// path of its own. Nothing ever unwinds through Qt's frames or its event loop.
namespace EventGuard {

// Runs an event raised by the console's own code, or by Qt at the outermost level.
void raise(const std::function<void()>& handler);

// Runs an event that Qt delivered from inside its own frames (a signal, an event filter). A failure
// here can't unwind through Qt: when an outer handler is running it is handed to that handler once
// Qt has returned, otherwise it ends the console.
void raiseFromQt(const std::function<void()>& handler);

// Rethrows a failure parked by raiseFromQt while this level was running.
void rethrowParked();

// True while some event handler runs.
bool inHandler();

// The title of the last box; the shell installs the catalogue's product title.
void setProductTitleSource(std::function<QString()> source);
QString productTitle();

// How the console ends: at once, with the status given. A test replaces it to observe the end;
// with a replacement installed the calls below return and the console carries on.
void setTerminateHandler(std::function<void(int exitStatus)> handler);
void terminateConsole(int exitStatus);

// Shows the box for a failure nobody handled and ends the console.
void failFatally(const std::exception_ptr& failure);

// Text of the last box for a failure.
QString fatalText(const std::exception_ptr& failure);

// A nested event loop (a modal box, a yield to the queue) starts a fresh outermost level: events
// it delivers must not unwind into the loop.
class EventLoopBoundary
{
public:
    EventLoopBoundary();
    ~EventLoopBoundary();
    EventLoopBoundary(const EventLoopBoundary&) = delete;
    EventLoopBoundary& operator=(const EventLoopBoundary&) = delete;

private:
    int m_savedDepth;
    std::exception_ptr m_savedParked;
};

} // namespace EventGuard
