#pragma once

#include "shell/page_form.h"

class ListBox;

class IDsToIgnoreForm : public PageForm
{
    Q_OBJECT

public:
    IDsToIgnoreForm();

    void Form_Activate() override;

    ListBox* lstIDsToIgnore;
};

extern FormRef<IDsToIgnoreForm> frmIDsToIgnore;
