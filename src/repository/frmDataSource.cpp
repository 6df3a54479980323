#include "frmDataSource.h"

#include "platform/forms/option_button.h"

FormRef<DataSourceForm> frmDataSource;

DataSourceForm::DataSourceForm()
    : PageForm(QStringLiteral("frmDataSource"))
{
    optORA = new OptionButton(this, QStringLiteral("optORA"));
}

void DataSourceForm::Form_Activate()
{
    ActivateAsEmptyPage();
}
