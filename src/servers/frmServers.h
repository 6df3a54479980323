#pragma once

#include "shell/page_form.h"

class ListBox;
class CommandButton;

class ServersForm : public PageForm
{
    Q_OBJECT

public:
    ServersForm();

    void Form_Activate() override;

    ListBox* lstServer;
    CommandButton* cmdOK;
};

extern FormRef<ServersForm> frmServers;
