#include "frmDataSource.h"

#include "data_source.h"
#include "path_search.h"
#include "platform/forms/command_button.h"
#include "platform/forms/frame.h"
#include "platform/forms/label.h"
#include "platform/forms/option_button.h"
#include "platform/forms/text_box.h"
#include "platform/runtime_error.h"
#include "platform/text.h"
#include "settings/credentials.h"
#include "settings/registry_values.h"
#include "shell/localize_form.h"
#include "shell/message_boxes.h"
#include "shell/navigation.h"
#include "shell/page_frame.h"
#include "shell/product_art.h"

FormRef<DataSourceForm> frmDataSource;

namespace {

template <class Widget>
Widget* place(Widget* control, const char* tag, int left, int top, int width, int height)
{
    if (tag)
        control->SetTag(QString::fromLatin1(tag));
    control->Move(left, top, width, height);
    return control;
}

OptionButton* option(QWidget* container, const char* name, const char* caption, int top, int width)
{
    auto* button = new OptionButton(container, QString::fromLatin1(name));
    button->SetCaption(QString::fromLatin1(caption));
    button->Move(120, top, width, 255);
    return button;
}

// The client program of a type: found, or refused with its message and the failed status.
bool clientFound(const char* program, int missingId)
{
    if (FindOnPath(QString::fromLatin1(program)))
        return true;
    ShowRefusal(missingId);
    return false;
}

} // namespace

DataSourceForm::DataSourceForm()
    : PageForm(QStringLiteral("frmDataSource"))
{
    imgLogo = place(new Image(this, QStringLiteral("imgLogo")), nullptr, 4800, 120, 960, 960);
    imgLogo->SetPicture(ProductArt::pageLogo());
    lblTitle = place(new Label(this, QStringLiteral("lblTitle")), "1321", 360, 360, 4335, 495);
    QFont bold = lblTitle->font();
    bold.setBold(true);
    lblTitle->setFont(bold);

    lblDataSource = place(new Label(this, QStringLiteral("lblDataSource")), "1322", 480, 1080, 1455, 255);
    txtDSN = place(new TextBox(this, QStringLiteral("txtDSN")), "CLEAR", 480, 1335, 1455, 315);
    lblUserID = place(new Label(this, QStringLiteral("lblUserID")), "1323", 2040, 1080, 1455, 255);
    txtUserID = place(new TextBox(this, QStringLiteral("txtUserID")), "CLEAR", 2040, 1335, 1455, 315);
    lblPassword = place(new Label(this, QStringLiteral("lblPassword")), "1324", 3600, 1080, 1455, 255);
    txtPassword = place(new TextBox(this, QStringLiteral("txtPassword")), "CLEAR", 3600, 1335, 1455, 315);
    txtPassword->SetPasswordChar(QStringLiteral("*"));

    fraDBtype = place(new Frame(this, QStringLiteral("fraDBtype")), "1325", 480, 1800, 1935, 1815);
    optORA = option(fraDBtype, "optORA", "&Oracle", 300, 1695);
    optNVS = option(fraDBtype, "optNVS", "N&VS", 600, 1695);
    optMSSQL = option(fraDBtype, "optMSSQL", "MS Sql Server", 900, 1695);
    optSybase = option(fraDBtype, "optSybase", "Sybase", 1200, 1695);
    optTessaril = option(fraDBtype, "optTessaril", "Tessaril", 1500, 1695);

    fraORAversion = place(new Frame(this, QStringLiteral("fraORAversion")), nullptr, 2640, 1800, 1815, 1215);
    fraORAversion->SetCaption(QStringLiteral("Oracle &Version"));
    optORA73 = option(fraORAversion, "optORA73", "Oracle &7.3", 300, 1575);
    optORA80 = option(fraORAversion, "optORA80", "Oracle 8.&0", 600, 1575);
    optORA81 = option(fraORAversion, "optORA81", "Oracle 8.&1", 900, 1575);

    fraNVSInstance = place(new Frame(this, QStringLiteral("fraNVSInstance")), nullptr, 2640, 3120, 3015, 735);
    fraNVSInstance->SetCaption(QStringLiteral("NVS &Instance"));
    lblNvsInst = place(new Label(fraNVSInstance, QStringLiteral("lblNvsInst")), "1369", 120, 330, 1335, 255);
    txtNVSinst = place(new TextBox(fraNVSInstance, QStringLiteral("txtNVSinst")), nullptr, 1500, 300, 1395, 315);

    // a label's access key takes the user to its field
    lblDataSource->setBuddy(txtDSN);
    lblUserID->setBuddy(txtUserID);
    lblPassword->setBuddy(txtPassword);
    lblNvsInst->setBuddy(txtNVSinst);

    cmdOK = place(new CommandButton(this, QStringLiteral("cmdOK")), "1200", 3240, 4200, 1095, 375);
    cmdCancel = place(new CommandButton(this, QStringLiteral("cmdCancel")), "1201", 4440, 4200, 1095, 375);

    // Until a type is chosen there is no version and no instance to give.
    enableTypeDetails(false, false);

    optORA->Click.connect(this, &DataSourceForm::optORA_Click);
    optNVS->Click.connect(this, &DataSourceForm::optNVS_Click);
    optMSSQL->Click.connect(this, &DataSourceForm::optMSSQL_Click);
    optSybase->Click.connect(this, &DataSourceForm::optSybase_Click);
    optTessaril->Click.connect(this, &DataSourceForm::optTessaril_Click);
    cmdOK->Click.connect(this, &DataSourceForm::cmdOK_Click);
    cmdCancel->Click.connect(this, &DataSourceForm::cmdCancel_Click);
    UseButtonKeys([this] { cmdOK_Click(); }, [this] { cmdCancel_Click(); }, cmdCancel);
}

