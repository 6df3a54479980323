#include "menu_item.h"

#include <QSignalBlocker>

MenuItem::MenuItem(QWidget* parent, const QString& name, const QString& caption)
    : QAction(caption, parent)
    , Control(this, nullptr, parent, QStringLiteral("Menu"), name)
{
    connect(this, &QAction::triggered, this, [this] {
        // the check mark is the handler's to set, not the click's
        if (isCheckable() && isChecked() != m_checked) {
            const QSignalBlocker blocker(this);
            setChecked(m_checked);
        }
        Click.raiseFromQt();
    });
}

void MenuItem::SetChecked(bool checked)
{
    const QSignalBlocker blocker(this);
    m_checked = checked;
    setCheckable(true);
    setChecked(checked);
}
