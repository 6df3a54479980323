#include "frmSpecRun.h"

#include "platform/forms/command_button.h"
#include "platform/forms/label.h"
#include "platform/forms/list_box.h"
#include "platform/forms/text_box.h"
#include "platform/numeric.h"
#include "platform/runtime_error.h"
#include "run_entries.h"
#include "collector_window.h"
#include "servers/server_lists.h"
#include "shell/catalogue.h"
#include "shell/localize_form.h"
#include "shell/message_boxes.h"
#include "shell/navigation.h"
#include "shell/page_controls.h"
#include "shell/page_frame.h"
#include "shell/shared_state.h"
#include "special_run.h"

FormRef<SpecRunForm> frmSpecRun;

namespace {

TextBox* addEntryField(QWidget* page, const QString& name, int maxLength, int left, int top, int width)
{
    auto* field = new TextBox(page, name);
    field->SetMaxLength(maxLength);
    field->SetTag(QStringLiteral("CLEAR"));
    field->Move(left, top, width, 315);
    return field;
}

// The four move buttons carry symbols, the same in every language.
CommandButton* addMoveButton(QWidget* page, const QString& name, const QString& caption, int top)
{
    auto* button = new CommandButton(page, name);
    button->SetCaption(caption);
    button->Move(2760, top, 495, 315);
    return button;
}

} // namespace

SpecRunForm::SpecRunForm()
    : PageForm(QStringLiteral("frmSpecRun"))
{
    lblTitle = AddPageTitle(this, QStringLiteral("lblTitle"), 1136);
    imgLogo = AddPageLogo(this);
    lblStartDate = AddLabel(this, QStringLiteral("lblStartDate"), 1355, 480, 840, 2295, 255);
    txtStartDate = addEntryField(this, QStringLiteral("txtStartDate"), 8, 480, 1080, 1335);
    lblStartTime = AddLabel(this, QStringLiteral("lblStartTime"), 1356, 2880, 840, 2655, 255);
    txtStartTime = addEntryField(this, QStringLiteral("txtStartTime"), 6, 2880, 1080, 1095);
    lblEndDate = AddLabel(this, QStringLiteral("lblEndDate"), 1357, 480, 1440, 2295, 255);
    txtEndDate = addEntryField(this, QStringLiteral("txtEndDate"), 8, 480, 1680, 1335);
    lblEndTime = AddLabel(this, QStringLiteral("lblEndTime"), 1358, 2880, 1440, 2655, 255);
    txtEndTime = addEntryField(this, QStringLiteral("txtEndTime"), 6, 2880, 1680, 1095);
    lblServerSelection = AddLabel(this, QStringLiteral("lblServerSelection"), 1359, 480, 2160, 2175, 255);
    lstServers = new ListBox(this, QStringLiteral("lstServers"));
    lstServers->Move(480, 2400, 2175, 1695);
    lblSelectedServers = AddLabel(this, QStringLiteral("lblSelectedServers"), 1360, 3360, 2160, 2175, 255);
    lstSvrsToAgg = new ListBox(this, QStringLiteral("lstSvrsToAgg"));
    lstSvrsToAgg->Move(3360, 2400, 2175, 1695);
    cmdAddSvr = addMoveButton(this, QStringLiteral("cmdAddSvr"), QStringLiteral("&>"), 2520);
    cmdAddAllSvrs = addMoveButton(this, QStringLiteral("cmdAddAllSvrs"), QStringLiteral(">>"), 2880);
    cmdRemoveSvr = addMoveButton(this, QStringLiteral("cmdRemoveSvr"), QStringLiteral("<"), 3240);
    cmdRemoveAllSvrs = addMoveButton(this, QStringLiteral("cmdRemoveAllSvrs"), QStringLiteral("<<"), 3600);
    cmdOK = AddButton(this, QStringLiteral("cmdOK"), 1200, 3360, 4320, 1035, 375);
    cmdCancel = AddButton(this, QStringLiteral("cmdCancel"), 1201, 4500, 4320, 1035, 375);
    lblStatus = new Label(this, QStringLiteral("lblStatus"));
    lblStatus->Move(480, 4380, 2775, 255);
    // the access keys of the captions lead to the fields they name
    lblStartDate->setBuddy(txtStartDate);
    lblStartTime->setBuddy(txtStartTime);
    lblEndDate->setBuddy(txtEndDate);
    lblEndTime->setBuddy(txtEndTime);
    lblServerSelection->setBuddy(lstServers);
    lblSelectedServers->setBuddy(lstSvrsToAgg);

    cmdOK->Click.connect(this, &SpecRunForm::cmdOK_Click);
    cmdCancel->Click.connect(this, &SpecRunForm::cmdCancel_Click);
    cmdAddSvr->Click.connect(this, &SpecRunForm::cmdAddSvr_Click);
    cmdAddAllSvrs->Click.connect(this, &SpecRunForm::cmdAddAllSvrs_Click);
    cmdRemoveSvr->Click.connect(this, &SpecRunForm::cmdRemoveSvr_Click);
    cmdRemoveAllSvrs->Click.connect(this, &SpecRunForm::cmdRemoveAllSvrs_Click);
    lstServers->DblClick.connect(this, &SpecRunForm::moveToRun);
    lstSvrsToAgg->DblClick.connect(this, &SpecRunForm::moveBackFromRun);

    // only the first field asks whether the page stands: it gets the focus while the page loads
    txtStartDate->GotFocus.connect([this] {
        if (Visible())
            SelectFieldText(txtStartDate);
    });
    for (TextBox* field : { txtStartTime, txtEndDate, txtEndTime })
        field->GotFocus.connect([field] { SelectFieldText(field); });
    advanceWhenFull(txtStartDate, 7, txtStartTime);
    advanceWhenFull(txtStartTime, 5, txtEndDate);
    advanceWhenFull(txtEndDate, 7, txtEndTime);
    advanceWhenFull(txtEndTime, 5, lstServers);

    UseButtonKeys([this] { cmdOK_Click(); }, [this] { cmdCancel_Click(); }, cmdCancel);
}

