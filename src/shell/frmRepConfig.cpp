#include "frmRepConfig.h"

FormRef<RepConfigForm> frmRepConfig;

RepConfigForm::RepConfigForm()
    : InfoPageForm(QStringLiteral("frmRepConfig"), QStringLiteral("lblDescription"), 1109, QStringLiteral("lblInstructions"), 1336)
{
    lblDescription = m_heading;
    lblInstructions = m_paragraph;
}
