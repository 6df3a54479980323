#pragma once

#include "platform/event_guard.h"

#include <functional>
#include <vector>

// An event of a control or form ("Click", "Change", "LostFocus"): plain C++ callbacks, so a failure
// in a handler unwinds through the console's own frames only. raise() is for the console's code
// and for Qt's outermost level; raiseFromQt() for deliveries that come from inside Qt's frames.
template <class... Args>
class Event
{
public:
    using Handler = std::function<void(Args...)>;

    void connect(Handler handler) { m_handlers.push_back(std::move(handler)); }

    template <class Receiver, class Method>
    void connect(Receiver* receiver, Method method)
    {
        m_handlers.push_back([receiver, method](Args... args) { (receiver->*method)(args...); });
    }

    bool isConnected() const { return !m_handlers.empty(); }

    void raise(Args... args) const
    {
        if (m_handlers.empty())
            return;
        EventGuard::raise([&] { call(args...); });
    }

    void raiseFromQt(Args... args) const
    {
        if (m_handlers.empty())
            return;
        EventGuard::raiseFromQt([&] { call(args...); });
    }

private:
    void call(Args... args) const
    {
        // a handler may connect further handlers; run the ones present when the event came
        const std::vector<Handler> handlers = m_handlers;
        for (const Handler& handler : handlers)
            handler(args...);
    }

    std::vector<Handler> m_handlers;
};
