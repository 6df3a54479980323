#pragma once

#include "info_page.h"

class SLAConfigForm : public InfoPageForm
{
    Q_OBJECT

public:
    SLAConfigForm();

    Label* lblTitle;
    Label* lblDescription;
};

extern FormRef<SLAConfigForm> frmSLAconfig;
