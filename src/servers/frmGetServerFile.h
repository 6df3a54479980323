#pragma once

#include "shell/page_form.h"

class CommandButton;
class DirListBox;
class DriveListBox;
class FileListBox;
class Image;
class Label;
class TextBox;

// Points the server page at a qd7server.dat in another folder, usually a shared one. It sets
// ServerFilePath and loads that file for viewing; the server page's OK stores the path.
class GetServerFileForm : public PageForm
{
    Q_OBJECT

public:
    GetServerFileForm();

    void Form_Activate() override;
    void drvDriveList_Change();
    void dirDirList_Change();
    void cmdOK_Click();
    void cmdCancel_Click();

    Image* imgLogo;
    Label* lblTitle;
    Label* lblUserID;
    Label* lblDrive;
    DriveListBox* drvDriveList;
    Label* lblFolder;
    DirListBox* dirDirList;
    Label* lblFile;
    FileListBox* fileFileList;
    TextBox* txtIndex;
    CommandButton* cmdOK;
    CommandButton* cmdCancel;
};

extern FormRef<GetServerFileForm> frmGetServerFile;
