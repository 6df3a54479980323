#include "key_preview.h"

#include "form.h"

#include <QApplication>
#include <QKeyEvent>

namespace {

// The form a widget is on; a box or dialog of the form's own is a window apart and doesn't count.
Form* enclosingForm(QWidget* widget)
{
    for (QWidget* w = widget; w; w = w->isWindow() ? nullptr : w->parentWidget()) {
        if (auto* form = qobject_cast<Form*>(w))
            return form;
    }
    return nullptr;
}

class KeyPreviewFilter : public QObject
{
public:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::KeyRelease) {
            m_pressed = nullptr;
            return false;
        }
        if (event->type() != QEvent::KeyPress || !watched->isWidgetType())
            return false;
        // a key a control ignores travels on to its parents: it is still the same key
        const auto* key = static_cast<QKeyEvent*>(event);
        if (key == m_pressed && key->key() == m_pressedKey)
            return false;
        m_pressed = key;
        m_pressedKey = key->key();

        QPointer<Form> form = enclosingForm(static_cast<QWidget*>(watched));
        if (!form || !form->KeyPreview() || form->isUnloaded())
            return false;
        const int code = KeyPreview::keyCode(key);
        if (code == 0)
            return false;
        const int shift = KeyPreview::shiftMask(key);
        EventGuard::raiseFromQt([form, code, shift] {
            if (form)
                form->Form_KeyDown(code, shift);
        });
        // a form that went away with the key takes the key with it
        return !form || form->isUnloaded();
    }

private:
    const QKeyEvent* m_pressed = nullptr;
    int m_pressedKey = 0;
};

} // namespace

namespace KeyPreview {

void install()
{
    static KeyPreviewFilter* filter = nullptr;
    if (filter || !qApp)
        return;
    filter = new KeyPreviewFilter;
    filter->setParent(qApp);
    qApp->installEventFilter(filter);
}

int keyCode(const QKeyEvent* event)
{
    const int key = event->key();
    if (key >= Qt::Key_A && key <= Qt::Key_Z)
        return key;
    if (key >= Qt::Key_0 && key <= Qt::Key_9)
        return key;
    if (key >= Qt::Key_F1 && key <= Qt::Key_F24)
        return 112 + (key - Qt::Key_F1);
    switch (key) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return 13;
    case Qt::Key_Escape:
        return 27;
    case Qt::Key_Backspace:
        return 8;
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
        return 9;
    case Qt::Key_Space:
        return 32;
    case Qt::Key_PageUp:
        return 33;
    case Qt::Key_PageDown:
        return 34;
    case Qt::Key_End:
        return 35;
    case Qt::Key_Home:
        return 36;
    case Qt::Key_Left:
        return 37;
    case Qt::Key_Up:
        return 38;
    case Qt::Key_Right:
        return 39;
    case Qt::Key_Down:
        return 40;
    case Qt::Key_Insert:
        return 45;
    case Qt::Key_Delete:
        return 46;
    case Qt::Key_Shift:
        return 16;
    case Qt::Key_Control:
        return 17;
    case Qt::Key_Alt:
        return 18;
    default:
        return 0;
    }
}

int shiftMask(const QKeyEvent* event)
{
    return shiftMask(event->modifiers());
}

int shiftMask(Qt::KeyboardModifiers modifiers)
{
    int mask = 0;
    if (modifiers & Qt::ShiftModifier)
        mask |= 1;
    if (modifiers & Qt::ControlModifier)
        mask |= 2;
    if (modifiers & Qt::AltModifier)
        mask |= 4;
    return mask;
}

} // namespace KeyPreview
