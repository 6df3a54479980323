#pragma once

#include "shell/page_form.h"

class ListBox;

class TransToIgnoreForm : public PageForm
{
    Q_OBJECT

public:
    TransToIgnoreForm();

    void Form_Activate() override;

    ListBox* lstTransToIgnore;
};

extern FormRef<TransToIgnoreForm> frmTransToIgnore;