// The test runs as the key goes down, before its character lands: the last digit still goes into
// this field and the focus then stands in the next. Any key counts, Backspace included.
void SpecRunForm::advanceWhenFull(TextBox* field, int length, Control* next)
{
    field->KeyDown.connect([field, length, next](int, int) {
        if (field->Text().size() == length)
            next->SetFocus();
    });
}

void SpecRunForm::Form_Activate()
{
    LocalizeForm(this);
    // refills the available servers, leaving out those already chosen
    LoadServerFile(Name());
    HideOtherPages(Name());
    FitPage(this);
    SetListExtent(lstServers);
    ShowStatus(1454);
}

bool SpecRunForm::ValidStartDate(TextBox* Field)
{
    return RunEntries::isValidDate(Field->Text());
}

bool SpecRunForm::ValidEndDate(TextBox* Field)
{
    return RunEntries::isValidDate(Field->Text());
}

bool SpecRunForm::ValidStartTime(TextBox* TimeField, TextBox* DateField)
{
    return RunEntries::isValidTime(TimeField->Text(), DateField->Text());
}

bool SpecRunForm::ValidEndTime(TextBox* TimeField, TextBox* DateField)
{
    return RunEntries::isValidTime(TimeField->Text(), DateField->Text());
}

bool SpecRunForm::refuse(int id, TextBox* field)
{
    ShowMessageBox(id);
    if (field)
        SelectFieldText(field);
    return false;
}

void SpecRunForm::showRunStatus(int id)
{
    LoadMsgText(id);
    lblStatus->SetCaption(MsgText);
}

// The end date is checked against the start before the end time is looked at.
bool SpecRunForm::CheckSpecRun()
{
    if (!ValidStartDate(txtStartDate))
        return refuse(1408, txtStartDate);
    if (!ValidStartTime(txtStartTime, txtStartDate))
        return refuse(1409, txtStartTime);
    if (!ValidEndDate(txtEndDate))
        return refuse(1410, txtEndDate);
    if (Numeric::toInt32(txtEndDate->Text()) < Numeric::toInt32(txtStartDate->Text()))
        return refuse(1441, txtEndDate);
    if (!ValidEndTime(txtEndTime, txtEndDate))
        return refuse(1411, txtEndTime);
    if (lstSvrsToAgg->ListCount() < 1)
        return refuse(1442, nullptr);
    if (Numeric::toInt32(txtStartTime->Text()) > Numeric::toInt32(txtEndTime->Text())
        && txtStartDate->Text() == txtEndDate->Text())
        return refuse(1443, txtEndTime);
    showRunStatus(1450);
    return true;
}

void SpecRunForm::cmdOK_Click()
{
    ShowStatus(1454);
    try {
        if (CollectorOrLoaderRunning()) {
            ShowMessageBox(1444);
            return;
        }
        showRunStatus(1450);
        if (CheckSpecRun()) {
            // the routine reports its own failures; the page cannot tell them from success
            SubmitSpecialRun(QStringLiteral("special"));
            showRunStatus(1451);
        } else {
            showRunStatus(1486);
            ShowStatus(1453);
        }
    } catch (const RuntimeError& failure) {
        ShowFailure(failure);
    }
}

void SpecRunForm::cmdCancel_Click()
{
    lstServers->Clear();
    lstSvrsToAgg->Clear();
    for (TextBox* field : { txtStartDate, txtStartTime, txtEndDate, txtEndTime })
        field->SetText(QString());
    LoadServerFile(Name());
    ShowStatus(1457);
}

void SpecRunForm::moveToRun()
{
    const QString entry = lstServers->Text();
    if (entry.isEmpty())
        return;
    lstSvrsToAgg->AddItem(entry);
    lstServers->RemoveItem(lstServers->ListIndex());
}

void SpecRunForm::moveBackFromRun()
{
    const QString entry = lstSvrsToAgg->Text();
    if (entry.isEmpty())
        return;
    lstServers->AddItem(entry);
    lstSvrsToAgg->RemoveItem(lstSvrsToAgg->ListIndex());
}

// Only this move sets the extent of the run's list; the others leave both extents alone.
void SpecRunForm::cmdAddSvr_Click()
{
    moveToRun();
    SetListExtent(lstSvrsToAgg);
}

void SpecRunForm::cmdAddAllSvrs_Click()
{
    for (int i = 0; i < lstServers->ListCount(); ++i) {
        lstServers->SetListIndex(i);
        lstSvrsToAgg->AddItem(lstServers->Text());
    }
    lstServers->Clear();
}

void SpecRunForm::cmdRemoveSvr_Click()
{
    moveBackFromRun();
}

void SpecRunForm::cmdRemoveAllSvrs_Click()
{
    for (int i = 0; i < lstSvrsToAgg->ListCount(); ++i) {
        lstSvrsToAgg->SetListIndex(i);
        lstServers->AddItem(lstSvrsToAgg->Text());
    }
    lstSvrsToAgg->Clear();
}
