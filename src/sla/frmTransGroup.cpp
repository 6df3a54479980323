#include "frmTransGroup.h"

FormRef<TransGroupForm> frmTransGroup;

TransGroupForm::TransGroupForm()
    : PageForm(QStringLiteral("frmTransGroup"))
{
}

void TransGroupForm::Form_Activate()
{
    ActivateAsEmptyPage();
}
