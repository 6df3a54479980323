#pragma once

#include "page_form.h"

class ComboBox;
class Image;
class Label;
class ListBox;
class TextBox;

// The overview: what the data source, the server file and the exclusion lists hold right now.
// Read-only and rebuilt at every activation.
class CurrentConfigForm : public PageForm
{
    Q_OBJECT

public:
    CurrentConfigForm();

    void Form_Load() override;
    void Form_Activate() override;
    void cmbTransactions_LostFocus();

    Image* imgLogo;
    Label* lblCurrentConfig;
    Label* lblDataSource;
    TextBox* txtDataSource;
    Label* lblServers;
    ListBox* lstServers;
    Label* lblParams;
    Label* lblPrograms;
    ComboBox* cmbPrograms;
    Label* lblIDs;
    ComboBox* cmbIDs;
    Label* lblTransactions;
    ComboBox* cmbTransactions;

private:
    void clearSources();
    void loadSources();
};

extern FormRef<CurrentConfigForm> frmCurrentConfig;
