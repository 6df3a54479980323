#pragma once

#include "platform/forms/form.h"
#include "platform/forms/form_ref.h"

class CommandButton;
class Image;
class Label;

// The about box: a small window of its own beside the frame, not a page.
class AboutForm : public Form
{
    Q_OBJECT

public:
    AboutForm();

    void Form_Activate() override;
    void Form_KeyDown(int KeyCode, int Shift) override;
    void cmdOK_Click();

    Image* picAbout;
    Label* lblProductName;
    CommandButton* cmdOK;
};

extern FormRef<AboutForm> frmAbout;
