#include "frmSLAconfig.h"

FormRef<SLAConfigForm> frmSLAconfig;

SLAConfigForm::SLAConfigForm()
    : InfoPageForm(QStringLiteral("frmSLAconfig"), QStringLiteral("lblTitle"), 1110, QStringLiteral("lblDescription"), 1344)
{
    lblTitle = m_heading;
    lblDescription = m_paragraph;
}
