#pragma once

#include "shell/page_form.h"

class SnapConfigForm : public PageForm
{
    Q_OBJECT

public:
    SnapConfigForm();

    void Form_Activate() override;
};

extern FormRef<SnapConfigForm> frmSnapConfig;
