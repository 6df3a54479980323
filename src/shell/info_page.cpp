#include "info_page.h"

#include "frmTreeView.h"
#include "localize_form.h"
#include "navigation.h"
#include "page_frame.h"
#include "platform/forms/label.h"
#include "product_art.h"

#include <QFont>

InfoPageForm::InfoPageForm(
    const QString& name, const QString& headingName, int headingId, const QString& paragraphName, int paragraphId)
    : PageForm(name)
{
    imgLogo = new Image(this, QStringLiteral("imgLogo"));
    imgLogo->SetPicture(ProductArt::pageLogo());
    imgLogo->Move(360, 360, 960, 960);
    auto* heading = new Label(this, headingName);
    heading->SetTag(QString::number(headingId));
    heading->Move(1560, 480, 4095, 495);
    QFont bold = heading->font();
    bold.setBold(true);
    bold.setPointSizeF(bold.pointSizeF() * 1.25);
    heading->setFont(bold);
    auto* paragraph = new Label(this, paragraphName);
    paragraph->SetTag(QString::number(paragraphId));
    paragraph->Move(360, 1560, 5175, 3135);
    m_heading = heading;
    m_paragraph = paragraph;
}

void InfoPageForm::Form_Activate()
{
    LocalizeForm(this);
    HideOtherPages(Name());
    FitPage(this);
    ShowStatus(1454);
    frmTreeView->SetFocus();
}
