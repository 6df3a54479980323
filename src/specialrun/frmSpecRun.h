#pragma once

#include "shell/page_form.h"

class SpecRunForm : public PageForm
{
    Q_OBJECT

public:
    SpecRunForm();

    void Form_Activate() override;
};

extern FormRef<SpecRunForm> frmSpecRun;
