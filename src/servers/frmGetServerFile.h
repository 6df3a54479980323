#pragma once

#include "shell/page_form.h"

class GetServerFileForm : public PageForm
{
    Q_OBJECT

public:
    GetServerFileForm();

    void Form_Activate() override;
};

extern FormRef<GetServerFileForm> frmGetServerFile;
