#pragma once

#include "info_page.h"

class SchConfigForm : public InfoPageForm
{
    Q_OBJECT

public:
    SchConfigForm();

    Label* lblTitle;
    Label* lblDescription;
};

extern FormRef<SchConfigForm> frmSchConfig;
