#pragma once

#include "shell/page_form.h"

class IDsToIgnoreForm : public PageForm
{
    Q_OBJECT

public:
    IDsToIgnoreForm();

    void Form_Activate() override;
};

extern FormRef<IDsToIgnoreForm> frmIDsToIgnore;
