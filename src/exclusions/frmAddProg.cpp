#include "frmAddProg.h"

FormRef<AddProgForm> frmAddProg;

AddProgForm::AddProgForm()
    : PageForm(QStringLiteral("frmAddProg"))
{
}

void AddProgForm::Form_Activate()
{
    ActivateAsEmptyPage();
}
