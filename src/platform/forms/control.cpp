#include "control.h"

#include "form.h"
#include "twips.h"

#include <QEvent>
#include <QFocusEvent>
#include <QWidget>

namespace {

constexpr char ControlProperty[] = "qd7Control";

// Focus changes come from inside Qt (setFocus, a click); like the classic forms, GotFocus and
// LostFocus arrive once the running handler is done, so they are posted, never nested.
class FocusWatcher : public QObject
{
public:
    static FocusWatcher* instance()
    {
        static FocusWatcher* watcher = new FocusWatcher;
        return watcher;
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() != QEvent::FocusIn && event->type() != QEvent::FocusOut)
            return false;
        const auto reason = static_cast<QFocusEvent*>(event)->reason();
        // the application losing or regaining the focus, or a popup, is no move between controls
        if (reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason)
            return false;
        const bool in = event->type() == QEvent::FocusIn;
        QPointer<QObject> guard(watched);
        QMetaObject::invokeMethod(
            this,
            [guard, in] {
                Control* control = guard ? controlOf(guard) : nullptr;
                if (!control)
                    return;
                // a GotFocus the focus has already left behind is dropped: its handler would take
                // the focus back, and two such fields would pull it to and fro for ever
                auto* widget = qobject_cast<QWidget*>(guard.data());
                if (in && widget && !widget->hasFocus())
                    return;
                if (in)
                    control->GotFocus.raise();
                else
                    control->LostFocus.raise();
            },
            Qt::QueuedConnection);
        return false;
    }
};

Form* enclosingForm(QObject* object)
{
    for (QObject* o = object; o; o = o->parent()) {
        if (auto* form = qobject_cast<Form*>(o))
            return form;
    }
    return nullptr;
}

} // namespace

Control::Control(QObject* self, QWidget* widget, QObject* parent, const QString& typeName, const QString& name)
    : m_name(name)
    , m_typeName(typeName)
    , m_form(enclosingForm(parent))
    , m_widget(widget)
{
    self->setObjectName(name);
    self->setProperty(ControlProperty, QVariant::fromValue(static_cast<void*>(this)));
    if (m_widget)
        m_widget->installEventFilter(FocusWatcher::instance());
    if (m_form)
        m_form->registerControl(this);
}

Control::~Control()
{
    if (m_form)
        m_form->unregisterControl(this);
}

Control* controlOf(const QObject* object)
{
    if (!object)
        return nullptr;
    return static_cast<Control*>(object->property(ControlProperty).value<void*>());
}

QString Control::ToolTipText() const
{
    return m_widget ? m_widget->toolTip() : m_toolTip;
}

void Control::SetToolTipText(const QString& text)
{
    if (m_widget)
        m_widget->setToolTip(text);
    else
        m_toolTip = text;
}

void Control::SetFontName(const QString& family)
{
    if (!m_widget)
        return;
    QFont font = m_widget->font();
    // a font set again still costs a round of font-change events; each activation asks for it
    if ((font.resolveMask() & QFont::FamilyResolved) && font.family() == family)
        return;
    font.setFamily(family);
    m_widget->setFont(font);
}

bool Control::Enabled() const
{
    return m_widget ? m_widget->isEnabled() : m_enabled;
}

void Control::SetEnabled(bool enabled)
{
    m_enabled = enabled;
    if (m_widget)
        m_widget->setEnabled(enabled);
}

// The property, not the effective visibility: a control of a hidden form is still Visible.
bool Control::Visible() const
{
    if (!m_widget)
        return m_visible;
    return !(m_widget->testAttribute(Qt::WA_WState_ExplicitShowHide) && m_widget->testAttribute(Qt::WA_WState_Hidden));
}

void Control::SetVisible(bool visible)
{
    m_visible = visible;
    if (m_widget)
        m_widget->setVisible(visible);
}

void Control::SetFocus()
{
    if (m_widget)
        m_widget->setFocus(Qt::OtherFocusReason);
}

int Control::Left() const
{
    return m_widget ? Twips::fromPixels(m_widget->x()) : 0;
}

int Control::Top() const
{
    return m_widget ? Twips::fromPixels(m_widget->y()) : 0;
}

int Control::Width() const
{
    return m_widget ? Twips::fromPixels(m_widget->width()) : 0;
}

int Control::Height() const
{
    return m_widget ? Twips::fromPixels(m_widget->height()) : 0;
}

void Control::Move(int left, int top, int width, int height)
{
    if (m_widget)
        m_widget->setGeometry(Twips::toPixels(left), Twips::toPixels(top), Twips::toPixels(width),
            Twips::toPixels(height));
}
