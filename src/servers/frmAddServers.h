#pragma once

#include "shell/page_form.h"

class ComboBox;
class CommandButton;
class Image;
class Label;
class TextBox;

// The editor of one target server. txtIndex carries the mode: empty for a new server, else the
// row of ServerTable being edited. OK changes the table only; the list page's OK writes the file.
class AddServersForm : public PageForm
{
    Q_OBJECT

public:
    AddServersForm();

    void Form_Activate() override;
    void cmdOK_Click();
    void cmdCancel_Click();

    // True when every field passes; shows the first failure. Normalises the SID, instance and
    // client as it goes.
    bool CheckFields();
    // True when no row but `row` (0 for a new server) has the same server, SID, client and instance.
    bool CheckForDups(qint16 row);

    Image* imgLogo;
    Label* lblTitle;
    TextBox* txtIndex;
    Label* lblServer;
    TextBox* txtServer;
    Label* lblID;
    TextBox* txtID;
    Label* lblPW;
    TextBox* txtPW;
    Label* lblSID;
    TextBox* txtSID;
    Label* lblClient;
    TextBox* txtClient;
    Label* lblInstanceNo;
    TextBox* txtInstanceNo;
    Label* lblLanguage;
    ComboBox* cmbLanguage;
    CommandButton* cmdOK;
    CommandButton* cmdCancel;

private:
    TextBox* addField(const QString& name, int maxLength, int top, int width);
    void showFields(int row);
    void storeFields(int row);
};

extern FormRef<AddServersForm> frmAddServers;
