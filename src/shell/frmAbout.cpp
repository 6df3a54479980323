#include "frmAbout.h"

#include "localize_form.h"
#include "platform/forms/command_button.h"
#include "platform/forms/label.h"
#include "platform/forms/twips.h"
#include "product_art.h"

#include <QGuiApplication>
#include <QScreen>

FormRef<AboutForm> frmAbout;

AboutForm::AboutForm()
    : Form(QStringLiteral("frmAbout"), Kind::Window)
{
    setWindowFlags(Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint);
    SetTag(QStringLiteral("1400"));
    SetKeyPreview(true);
    setFixedSize(Twips::toPixels(6825), Twips::toPixels(3105));
    picAbout = new Image(this, QStringLiteral("picAbout"));
    picAbout->SetPicture(ProductArt::aboutPicture());
    picAbout->move(0, 0);
    lblProductName = new Label(this, QStringLiteral("lblProductName"));
    lblProductName->SetTag(QStringLiteral("1400"));
    lblProductName->Move(2520, 240, 4215, 975);
    QFont bold = lblProductName->font();
    bold.setBold(true);
    lblProductName->setFont(bold);
    cmdOK = new CommandButton(this, QStringLiteral("cmdOK"));
    cmdOK->SetTag(QStringLiteral("1200"));
    cmdOK->Move(3960, 1920, 1335, 495);
    cmdOK->Click.connect(this, &AboutForm::cmdOK_Click);
    if (const QScreen* screen = QGuiApplication::primaryScreen())
        move(screen->availableGeometry().center() - rect().center());
}

void AboutForm::Form_Activate()
{
    LocalizeForm(this);
}

void AboutForm::Form_KeyDown(int KeyCode, int Shift)
{
    Q_UNUSED(Shift);
    if (KeyCode == 13)
        cmdOK_Click();
}

void AboutForm::cmdOK_Click()
{
    frmAbout.Unload();
}
