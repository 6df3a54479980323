#include "frmSpecRun.h"

FormRef<SpecRunForm> frmSpecRun;

SpecRunForm::SpecRunForm()
    : PageForm(QStringLiteral("frmSpecRun"))
{
}

void SpecRunForm::Form_Activate()
{
    ActivateAsEmptyPage();
}
