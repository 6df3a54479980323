#include "frmSystemSLA.h"

FormRef<SystemSLAForm> frmSystemSLA;

SystemSLAForm::SystemSLAForm()
    : PageForm(QStringLiteral("frmSystemSLA"))
{
}

void SystemSLAForm::Form_Activate()
{
    ActivateAsEmptyPage();
}
