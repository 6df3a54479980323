#include "frmSchConfig.h"

FormRef<SchConfigForm> frmSchConfig;

SchConfigForm::SchConfigForm()
    : InfoPageForm(QStringLiteral("frmSchConfig"), QStringLiteral("lblTitle"), 1111, QStringLiteral("lblDescription"), 1338)
{
    lblTitle = m_heading;
    lblDescription = m_paragraph;
}
