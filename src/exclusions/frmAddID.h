#pragma once

#include "shell/page_form.h"

class AddIDForm : public PageForm
{
    Q_OBJECT

public:
    AddIDForm();

    void Form_Activate() override;
};

extern FormRef<AddIDForm> frmAddID;
