#pragma once

#include "shell/page_form.h"

class SchStatiForm : public PageForm
{
    Q_OBJECT

public:
    SchStatiForm();

    void Form_Activate() override;
};

extern FormRef<SchStatiForm> frmSchStati;
