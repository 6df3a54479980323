#include "frmGetServerFile.h"

#include "frmServers.h"
#include "platform/forms/check_box.h"
#include "platform/forms/command_button.h"
#include "platform/forms/file_pickers.h"
#include "platform/forms/label.h"
#include "platform/forms/list_box.h"
#include "platform/forms/text_box.h"
#include "platform/text.h"
#include "server_lists.h"
#include "shell/localize_form.h"
#include "shell/navigation.h"
#include "shell/page_controls.h"
#include "shell/message_boxes.h"
#include "shell/page_frame.h"
#include "shell/shared_state.h"

FormRef<GetServerFileForm> frmGetServerFile;

GetServerFileForm::GetServerFileForm()
    : PageForm(QStringLiteral("frmGetServerFile"))
{
    imgLogo = AddPageLogo(this);
    lblTitle = AddPageTitle(this, QStringLiteral("lblTitle"), 1505);
    lblUserID = AddLabel(this, QStringLiteral("lblUserID"), 1506, 360, 900, 4335, 255);
    lblDrive = AddLabel(this, QStringLiteral("lblDrive"), 1509, 360, 1260, 2535, 255);
    drvDriveList = new DriveListBox(this, QStringLiteral("drvDriveList"));
    drvDriveList->Move(360, 1515, 2535, 315);
    lblFolder = AddLabel(this, QStringLiteral("lblFolder"), 1510, 360, 1920, 2535, 255);
    dirDirList = new DirListBox(this, QStringLiteral("dirDirList"));
    dirDirList->Move(360, 2175, 2535, 2115);
    lblFile = AddLabel(this, QStringLiteral("lblFile"), 1511, 3060, 1920, 2475, 255);
    fileFileList = new FileListBox(this, QStringLiteral("fileFileList"));
    fileFileList->SetPattern(QStringLiteral("qd7server.dat"));
    fileFileList->Move(3060, 2175, 2475, 2115);
    txtIndex = new TextBox(this, QStringLiteral("txtIndex"));
    txtIndex->SetVisible(false);
    cmdOK = AddButton(this, QStringLiteral("cmdOK"), 1200, 3000, 4440, 1215, 375);
    cmdCancel = AddButton(this, QStringLiteral("cmdCancel"), 1201, 4335, 4440, 1215, 375);

    drvDriveList->Change.connect(this, &GetServerFileForm::drvDriveList_Change);
    dirDirList->Change.connect(this, &GetServerFileForm::dirDirList_Change);
    cmdOK->Click.connect(this, &GetServerFileForm::cmdOK_Click);
    cmdCancel->Click.connect(this, &GetServerFileForm::cmdCancel_Click);
    UseButtonKeys([this] { cmdOK_Click(); }, [this] { cmdCancel_Click(); }, cmdCancel);
}

// The drive is the first character of BinDir: "/" on Linux, the one root.
void GetServerFileForm::Form_Activate()
{
    LocalizeForm(this);
    HideOtherPages(Name());
    FitPage(this);
    drvDriveList->SetDrive(Text::Left(BinDir, 1));
    dirDirList->SetPath(BinDir);
}

void GetServerFileForm::drvDriveList_Change()
{
    dirDirList->SetPath(drvDriveList->Drive());
}

void GetServerFileForm::dirDirList_Change()
{
    fileFileList->SetPath(dirDirList->Path());
}

void GetServerFileForm::cmdOK_Click()
{
    ServerFilePath.clear();
    const QString name = fileFileList->FileName();
    if (Text::UCase(name) != QLatin1String("QD7SERVER.DAT")) {
        ShowMessageBox(1504);
        ShowStatus(1453);
        return;
    }
    const QString folder = dirDirList->Path();
    ServerFilePath = folder.endsWith(QLatin1Char('/')) ? folder + name : folder + QLatin1Char('/') + name;
    frmServers->lstServer->Clear();
    LoadServerFile(QStringLiteral("frmServers"));
    frmServers->lblFilePath->SetCaption(ServerFilePath);
    frmGetServerFile.Unload();
    frmServers->Show();
}

// Leaves ServerFilePath equal to the path the server page shows, so that its OK keeps that path.
void GetServerFileForm::cmdCancel_Click()
{
    frmGetServerFile.Unload();
    frmServers->Show();
    frmServers->chkNetwork->SetValue(0);
    ServerFilePath = frmServers->lblFilePath->Caption();
    ShowStatus(1457);
}
