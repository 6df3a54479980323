#include "frmTransToIgnore.h"

#include "exclusion_page.h"

FormRef<TransToIgnoreForm> frmTransToIgnore;

TransToIgnoreForm::TransToIgnoreForm()
    : PageForm(QStringLiteral("frmTransToIgnore"))
{
    lstTransToIgnore = makeExclusionList(this, "lstTransToIgnore");
}

void TransToIgnoreForm::Form_Activate()
{
    ActivateAsEmptyPage();
}
