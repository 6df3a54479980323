#pragma once

#include "shell/page_form.h"

class ListBox;

class ProgsToIgnoreForm : public PageForm
{
    Q_OBJECT

public:
    ProgsToIgnoreForm();

    void Form_Activate() override;

    ListBox* lstProgsToIgnore;
};

extern FormRef<ProgsToIgnoreForm> frmProgsToIgnore;
