#include "frmIDsToIgnore.h"

FormRef<IDsToIgnoreForm> frmIDsToIgnore;

IDsToIgnoreForm::IDsToIgnoreForm()
    : PageForm(QStringLiteral("frmIDsToIgnore"))
{
}

void IDsToIgnoreForm::Form_Activate()
{
    ActivateAsEmptyPage();
}
