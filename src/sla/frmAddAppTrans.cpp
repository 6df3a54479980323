#include "frmAddAppTrans.h"

FormRef<AddAppTransForm> frmAddAppTrans;

AddAppTransForm::AddAppTransForm()
    : PageForm(QStringLiteral("frmAddAppTrans"))
{
}

void AddAppTransForm::Form_Activate()
{
    ActivateAsEmptyPage();
}
