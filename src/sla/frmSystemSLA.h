#pragma once

#include "shell/page_form.h"

class SystemSLAForm : public PageForm
{
    Q_OBJECT

public:
    SystemSLAForm();

    void Form_Activate() override;
};

extern FormRef<SystemSLAForm> frmSystemSLA;
