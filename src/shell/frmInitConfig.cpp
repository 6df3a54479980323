#include "frmInitConfig.h"

FormRef<InitConfigForm> frmInitConfig;

InitConfigForm::InitConfigForm()
    : InfoPageForm(QStringLiteral("frmInitConfig"), QStringLiteral("lblTitle"), 1108, QStringLiteral("lblDescription"), 1330)
{
    lblTitle = m_heading;
    lblDescription = m_paragraph;
}
