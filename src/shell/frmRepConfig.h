#pragma once

#include "info_page.h"

class RepConfigForm : public InfoPageForm
{
    Q_OBJECT

public:
    RepConfigForm();

    Label* lblDescription;
    Label* lblInstructions;
};

extern FormRef<RepConfigForm> frmRepConfig;
