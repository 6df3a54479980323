#pragma once

#include "shell/page_form.h"

class ListBox;

class SpecRunForm : public PageForm
{
    Q_OBJECT

public:
    SpecRunForm();

    void Form_Activate() override;

    ListBox* lstServers; // available servers, as entries
    ListBox* lstSvrsToAgg; // servers of the run
};

extern FormRef<SpecRunForm> frmSpecRun;
