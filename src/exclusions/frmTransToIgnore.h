#pragma once

#include "shell/page_form.h"

class TransToIgnoreForm : public PageForm
{
    Q_OBJECT

public:
    TransToIgnoreForm();

    void Form_Activate() override;
};

extern FormRef<TransToIgnoreForm> frmTransToIgnore;
