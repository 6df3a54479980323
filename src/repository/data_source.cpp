#include "data_source.h"

#include "frmDataSource.h"
#include "platform/forms/option_button.h"
#include "platform/forms/text_box.h"
#include "platform/text.h"
#include "settings/credentials.h"
#include "settings/registry_values.h"
#include "shell/frmCurrentConfig.h"
#include "shell/shared_state.h"

void LoadDataSource(const QString& caller)
{
    const bool ownPage = caller == QLatin1String("frmDataSource");

    const QString user = ReadRegValue(QStringLiteral("User"));
    if (!user.isEmpty() && ownPage)
        frmDataSource->txtUserID->SetText(user);

    const QString dsn = ReadRegValue(QStringLiteral("DSN"));
    if (!dsn.isEmpty()) {
        if (ownPage)
            frmDataSource->txtDSN->SetText(dsn);
        else
            frmCurrentConfig->txtDataSource->SetText(dsn);
    }

    const QString access = ReadRegValue(QStringLiteral("Access"));
    DbInstance = ReadRegValue(QStringLiteral("INST"));
    if (!access.isEmpty() && ownPage) {
        QString stored = Text::Trim(access);
        frmDataSource->txtPassword->SetText(DecryptText(stored));
    }

    // Compared exactly: "oracle" or " NVS" is no type. The options are set for every caller.
    const QString type = ReadRegValue(QStringLiteral("DB"));
    if (type == QLatin1String("NVS")) {
        frmDataSource->optNVS->SetValue(true);
        frmDataSource->txtNVSinst->SetText(DbInstance);
    } else if (type == QLatin1String("Oracle")) {
        frmDataSource->optORA->SetValue(true);
        const QString version = ReadRegValue(QStringLiteral("Oracle"));
        if (ownPage) {
            if (version == QLatin1String("73"))
                frmDataSource->optORA73->SetValue(true);
            else if (version == QLatin1String("80"))
                frmDataSource->optORA80->SetValue(true);
            else if (version == QLatin1String("81"))
                frmDataSource->optORA81->SetValue(true);
        }
    } else if (type == QLatin1String("MSSQL")) {
        frmDataSource->optMSSQL->SetValue(true);
    } else if (type == QLatin1String("Sybase")) {
        frmDataSource->optSybase->SetValue(true);
    } else if (type == QLatin1String("Tessaril")) {
        frmDataSource->optTessaril->SetValue(true);
    }
}
