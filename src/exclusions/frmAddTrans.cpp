#include "frmAddTrans.h"

FormRef<AddTransForm> frmAddTrans;

AddTransForm::AddTransForm()
    : PageForm(QStringLiteral("frmAddTrans"))
{
}

void AddTransForm::Form_Activate()
{
    ActivateAsEmptyPage();
}