void DataSourceForm::Form_Activate()
{
    LocalizeForm(this);
    ClearTaggedFields(this);
    optORA73->SetValue(false);
    optORA80->SetValue(false);
    optORA81->SetValue(false);
    LoadDataSource(Name());
    HideOtherPages(Name());
    FitPage(this);
    ShowStatus(1454);
}

void DataSourceForm::enableTypeDetails(bool versions, bool instance)
{
    // Choosing a type again always asks for the version again.
    for (OptionButton* version : { optORA73, optORA80, optORA81 }) {
        version->SetValue(false);
        version->SetEnabled(versions);
    }
    fraORAversion->SetEnabled(versions);
    fraNVSInstance->SetEnabled(instance);
    if (!instance)
        txtNVSinst->SetText(QString());
    txtNVSinst->SetEnabled(instance);
}

void DataSourceForm::optORA_Click()
{
    if (optORA->Value())
        enableTypeDetails(true, false);
}

void DataSourceForm::optNVS_Click()
{
    if (optNVS->Value())
        enableTypeDetails(false, true);
}

void DataSourceForm::optMSSQL_Click()
{
    if (optMSSQL->Value())
        enableTypeDetails(false, false);
}

void DataSourceForm::optSybase_Click()
{
    if (optSybase->Value())
        enableTypeDetails(false, false);
}

void DataSourceForm::optTessaril_Click()
{
    if (optTessaril->Value())
        enableTypeDetails(false, false);
}

void DataSourceForm::cmdOK_Click()
{
    try {
        saveSettings();
    } catch (const RuntimeError& failure) {
        ShowFailure(failure);
    }
}

// Each type in turn; a missing client ends the save at once, and whatever was written before it
// stays written.
void DataSourceForm::saveSettings()
{
    if (optORA->Value()) {
        // No version is allowed too: then no client is looked for and Oracle keeps its old value.
        if (optORA73->Value()) {
            if (!clientFound("sqlldr73.exe", 1467))
                return;
            WriteRegValue(QStringLiteral("Oracle"), QStringLiteral("73"));
        }
        if (optORA80->Value()) {
            if (!clientFound("sqlldr80.exe", 1468))
                return;
            WriteRegValue(QStringLiteral("Oracle"), QStringLiteral("80"));
        }
        if (optORA81->Value()) {
            if (!clientFound("sqlldr.exe", 1469))
                return;
            WriteRegValue(QStringLiteral("Oracle"), QStringLiteral("81"));
        }
        WriteRegValue(QStringLiteral("DB"), QStringLiteral("Oracle"));
    }
    if (optNVS->Value()) {
        if (!clientFound("nvscmd.exe", 1439))
            return;
        WriteRegValue(QStringLiteral("DB"), QStringLiteral("NVS"));
        WriteRegValue(QStringLiteral("INST"), txtNVSinst->Text());
    }
    // one program serves both MS SQL Server and Sybase
    if (optMSSQL->Value()) {
        if (!clientFound("ISQL.EXE", 1470))
            return;
        WriteRegValue(QStringLiteral("DB"), QStringLiteral("MSSQL"));
    }
    if (optSybase->Value()) {
        if (!clientFound("ISQL.EXE", 1471))
            return;
        WriteRegValue(QStringLiteral("DB"), QStringLiteral("Sybase"));
    }
    if (optTessaril->Value()) {
        if (!clientFound("SQLEDITOR300.EXE", 1472))
            return;
        WriteRegValue(QStringLiteral("DB"), QStringLiteral("Tessaril"));
    }
    if (!optORA->Value() && !optNVS->Value() && !optMSSQL->Value() && !optSybase->Value() && !optTessaril->Value()) {
        ShowRefusal(1440);
        return;
    }
    // Tested untrimmed, written trimmed: a field of blanks writes an empty value, an empty field
    // leaves the stored one alone.
    if (!txtUserID->Text().isEmpty())
        WriteRegValue(QStringLiteral("User"), Text::Trim(txtUserID->Text()));
    if (!txtDSN->Text().isEmpty())
        WriteRegValue(QStringLiteral("DSN"), Text::Trim(txtDSN->Text()));
    if (!txtPassword->Text().isEmpty()) {
        QString typed = Text::Trim(txtPassword->Text());
        WriteRegValue(QStringLiteral("Access"), EncryptText(typed));
    }
    ShowStatus(1455);
}

// The settings are read again, which undoes everything typed; the status ends at "Ready".
void DataSourceForm::cmdCancel_Click()
{
    Form_Activate();
}
