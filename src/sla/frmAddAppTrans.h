#pragma once

#include "shell/page_form.h"

class AddAppTransForm : public PageForm
{
    Q_OBJECT

public:
    AddAppTransForm();

    void Form_Activate() override;
};

extern FormRef<AddAppTransForm> frmAddAppTrans;
