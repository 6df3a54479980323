#pragma once

#include "shell/page_form.h"

class AddApplicationForm : public PageForm
{
    Q_OBJECT

public:
    AddApplicationForm();

    void Form_Activate() override;
};

extern FormRef<AddApplicationForm> frmAddApplication;
