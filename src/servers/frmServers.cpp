#include "frmServers.h"

#include "frmAddServers.h"
#include "frmGetServerFile.h"
#include "platform/forms/check_box.h"
#include "platform/forms/command_button.h"
#include "platform/forms/frame.h"
#include "platform/forms/hourglass.h"
#include "platform/forms/label.h"
#include "platform/forms/list_box.h"
#include "platform/forms/text_box.h"
#include "platform/runtime_error.h"
#include "platform/text.h"
#include "server_file.h"
#include "server_lists.h"
#include "server_record.h"
#include "settings/registry_values.h"
#include "shell/catalogue.h"
#include "shell/frmTreeView.h"
#include "shell/localize_form.h"
#include "shell/main_status_bar.h"
#include "shell/navigation.h"
#include "shell/page_controls.h"
#include "shell/page_frame.h"
#include "shell/shared_state.h"
#include "specialrun/frmSpecRun.h"

FormRef<ServersForm> frmServers;

namespace {
const QString StatiInput = QStringLiteral("StatiInput");
const QString SnapInput = QStringLiteral("SnapInput");
} // namespace

ServersForm::ServersForm()
    : PageForm(QStringLiteral("frmServers"))
{
    imgLogo = AddPageLogo(this);
    lblTitle = AddPageTitle(this, QStringLiteral("lblTitle"), 1341);
    lblInstructions = AddLabel(this, QStringLiteral("lblInstructions"), 1342, 360, 780, 4335, 675);
    lblListLabel = AddLabel(this, QStringLiteral("lblListLabel"), 1343, 360, 1500, 3855, 255);
    lstServer = new ListBox(this, QStringLiteral("lstServer"));
    lstServer->Move(360, 1785, 3855, 1530);
    // the label's "&R" reaches the list
    lblListLabel->setBuddy(lstServer);
    cmdCreate = AddButton(this, QStringLiteral("cmdCreate"), 1202, 4335, 1785, 1215, 375);
    cmdEdit = AddButton(this, QStringLiteral("cmdEdit"), 1203, 4335, 2250, 1215, 375);
    cmdDelete = AddButton(this, QStringLiteral("cmdDelete"), 1204, 4335, 2715, 1215, 375);
    frmSelectFile = new Frame(this, QStringLiteral("frmSelectFile"));
    frmSelectFile->SetTag(QStringLiteral("1507"));
    frmSelectFile->Move(360, 3420, 5190, 900);
    chkNetwork = new CheckBox(frmSelectFile, QStringLiteral("chkNetwork"));
    chkNetwork->SetTag(QStringLiteral("1507"));
    chkNetwork->Move(120, 270, 4950, 255);
    lblFilePath = new Label(frmSelectFile, QStringLiteral("lblFilePath"));
    lblFilePath->Move(120, 570, 4950, 255);
    cmdOK = AddButton(this, QStringLiteral("cmdOK"), 1200, 3000, 4440, 1215, 375);
    cmdCancel = AddButton(this, QStringLiteral("cmdCancel"), 1201, 4335, 4440, 1215, 375);

    lstServer->Click.connect(this, &ServersForm::lstServer_Click);
    cmdCreate->Click.connect(this, &ServersForm::cmdCreate_Click);
    cmdEdit->Click.connect(this, &ServersForm::cmdEdit_Click);
    cmdDelete->Click.connect(this, &ServersForm::cmdDelete_Click);
    chkNetwork->Click.connect(this, &ServersForm::chkNetwork_Click);
    cmdOK->Click.connect(this, &ServersForm::cmdOK_Click);
    cmdCancel->Click.connect(this, &ServersForm::cmdCancel_Click);
    UseButtonKeys([this] { cmdOK_Click(); }, [this] { cmdCancel_Click(); }, cmdCancel);
}

void ServersForm::Form_Load()
{
    if (lstServer->ListCount() < 1)
        LoadServerFile(Name());
}

