#include "frmProgsToIgnore.h"

FormRef<ProgsToIgnoreForm> frmProgsToIgnore;

ProgsToIgnoreForm::ProgsToIgnoreForm()
    : PageForm(QStringLiteral("frmProgsToIgnore"))
{
}

void ProgsToIgnoreForm::Form_Activate()
{
    ActivateAsEmptyPage();
}
