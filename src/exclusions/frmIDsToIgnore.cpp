#include "frmIDsToIgnore.h"

#include "exclusion_page.h"

FormRef<IDsToIgnoreForm> frmIDsToIgnore;

IDsToIgnoreForm::IDsToIgnoreForm()
    : PageForm(QStringLiteral("frmIDsToIgnore"))
{
    lstIDsToIgnore = makeExclusionList(this, "lstIDsToIgnore");
}

void IDsToIgnoreForm::Form_Activate()
{
    ActivateAsEmptyPage();
}
