#include "frmSnapConfig.h"

FormRef<SnapConfigForm> frmSnapConfig;

SnapConfigForm::SnapConfigForm()
    : PageForm(QStringLiteral("frmSnapConfig"))
{
}

void SnapConfigForm::Form_Activate()
{
    ActivateAsEmptyPage();
}
