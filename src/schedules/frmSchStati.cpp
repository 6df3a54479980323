#include "frmSchStati.h"

FormRef<SchStatiForm> frmSchStati;

SchStatiForm::SchStatiForm()
    : PageForm(QStringLiteral("frmSchStati"))
{
}

void SchStatiForm::Form_Activate()
{
    ActivateAsEmptyPage();
}
