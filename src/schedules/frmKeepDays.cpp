#include "frmKeepDays.h"

FormRef<KeepDaysForm> frmKeepDays;

KeepDaysForm::KeepDaysForm()
    : PageForm(QStringLiteral("frmKeepDays"))
{
}

void KeepDaysForm::Form_Activate()
{
    ActivateAsEmptyPage();
}
