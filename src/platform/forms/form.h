#pragma once

#include "event.h"

#include <QList>
#include <QMdiSubWindow>
#include <QPointer>
#include <QWidget>

class Control;
class QMdiArea;


// A form of the console: one instance, reached through its FormRef, carrying its name as objectName.
// Pages are frameless children of the frame's QMdiArea at fixed places in twips; the frame itself,
// the splash and dialogs are windows of their own.
//
// Activation: Show and SetFocus run Form_Activate themselves, synchronously, when the form isn't
// the one last activated. A change of the active child that the user makes (QMdiArea's signal, a
// window activation) is checked once the event loop is back and counts only for another form, so
// the application regaining the focus is no activation.
class Form : public QWidget
{
    Q_OBJECT

public:
    enum class Kind { MdiChild, Window };

    explicit Form(const QString& name, Kind kind = Kind::MdiChild);
    ~Form() override;

    virtual void Form_Load() { }
    virtual void Form_Activate() { }
    virtual void Form_Unload() { }
    virtual void Form_KeyDown(int KeyCode, int Shift)
    {
        Q_UNUSED(KeyCode);
        Q_UNUSED(Shift);
    }

    QString Name() const { return m_name; }
    Kind kind() const { return m_kind; }
    QString Caption() const { return windowTitle(); }
    void SetCaption(const QString& caption);
    QString Tag() const { return m_tag; }
    void SetTag(const QString& tag) { m_tag = tag; }
    bool KeyPreview() const { return m_keyPreview; }
    void SetKeyPreview(bool on);

    void Show();
    void ShowModal();
    void Hide();
    void SetFocus();
    bool Visible() const;
    bool Enabled() const { return isEnabled(); }
    void SetEnabled(bool enabled) { setEnabled(enabled); }

    // The place on the frame, or on the screen for a window, in twips.
    int Left() const;
    int Top() const;
    int Width() const;
    int Height() const;
    void Move(int left, int top, int width, int height);

    // In the order they were created, which is the order the localisation walk visits them.
    const QList<Control*>& Controls() const { return m_controls; }
    void registerControl(Control* control);
    void unregisterControl(Control* control);

    QMdiSubWindow* subWindow() const { return m_subWindow; }
    bool isUnloaded() const { return m_unloaded; }

    // Form_Load, guarded; FormRef calls it right after creating the instance.
    void load();
    // Form_Unload, then the form gives up its name at once and goes.
    void Unload();
    // Form_Activate, guarded, remembered as the last activation.
    void activate();

    static void setMdiArea(QMdiArea* area);
    static QMdiArea* mdiArea();
    static Form* lastActivated();

protected:
    bool event(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    QMdiSubWindow* ensureSubWindow();
    QWidget* placed() const;

    QString m_name;
    Kind m_kind;
    QString m_tag;
    bool m_keyPreview = false;
    bool m_unloaded = false;
    bool m_modalRunning = false;
    QList<Control*> m_controls;
    QPointer<QMdiSubWindow> m_subWindow;
};