// This page places itself beside the pane and keeps its width: no FitPage.
void ServersForm::Form_Activate()
{
    LocalizeForm(this);
    Move(PageFrame::PaneWidth, frmTreeView->Top(), Width(), Height());
    lstServer->Clear();
    FillServerList(Name());
    HideOtherPages(Name());
    chkNetwork->SetValue(0);
    lblFilePath->SetCaption(ServerFilePath.isEmpty() ? ReadRegValue(StatiInput) : ServerFilePath);
    LoadMsgText(1454);
    SetListExtent(lstServer);
    ShowStatusText(MsgText);
}

void ServersForm::lstServer_Click()
{
    frmAddServers->txtIndex->SetText(QString::number(lstServer->ListIndex() + 1));
}

void ServersForm::cmdCreate_Click()
{
    frmAddServers->txtIndex->SetText(QString());
    frmAddServers->Show();
}

// The editor reads txtIndex when it comes to the front; the click on the row has set it already.
void ServersForm::cmdEdit_Click()
{
    if (lstServer->ListIndex() < 0)
        return;
    frmAddServers->Show();
    frmAddServers->txtIndex->SetText(QString::number(lstServer->ListIndex() + 1));
}

// Memory only. Every row with the deleted entry goes, but the count falls by one: two rows that
// share an entry leave an empty row at the end. An entry that no row has (a record without an
// instance) leaves one row too many for the new count, a failure that ends the console.
void ServersForm::cmdDelete_Click()
{
    if (lstServer->ListIndex() < 0)
        return;
    Hourglass::set(true);
    const QString deleted = Text::Trim(lstServer->Text());
    lstServer->RemoveItem(lstServer->ListIndex());
    try {
        TextTable kept;
        kept.redim(ServerCount - 1, ServerColumn::Last);
        int next = 1;
        for (int row = 1; row <= ServerCount; ++row) {
            if (ServerRowEntry(ServerTable, row) != deleted)
                PutRecordInRow(RecordFromRow(ServerTable, row), kept, next++);
        }
        --ServerCount;
        ServerTable.redim(ServerCount, ServerColumn::Last);
        for (int row = 1; row <= ServerCount; ++row)
            PutRecordInRow(RecordFromRow(kept, row), ServerTable, row);
    } catch (RuntimeError& error) {
        error.Context
            = QStringLiteral("Deleting \"%1\" from the server list failed: %2.\nThe server file was not changed.")
                  .arg(deleted, error.Context);
        throw;
    }
    Hourglass::set(false);
}

void ServersForm::chkNetwork_Click()
{
    // ServerListOrigin is only ever empty: ticking the box always opens the location page
    if (chkNetwork->Value() == 1 && ServerListOrigin != QLatin1String("frmServers.activate")) {
        frmGetServerFile->Show();
        return;
    }
    ServerListOrigin.clear();
    lstServer->Clear();
    LoadServerFile(Name());
    ShowStatus(1455);
}

// No failure path: a failure of the save ends the console, its box telling what is left on disk.
void ServersForm::cmdOK_Click()
{
    const QString location = ServerFilePath.isEmpty() ? DefaultServerFilePath() : ServerFilePath;
    WriteRegValue(StatiInput, location);
    WriteRegValue(SnapInput, location);
    QStringList entries;
    entries.reserve(lstServer->ListCount());
    for (int i = 0; i < lstServer->ListCount(); ++i)
        entries << Text::Trim(lstServer->List(i));
    SaveServerFile(ReadRegValue(StatiInput), RowsForEntries(entries));
    if (!frmSpecRun->lstServers->Text().isEmpty()) {
        frmSpecRun->lstServers->Clear();
        LoadServerFile(QStringLiteral("frmSpecRun"));
    }
    lstServer->Clear();
    LoadServerFile(Name());
    ShowStatus(1455);
}

void ServersForm::cmdCancel_Click()
{
    ServerFilePath.clear();
    ClearTaggedFields(this);
    lstServer->Clear();
    LoadServerFile(Name());
    chkNetwork->SetValue(0);
    ServerFilePath.clear();
    lblFilePath->SetCaption(ReadRegValue(StatiInput));
    ShowStatus(1457);
}
