#pragma once

#include "shell/page_form.h"

class AddProgForm : public PageForm
{
    Q_OBJECT

public:
    AddProgForm();

    void Form_Activate() override;
};

extern FormRef<AddProgForm> frmAddProg;
