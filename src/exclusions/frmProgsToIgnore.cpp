#include "frmProgsToIgnore.h"

#include "exclusion_page.h"

FormRef<ProgsToIgnoreForm> frmProgsToIgnore;

ProgsToIgnoreForm::ProgsToIgnoreForm()
    : PageForm(QStringLiteral("frmProgsToIgnore"))
{
    lstProgsToIgnore = makeExclusionList(this, "lstProgsToIgnore");
}

void ProgsToIgnoreForm::Form_Activate()
{
    ActivateAsEmptyPage();
}
