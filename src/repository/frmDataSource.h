#pragma once

#include "shell/page_form.h"

class CommandButton;
class Frame;
class Image;
class Label;
class OptionButton;
class TextBox;

// The repository database: its type with the Oracle client version or the NVS instance, the data
// source, the user and the password. OK stores a type only once its client program is on the PATH;
// the values go to the settings store at once, and nothing is kept in memory.
class DataSourceForm : public PageForm
{
    Q_OBJECT

public:
    DataSourceForm();

    void Form_Activate() override;
    void optORA_Click();
    void optNVS_Click();
    void optMSSQL_Click();
    void optSybase_Click();
    void optTessaril_Click();
    void cmdOK_Click();
    void cmdCancel_Click();

    Image* imgLogo;
    Label* lblTitle;
    Label* lblDataSource;
    TextBox* txtDSN;
    Label* lblUserID;
    TextBox* txtUserID;
    Label* lblPassword;
    TextBox* txtPassword;
    Frame* fraDBtype;
    OptionButton* optORA;
    OptionButton* optNVS;
    OptionButton* optMSSQL;
    OptionButton* optSybase;
    OptionButton* optTessaril;
    Frame* fraORAversion;
    OptionButton* optORA73;
    OptionButton* optORA80;
    OptionButton* optORA81;
    Frame* fraNVSInstance;
    Label* lblNvsInst;
    TextBox* txtNVSinst;
    CommandButton* cmdOK;
    CommandButton* cmdCancel;

private:
    void saveSettings();
    // What a chosen type leaves usable: the version options, the instance, or neither.
    void enableTypeDetails(bool versions, bool instance);
};

extern FormRef<DataSourceForm> frmDataSource;
