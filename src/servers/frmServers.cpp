#include "frmServers.h"

#include "platform/forms/list_box.h"
#include "platform/forms/command_button.h"

FormRef<ServersForm> frmServers;

ServersForm::ServersForm()
    : PageForm(QStringLiteral("frmServers"))
{
    lstServer = new ListBox(this, QStringLiteral("lstServer"));
    cmdOK = new CommandButton(this, QStringLiteral("cmdOK"));
}

void ServersForm::Form_Activate()
{
    ActivateAsEmptyPage();
}
