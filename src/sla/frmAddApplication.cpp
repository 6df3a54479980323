#include "frmAddApplication.h"

FormRef<AddApplicationForm> frmAddApplication;

AddApplicationForm::AddApplicationForm()
    : PageForm(QStringLiteral("frmAddApplication"))
{
}

void AddApplicationForm::Form_Activate()
{
    ActivateAsEmptyPage();
}
