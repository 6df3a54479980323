#pragma once

#include "shell/page_form.h"

class AddTransForm : public PageForm
{
    Q_OBJECT

public:
    AddTransForm();

    void Form_Activate() override;
};

extern FormRef<AddTransForm> frmAddTrans;
