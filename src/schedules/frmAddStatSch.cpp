#include "frmAddStatSch.h"

FormRef<AddStatSchForm> frmAddStatSch;

AddStatSchForm::AddStatSchForm()
    : PageForm(QStringLiteral("frmAddStatSch"))
{
}

void AddStatSchForm::Form_Activate()
{
    ActivateAsEmptyPage();
}
