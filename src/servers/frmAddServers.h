#pragma once

#include "shell/page_form.h"

class AddServersForm : public PageForm
{
    Q_OBJECT

public:
    AddServersForm();

    void Form_Activate() override;
};

extern FormRef<AddServersForm> frmAddServers;
