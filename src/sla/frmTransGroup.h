#pragma once

#include "shell/page_form.h"

class TransGroupForm : public PageForm
{
    Q_OBJECT

public:
    TransGroupForm();

    void Form_Activate() override;
};

extern FormRef<TransGroupForm> frmTransGroup;
