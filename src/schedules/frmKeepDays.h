#pragma once

#include "shell/page_form.h"

class KeepDaysForm : public PageForm
{
    Q_OBJECT

public:
    KeepDaysForm();

    void Form_Activate() override;
};

extern FormRef<KeepDaysForm> frmKeepDays;
