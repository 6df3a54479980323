#pragma once

#include "shell/page_form.h"

class ProgsToIgnoreForm : public PageForm
{
    Q_OBJECT

public:
    ProgsToIgnoreForm();

    void Form_Activate() override;
};

extern FormRef<ProgsToIgnoreForm> frmProgsToIgnore;
