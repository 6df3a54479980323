#pragma once

#include "form.h"

#include <QPointer>

// The global that bears a form's name: the first use creates the instance and runs its Form_Load;
// after Unload the next use creates a fresh one with empty controls.
template <class T>
class FormRef
{
public:
    T* operator->() { return get(); }
    T& operator*() { return *get(); }
    operator T*() { return get(); }

    T* get()
    {
        if (!m_instance || m_instance->isUnloaded()) {
            m_instance = new T;
            m_instance->load();
        }
        return m_instance;
    }

    bool IsLoaded() const { return m_instance && !m_instance->isUnloaded(); }

    void Unload()
    {
        if (IsLoaded())
            m_instance->Unload();
    }

private:
    QPointer<T> m_instance;
};
