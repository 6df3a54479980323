#pragma once

#include "shell/page_form.h"

class AddStatSchForm : public PageForm
{
    Q_OBJECT

public:
    AddStatSchForm();

    void Form_Activate() override;
};

extern FormRef<AddStatSchForm> frmAddStatSch;
