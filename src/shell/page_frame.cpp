#include "page_frame.h"

#include "catalogue.h"
#include "frmTreeView.h"
#include "main_status_bar.h"
#include "MDIMainForm.h"
#include "platform/forms/combo_box.h"
#include "platform/forms/do_events.h"
#include "platform/forms/label.h"
#include "platform/forms/list_box.h"
#include "platform/forms/text_box.h"
#include "shared_state.h"

#include <QApplication>
#include <QFontMetrics>

void FitPage(Form* Page)
{
    using namespace PageFrame;
    if (Page->kind() == Form::Kind::MdiChild) {
        const int width = MDIMainForm->Width() - FrameDesignWidth + PageBaseWidth;
        Page->Move(PaneWidth, frmTreeView->Top(), width > PageBaseWidth ? width : Page->Width(), Page->Height());
    }
    frmTreeView->Move(frmTreeView->Left(), frmTreeView->Top(), PaneWidth, PaneHeight);
}

void ClearTaggedFields(Form* Page)
{
    const QList<Control*> controls = Page->Controls();
    for (Control* control : controls) {
        if (control->Tag() != QLatin1String("CLEAR"))
            continue;
        if (auto* text = dynamic_cast<TextBox*>(control))
            text->SetText(QString());
        else if (auto* combo = dynamic_cast<ComboBox*>(control))
            combo->SetText(QString());
        else if (auto* label = dynamic_cast<Label*>(control))
            label->SetCaption(QString());
    }
}

void SelectFieldText(TextBox* Field)
{
    Field->SetSelStart(0);
    Field->SetSelLength(int(Field->Text().size()));
    Field->SetFocus();
    DoEvents();
}

void SetListExtent(ListBox* List)
{
    int longest = 0;
    QString longestText;
    for (int i = 0; i < List->ListCount(); ++i) {
        const QString item = List->List(i);
        LastStringLength = qint32(item.size());
        if (LastStringLength > longest) {
            longest = LastStringLength;
            longestText = item;
        }
    }
    if (longest > 0)
        List->SetHorizontalExtent(QFontMetrics(QApplication::font()).horizontalAdvance(longestText));
}

void ShowStatus(int id)
{
    LoadMsgText(id);
    ShowStatusText(MsgText);
}
