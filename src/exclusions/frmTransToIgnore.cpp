#include "frmTransToIgnore.h"

FormRef<TransToIgnoreForm> frmTransToIgnore;

TransToIgnoreForm::TransToIgnoreForm()
    : PageForm(QStringLiteral("frmTransToIgnore"))
{
}

void TransToIgnoreForm::Form_Activate()
{
    ActivateAsEmptyPage();
}
