#pragma once

#include "info_page.h"

class InitConfigForm : public InfoPageForm
{
    Q_OBJECT

public:
    InitConfigForm();

    Label* lblTitle;
    Label* lblDescription;
};

extern FormRef<InitConfigForm> frmInitConfig;
