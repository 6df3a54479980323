#pragma once

#include "event.h"

#include <QPointer>
#include <QString>

class Form;
class QObject;
class QWidget;

// What every control of a form has, under the names the console's routines use. The widget part
// comes from the Qt class each control derives from; controls without a window (timer, menu item)
// have no widget. A control registers with its form on construction, which keeps them in order for
// the localisation walk.
class Control
{
public:
    virtual ~Control();
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    QString Name() const { return m_name; }
    // "Label", "TextBox", "OptionButton", ... as the localisation walk tells controls apart
    QString TypeName() const { return m_typeName; }
    Form* ParentForm() const { return m_form; }
    QWidget* widget() const { return m_widget; }
    void detachFromForm() { m_form = nullptr; }

    QString Tag() const { return m_tag; }
    void SetTag(const QString& tag) { m_tag = tag; }

    // Controls without the property keep the text empty and ignore a new one.
    virtual bool HasCaption() const { return false; }
    virtual QString Caption() const { return QString(); }
    virtual void SetCaption(const QString&) { }
    virtual QString ToolTipText() const;
    virtual void SetToolTipText(const QString& text);
    virtual void SetFontName(const QString& family);

    bool Enabled() const;
    void SetEnabled(bool enabled);
    bool Visible() const;
    void SetVisible(bool visible);
    void SetFocus();

    // Position and size in twips, relative to the container.
    int Left() const;
    int Top() const;
    int Width() const;
    int Height() const;
    void Move(int left, int top, int width, int height);

    Event<> GotFocus;
    Event<> LostFocus;

protected:
    // widget may be null; parent is the form, a frame inside it, or for windowless controls the form
    Control(QObject* self, QWidget* widget, QObject* parent, const QString& typeName, const QString& name);

private:
    QString m_name;
    QString m_typeName;
    Form* m_form;
    QWidget* m_widget;
    QString m_tag;
    QString m_toolTip;
    bool m_enabled = true;
    bool m_visible = true;
};

// The control a widget belongs to, or null.
Control* controlOf(const QObject* object);
