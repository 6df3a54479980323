#include "event_guard.h"

#include "forms/msg_box.h"
#include "runtime_error.h"

#include <QCoreApplication>

#include <cstdio>
#include <new>
#include <unistd.h>

namespace EventGuard {
namespace {

int depth = 0;
std::exception_ptr parked;

std::function<QString()>& titleSource()
{
    static std::function<QString()> source;
    return source;
}

std::function<void(int)>& terminateHandler()
{
    static std::function<void(int)> handler;
    return handler;
}

struct DepthScope {
    DepthScope() { ++depth; }
    ~DepthScope() { --depth; }
};

// One level deeper; a failure Qt parked meanwhile comes out when the handler is done.
void runOneLevel(const std::function<void()>& handler)
{
    DepthScope scope;
    handler();
    rethrowParked();
}

} // namespace

bool inHandler()
{
    return depth > 0;
}

void raise(const std::function<void()>& handler)
{
    if (depth > 0) {
        runOneLevel(handler);
        return;
    }
    try {
        runOneLevel(handler);
    } catch (...) {
        failFatally(std::current_exception());
    }
}

void raiseFromQt(const std::function<void()>& handler)
{
    if (depth == 0) {
        raise(handler);
        return;
    }
    try {
        runOneLevel(handler);
    } catch (...) {
        if (!parked)
            parked = std::current_exception();
    }
}

void rethrowParked()
{
    if (parked) {
        std::exception_ptr failure = parked;
        parked = nullptr;
        std::rethrow_exception(failure);
    }
}

void setProductTitleSource(std::function<QString()> source)
{
    titleSource() = std::move(source);
}

QString productTitle()
{
    if (titleSource())
        return titleSource()();
    return QCoreApplication::applicationName();
}

void setTerminateHandler(std::function<void(int)> handler)
{
    terminateHandler() = std::move(handler);
}

void terminateConsole(int exitStatus)
{
    if (terminateHandler()) {
        terminateHandler()(exitStatus);
        return;
    }
    std::fflush(nullptr);
    // at once: no page is asked, nothing is written, no destructor touches a half-gone form
    ::_exit(exitStatus);
}

QString fatalText(const std::exception_ptr& failure)
{
    int number = 51;
    QString description = QStringLiteral("Internal error");
    QString context;
    try {
        std::rethrow_exception(failure);
    } catch (const RuntimeError& error) {
        number = error.Number;
        description = error.Description;
        context = error.Context;
    } catch (const std::bad_alloc&) {
        number = 7;
        description = QStringLiteral("Out of memory");
    } catch (const std::exception& error) {
        context = QString::fromLocal8Bit(error.what());
    } catch (...) {
    }
    QString text = QStringLiteral("Run-time error '%1': %2").arg(number).arg(description);
    if (!context.isEmpty())
        text += QStringLiteral("\n\n") + context;
    return text;
}

void failFatally(const std::exception_ptr& failure)
{
    const QString text = fatalText(failure);
    std::fprintf(stderr, "qd7console: %s\n", qPrintable(text));
    try {
        EventLoopBoundary boundary;
        MsgBox(text, MsgBoxFlags::Critical, productTitle());
    } catch (...) {
        // the console ends in any case
    }
    terminateConsole(1);
}

EventLoopBoundary::EventLoopBoundary()
    : m_savedDepth(depth)
    , m_savedParked(parked)
{
    depth = 0;
    parked = nullptr;
}

EventLoopBoundary::~EventLoopBoundary()
{
    depth = m_savedDepth;
    if (!parked)
        parked = m_savedParked;
}

} // namespace EventGuard
