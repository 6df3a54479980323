#pragma once

#include "platform/forms/form.h"
#include "platform/forms/form_ref.h"

#include <functional>

class CommandButton;

// A page: a frameless child of the frame at its design size, beside the pane.
class PageForm : public Form
{
    Q_OBJECT

public:
    explicit PageForm(const QString& name);

    void Form_KeyDown(int KeyCode, int Shift) override;

protected:
    // A page with buttons sees every key first: Enter runs its OK, Escape its Cancel, wherever the
    // focus is; and leaving Cancel by any means returns the focus to the tree.
    void UseButtonKeys(std::function<void()> ok, std::function<void()> cancel, CommandButton* cancelButton);

    // The activation every page shares, for a page whose own content is still to come:
    // localise, hide the other pages, fit, status "Ready".
    void ActivateAsEmptyPage();

private:
    std::function<void()> m_ok;
    std::function<void()> m_cancel;
};
