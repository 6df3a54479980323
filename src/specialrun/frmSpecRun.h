#pragma once

#include "shell/page_form.h"

class CommandButton;
class Control;
class Image;
class Label;
class ListBox;
class TextBox;

// One collection run outside the schedule: a period and the servers to collect from, checked and
// handed to the collector. The page stores nothing.
class SpecRunForm : public PageForm
{
    Q_OBJECT

public:
    SpecRunForm();

    void Form_Activate() override;

    bool CheckSpecRun();

    void cmdOK_Click();
    void cmdCancel_Click();
    void cmdAddSvr_Click();
    void cmdAddAllSvrs_Click();
    void cmdRemoveSvr_Click();
    void cmdRemoveAllSvrs_Click();

    Label* lblTitle;
    Image* imgLogo;
    Label* lblStartDate;
    TextBox* txtStartDate;
    Label* lblStartTime;
    TextBox* txtStartTime;
    Label* lblEndDate;
    TextBox* txtEndDate;
    Label* lblEndTime;
    TextBox* txtEndTime;
    Label* lblServerSelection;
    ListBox* lstServers; // available servers, as entries
    Label* lblSelectedServers;
    ListBox* lstSvrsToAgg; // servers of the run
    CommandButton* cmdAddSvr;
    CommandButton* cmdAddAllSvrs;
    CommandButton* cmdRemoveSvr;
    CommandButton* cmdRemoveAllSvrs;
    CommandButton* cmdOK;
    CommandButton* cmdCancel;
    Label* lblStatus;

private:
    bool ValidStartDate(TextBox* Field);
    bool ValidEndDate(TextBox* Field);
    bool ValidStartTime(TextBox* TimeField, TextBox* DateField);
    bool ValidEndTime(TextBox* TimeField, TextBox* DateField);
    bool refuse(int id, TextBox* field);
    void showRunStatus(int id);
    void moveToRun();
    void moveBackFromRun();
    // Gives the focus to `next` when `field` holds `length` characters as a key goes down.
    void advanceWhenFull(TextBox* field, int length, Control* next);
};

extern FormRef<SpecRunForm> frmSpecRun;
