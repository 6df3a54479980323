#include "frmSpecRun.h"

#include "platform/forms/list_box.h"

FormRef<SpecRunForm> frmSpecRun;

SpecRunForm::SpecRunForm()
    : PageForm(QStringLiteral("frmSpecRun"))
{
    lstServers = new ListBox(this, QStringLiteral("lstServers"));
    lstServers->Move(480, 2520, 2175, 1695);
    lstSvrsToAgg = new ListBox(this, QStringLiteral("lstSvrsToAgg"));
    lstSvrsToAgg->Move(3360, 2520, 2175, 1695);
}

void SpecRunForm::Form_Activate()
{
    ActivateAsEmptyPage();
}
