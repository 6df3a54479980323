#pragma once

#include "shell/page_form.h"

class OptionButton;

class DataSourceForm : public PageForm
{
    Q_OBJECT

public:
    DataSourceForm();

    void Form_Activate() override;

    OptionButton* optORA;
};

extern FormRef<DataSourceForm> frmDataSource;
