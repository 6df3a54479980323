#include "frmAddServers.h"

#include "frmServers.h"
#include "platform/format_pattern.h"
#include "platform/forms/combo_box.h"
#include "platform/forms/command_button.h"
#include "platform/forms/label.h"
#include "platform/forms/list_box.h"
#include "platform/forms/text_box.h"
#include "platform/numeric.h"
#include "platform/text.h"
#include "server_checks.h"
#include "server_record.h"
#include "settings/credentials.h"
#include "shell/catalogue.h"
#include "shell/localize_form.h"
#include "shell/navigation.h"
#include "shell/page_controls.h"
#include "shell/message_boxes.h"
#include "shell/page_frame.h"
#include "shell/shared_state.h"

#include <QApplication>

FormRef<AddServersForm> frmAddServers;

namespace {

constexpr int LabelLeft = 360;
constexpr int LabelWidth = 1335;
constexpr int FieldLeft = 1800;
constexpr int FirstFieldTop = 1140;
constexpr int FieldStep = 420;
constexpr int FieldHeight = 315;

bool refuse(int messageId, TextBox* field)
{
    ShowMessageBox(messageId);
    if (field)
        SelectFieldText(field);
    return false;
}

// An instance or client number: present, numeric, not negative; then written in `pattern`.
bool checkNumber(TextBox* field, int emptyId, int notNumericId, int negativeId, const QString& pattern)
{
    if (Text::Trim(field->Text()).isEmpty())
        return refuse(emptyId, field);
    if (!Numeric::isNumeric(field->Text()))
        return refuse(notNumericId, field);
    if (Numeric::toDouble(field->Text()) < 0)
        return refuse(negativeId, field);
    field->SetText(FormatPattern::formatText(field->Text(), pattern));
    return true;
}

} // namespace

AddServersForm::AddServersForm()
    : PageForm(QStringLiteral("frmAddServers"))
{
    imgLogo = AddPageLogo(this);
    lblTitle = AddPageTitle(this, QStringLiteral("lblTitle"), 1309);
    txtIndex = new TextBox(this, QStringLiteral("txtIndex"));
    txtIndex->SetVisible(false);

    int top = FirstFieldTop;
    const auto labelFor
        = [&](const QString& name, int id) { return AddLabel(this, name, id, LabelLeft, top + 30, LabelWidth, 255); };
    lblServer = labelFor(QStringLiteral("lblServer"), 1114);
    txtServer = addField(QStringLiteral("txtServer"), 100, top, 3735);
    top += FieldStep;
    lblID = labelFor(QStringLiteral("lblID"), 1310);
    txtID = addField(QStringLiteral("txtID"), 30, top, 2055);
    top += FieldStep;
    lblPW = labelFor(QStringLiteral("lblPW"), 1311);
    txtPW = addField(QStringLiteral("txtPW"), 30, top, 2055);
    txtPW->SetPasswordChar(QStringLiteral("*"));
    top += FieldStep;
    lblSID = labelFor(QStringLiteral("lblSID"), 1313);
    txtSID = addField(QStringLiteral("txtSID"), 3, top, 615);
    top += FieldStep;
    lblClient = labelFor(QStringLiteral("lblClient"), 1315);
    txtClient = addField(QStringLiteral("txtClient"), 3, top, 615);
    top += FieldStep;
    lblInstanceNo = labelFor(QStringLiteral("lblInstanceNo"), 1314);
    txtInstanceNo = addField(QStringLiteral("txtInstanceNo"), 2, top, 615);
    top += FieldStep;
    lblLanguage = labelFor(QStringLiteral("lblLanguage"), 1312);
    cmbLanguage = new ComboBox(this, QStringLiteral("cmbLanguage"), ComboBox::DropdownList);
    cmbLanguage->Move(FieldLeft, top, 2055, FieldHeight);
    // nothing on this page clears them: the form is unloaded after every use
    for (TextBox* field : { txtID, txtPW, txtSID, txtClient, txtInstanceNo })
        field->SetTag(QStringLiteral("CLEAR"));

    cmdOK = AddButton(this, QStringLiteral("cmdOK"), 1200, 3000, 4440, 1215, 375);
    cmdCancel = AddButton(this, QStringLiteral("cmdCancel"), 1201, 4335, 4440, 1215, 375);
    cmdOK->Click.connect(this, &AddServersForm::cmdOK_Click);
    cmdCancel->Click.connect(this, &AddServersForm::cmdCancel_Click);
    UseButtonKeys([this] { cmdOK_Click(); }, [this] { cmdCancel_Click(); }, cmdCancel);
}

TextBox* AddServersForm::addField(const QString& name, int maxLength, int top, int width)
{
    auto* field = new TextBox(this, name);
    field->SetMaxLength(maxLength);
    field->Move(FieldLeft, top, width, FieldHeight);
    field->GotFocus.connect([field] { SelectFieldText(field); });
    return field;
}

