#pragma once

#include "control.h"

#include <QAction>
#include <QWidget>

// An item of the frame's menu, named like "mnuExit"; its design-time caption is a catalogue id.
class MenuItem : public QAction, public Control
{
    Q_OBJECT

public:
    MenuItem(QWidget* parent, const QString& name, const QString& caption = QString());

    bool HasCaption() const override { return true; }
    QString Caption() const override { return text(); }
    void SetCaption(const QString& caption) override { setText(caption); }
    bool Checked() const { return isChecked(); }
    void SetChecked(bool checked);
    bool ItemEnabled() const { return isEnabled(); }
    void SetItemEnabled(bool enabled) { setEnabled(enabled); }

    Event<> Click;

private:
    bool m_checked = false;
};
