#pragma once

#include "shell/page_form.h"

class CheckBox;
class CommandButton;
class Frame;
class Image;
class Label;
class ListBox;

// The target servers: create, edit and delete them in ServerTable, point at a server file
// elsewhere, and on OK replace the server file as a whole. Cancel reads the file back.
class ServersForm : public PageForm
{
    Q_OBJECT

public:
    ServersForm();

    void Form_Load() override;
    void Form_Activate() override;
    void lstServer_Click();
    void cmdCreate_Click();
    void cmdEdit_Click();
    void cmdDelete_Click();
    void chkNetwork_Click();
    void cmdOK_Click();
    void cmdCancel_Click();

    Image* imgLogo;
    Label* lblTitle;
    Label* lblInstructions;
    Label* lblListLabel;
    ListBox* lstServer;
    CommandButton* cmdCreate;
    CommandButton* cmdEdit;
    CommandButton* cmdDelete;
    Frame* frmSelectFile;
    CheckBox* chkNetwork;
    Label* lblFilePath;
    CommandButton* cmdOK;
    CommandButton* cmdCancel;
};

extern FormRef<ServersForm> frmServers;
