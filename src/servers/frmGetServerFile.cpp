#include "frmGetServerFile.h"

FormRef<GetServerFileForm> frmGetServerFile;

GetServerFileForm::GetServerFileForm()
    : PageForm(QStringLiteral("frmGetServerFile"))
{
}

void GetServerFileForm::Form_Activate()
{
    ActivateAsEmptyPage();
}
