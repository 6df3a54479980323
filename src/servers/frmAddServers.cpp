#include "frmAddServers.h"

FormRef<AddServersForm> frmAddServers;

AddServersForm::AddServersForm()
    : PageForm(QStringLiteral("frmAddServers"))
{
}

void AddServersForm::Form_Activate()
{
    ActivateAsEmptyPage();
}
