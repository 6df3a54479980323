#include "page_form.h"

#include "localize_form.h"
#include "navigation.h"
#include "page_frame.h"
#include "frmTreeView.h"
#include "platform/forms/command_button.h"

PageForm::PageForm(const QString& name)
    : Form(name, Kind::MdiChild)
{
    Move(PageFrame::PaneWidth, 0, PageFrame::PageDesignWidth, PageFrame::PageDesignHeight);
}

void PageForm::ActivateAsEmptyPage()
{
    LocalizeForm(this);
    HideOtherPages(Name());
    FitPage(this);
    ShowStatus(1454);
}

void PageForm::UseButtonKeys(std::function<void()> ok, std::function<void()> cancel, CommandButton* cancelButton)
{
    m_ok = std::move(ok);
    m_cancel = std::move(cancel);
    SetKeyPreview(true);
    cancelButton->LostFocus.connect([] { frmTreeView->SetFocus(); });
}

void PageForm::Form_KeyDown(int KeyCode, int Shift)
{
    Q_UNUSED(Shift);
    if (KeyCode == 13 && m_ok)
        m_ok();
    else if (KeyCode == 27 && m_cancel)
        m_cancel();
}
