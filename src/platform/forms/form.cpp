#include "form.h"

#include "control.h"
#include "key_preview.h"
#include "twips.h"

#include <QApplication>
#include <QCloseEvent>
#include <QEventLoop>
#include <QMdiArea>
#include <QMdiSubWindow>

namespace {

QPointer<QMdiArea> theMdiArea;
QPointer<Form> lastActivatedForm;
// While Show or SetFocus switch the active child themselves, the area's signal is theirs.
int ownSwitches = 0;

struct OwnSwitch {
    OwnSwitch() { ++ownSwitches; }
    ~OwnSwitch() { --ownSwitches; }
};

// The user's own change of the active form, checked once the event loop is back.
void activationArrived(QObject* context, QWidget* window)
{
    QPointer<QWidget> guard(window);
    QMetaObject::invokeMethod(
        context,
        [guard] {
            if (!guard)
                return;
            Form* form = qobject_cast<Form*>(guard);
            if (auto* sub = qobject_cast<QMdiSubWindow*>(guard.data())) {
                if (!theMdiArea || theMdiArea->activeSubWindow() != sub)
                    return;
                form = qobject_cast<Form*>(sub->widget());
            } else if (form && !form->isActiveWindow()) {
                return;
            }
            if (form && form != lastActivatedForm && !form->isUnloaded() && form->isVisible())
                form->activate();
        },
        Qt::QueuedConnection);
}

} // namespace

Form::Form(const QString& name, Kind kind)
    : m_name(name)
    , m_kind(kind)
{
    setObjectName(name);
}

Form::~Form()
{
    // the controls go with the QWidget part, after this part is gone
    for (Control* control : std::as_const(m_controls))
        control->detachFromForm();
    if (lastActivatedForm == this)
        lastActivatedForm = nullptr;
}

void Form::SetCaption(const QString& caption)
{
    setWindowTitle(caption);
}

void Form::SetKeyPreview(bool on)
{
    m_keyPreview = on;
    if (on)
        KeyPreview::install();
}

void Form::registerControl(Control* control)
{
    m_controls.append(control);
}

void Form::unregisterControl(Control* control)
{
    m_controls.removeOne(control);
}

void Form::setMdiArea(QMdiArea* area)
{
    if (theMdiArea == area)
        return;
    theMdiArea = area;
    if (!area)
        return;
    QObject::connect(area, &QMdiArea::subWindowActivated, area, [area](QMdiSubWindow* sub) {
        if (sub && ownSwitches == 0)
            activationArrived(area, sub);
    });
}

QMdiArea* Form::mdiArea()
{
    return theMdiArea;
}

Form* Form::lastActivated()
{
    return lastActivatedForm;
}

QMdiSubWindow* Form::ensureSubWindow()
{
    if (m_subWindow || m_kind != Kind::MdiChild || !theMdiArea)
        return m_subWindow;
    const QRect place = geometry();
    OwnSwitch own;
    m_subWindow = theMdiArea->addSubWindow(this, Qt::FramelessWindowHint);
    // hidden pages stay loaded: closing a child must not delete the form
    m_subWindow->setAttribute(Qt::WA_DeleteOnClose, false);
    m_subWindow->setGeometry(place);
    return m_subWindow;
}

QWidget* Form::placed() const
{
    if (m_subWindow)
        return m_subWindow;
    return const_cast<Form*>(this);
}

void Form::load()
{
    EventGuard::raise([this] { Form_Load(); });
}

void Form::activate()
{
    lastActivatedForm = this;
    EventGuard::raise([this] { Form_Activate(); });
}

void Form::Show()
{
    if (m_unloaded)
        return;
    if (QMdiSubWindow* sub = ensureSubWindow()) {
        {
            OwnSwitch own;
            QWidget::show();
            sub->show();
            sub->raise();
            theMdiArea->setActiveSubWindow(sub);
        }
    } else {
        QWidget::show();
        raise();
        activateWindow();
    }
    if (lastActivatedForm != this)
        activate();
}

void Form::ShowModal()
{
    if (m_unloaded || m_modalRunning)
        return;
    m_modalRunning = true;
    setWindowModality(Qt::ApplicationModal);
    Show();
    QPointer<Form> guard(this);
    {
        EventGuard::EventLoopBoundary boundary;
        QEventLoop loop;
        while (guard && !guard->isUnloaded() && guard->isVisible())
            loop.processEvents(QEventLoop::WaitForMoreEvents);
    }
    if (guard) {
        m_modalRunning = false;
        setWindowModality(Qt::NonModal);
    }
}

void Form::Hide()
{
    if (lastActivatedForm == this)
        lastActivatedForm = nullptr;
    OwnSwitch own;
    if (m_subWindow)
        m_subWindow->hide();
    QWidget::hide();
}

void Form::SetFocus()
{
    if (QMdiSubWindow* sub = m_subWindow) {
        OwnSwitch own;
        theMdiArea->setActiveSubWindow(sub);
    } else {
        activateWindow();
    }
    // the focus goes where it was in the form last, else to the first control that takes it
    QWidget* target = focusWidget();
    if (!target || !isAncestorOf(target) || !target->isEnabled()) {
        target = nullptr;
        for (QWidget* child : findChildren<QWidget*>()) {
            if ((child->focusPolicy() & Qt::TabFocus) && child->isEnabled() && !child->isHidden()) {
                target = child;
                break;
            }
        }
    }
    (target ? target : static_cast<QWidget*>(this))->setFocus(Qt::OtherFocusReason);
    if (lastActivatedForm != this)
        activate();
}

bool Form::Visible() const
{
    return isVisible();
}

int Form::Left() const
{
    return Twips::fromPixels(placed()->x());
}

int Form::Top() const
{
    return Twips::fromPixels(placed()->y());
}

int Form::Width() const
{
    return Twips::fromPixels(placed()->width());
}

int Form::Height() const
{
    return Twips::fromPixels(placed()->height());
}

void Form::Move(int left, int top, int width, int height)
{
    const QRect place(Twips::toPixels(left), Twips::toPixels(top), Twips::toPixels(width), Twips::toPixels(height));
    if (m_subWindow) {
        m_subWindow->setGeometry(place);
    } else {
        setGeometry(place);
    }
}

void Form::Unload()
{
    if (m_unloaded)
        return;
    EventGuard::raise([this] { Form_Unload(); });
    m_unloaded = true;
    // the name goes at once: a form waiting for deleteLater must not be found
    setObjectName(QString());
    for (QObject* child : findChildren<QObject*>())
        child->setObjectName(QString());
    if (lastActivatedForm == this)
        lastActivatedForm = nullptr;
    OwnSwitch own;
    hide();
    if (m_subWindow) {
        m_subWindow->hide();
        m_subWindow->deleteLater();
    } else {
        deleteLater();
    }
}

bool Form::event(QEvent* event)
{
    if (event->type() == QEvent::WindowActivate && m_kind == Kind::Window && ownSwitches == 0)
        activationArrived(this, this);
    return QWidget::event(event);
}

void Form::closeEvent(QCloseEvent* event)
{
    // the close box of a window unloads it; the form decides what that means
    event->ignore();
    QPointer<Form> guard(this);
    EventGuard::raiseFromQt([guard] {
        if (guard)
            guard->Unload();
    });
}
