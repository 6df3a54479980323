#include "frmAddID.h"

FormRef<AddIDForm> frmAddID;

AddIDForm::AddIDForm()
    : PageForm(QStringLiteral("frmAddID"))
{
}

void AddIDForm::Form_Activate()
{
    ActivateAsEmptyPage();
}