void AddServersForm::Form_Activate()
{
    LocalizeForm(this);
    HideOtherPages(Name());
    FitPage(this);
    cmbLanguage->Clear();
    for (int i = 0; i < ServerLanguage::Count; ++i) {
        LoadMsgText(ServerLanguage::FirstTextId + i);
        cmbLanguage->AddItem(MsgText);
    }
    if (txtIndex->Text().isEmpty())
        return;
    const int row = Numeric::toInt16(txtIndex->Text());
    if (row == -1)
        return;
    showFields(row);
}

// A row without a stored password shows its server and ID only.
void AddServersForm::showFields(int row)
{
    using Text::Trim;
    txtServer->SetText(Trim(ServerTable(row, ServerColumn::Server)));
    txtID->SetText(Trim(ServerTable(row, ServerColumn::ID)));
    QString stored = Trim(ServerTable(row, ServerColumn::Password));
    if (stored.isEmpty())
        return;
    txtPW->SetText(DecryptText(stored));
    txtSID->SetText(Trim(ServerTable(row, ServerColumn::SID)));
    txtClient->SetText(Trim(ServerTable(row, ServerColumn::Client)));
    txtInstanceNo->SetText(Trim(ServerTable(row, ServerColumn::Instance)));
    const int language = ServerLanguage::listIndex(Trim(ServerTable(row, ServerColumn::Language)));
    if (language >= 0)
        cmbLanguage->SetListIndex(language);
}

bool AddServersForm::CheckFields()
{
    using Text::Trim;
    if (Trim(txtServer->Text()).isEmpty())
        return refuse(1428, nullptr);
    if (!IsFullyQualified(txtServer->Text()))
        return refuse(1503, nullptr);
    if (Trim(txtID->Text()).isEmpty())
        return refuse(1429, txtID);
    if (Trim(txtPW->Text()).isEmpty())
        return refuse(1430, txtPW);
    if (Trim(txtSID->Text()).isEmpty())
        return refuse(1431, txtSID);
    txtSID->SetText(Text::UCase(Trim(txtSID->Text())));
    return checkNumber(txtInstanceNo, 1432, 1433, 1434, QStringLiteral("00"))
        && checkNumber(txtClient, 1435, 1436, 1436, QStringLiteral("000"));
}

bool AddServersForm::CheckForDups(qint16 row)
{
    return DuplicateServerRow(row, txtServer->Text(), txtSID->Text(), txtClient->Text(), txtInstanceNo->Text()) == 0;
}

// "Action successful" comes first and stays on the bar when the entries are refused.
void AddServersForm::cmdOK_Click()
{
    ShowStatus(1455);
    if (!CheckFields())
        return;
    const bool editing = !txtIndex->Text().isEmpty();
    const qint16 edited = editing ? Numeric::toInt16(txtIndex->Text()) : qint16(0);
    if (!CheckForDups(edited)) {
        ShowMessageBox(1427);
        ShowStatus(1453);
        return;
    }
    // The list shows the bare name until the list page rebuilds it at its activation.
    ListBox* list = frmServers->lstServer;
    int row = edited;
    if (editing) {
        list->RemoveItem(list->ListIndex());
    } else {
        ServerCount = Numeric::toInt16(double(ServerCount) + 1);
        if (ServerTable.isSized())
            ServerTable.redimPreserve(ServerCount);
        else
            ServerTable.redim(ServerCount, ServerColumn::Last);
        row = ServerCount;
    }
    list->AddItem(Text::Trim(txtServer->Text()));
    storeFields(row);
    txtIndex->SetText(QString());
    frmAddServers.Unload();
    frmServers->Show();
    frmServers->cmdOK->SetFocus();
}

// Server and ID as typed; the window columns always reset to the whole day.
void AddServersForm::storeFields(int row)
{
    ServerTable(row, ServerColumn::Server) = txtServer->Text();
    ServerTable(row, ServerColumn::ID) = txtID->Text();
    QString password = Text::Trim(txtPW->Text());
    ServerTable(row, ServerColumn::Password) = EncryptText(password);
    ServerTable(row, ServerColumn::SID) = txtSID->Text();
    ServerTable(row, ServerColumn::Client) = txtClient->Text();
    ServerTable(row, ServerColumn::Instance) = txtInstanceNo->Text();
    ServerTable(row, ServerColumn::WindowStart) = QStringLiteral("000000");
    ServerTable(row, ServerColumn::WindowEnd) = QStringLiteral("240000");
    const QString language = ServerLanguage::letter(cmbLanguage->ListIndex());
    if (!language.isEmpty())
        ServerTable(row, ServerColumn::Language) = language;
}

void AddServersForm::cmdCancel_Click()
{
    txtIndex->SetText(QString());
    frmAddServers.Unload();
    frmServers->Show();
    ShowStatus(1457);
}
