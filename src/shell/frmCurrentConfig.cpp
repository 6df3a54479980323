#include "frmCurrentConfig.h"

#include "exclusions/exclusion_lists.h"
#include "frmTreeView.h"
#include "localize_form.h"
#include "navigation.h"
#include "page_frame.h"
#include "platform/forms/combo_box.h"
#include "platform/forms/label.h"
#include "platform/forms/list_box.h"
#include "platform/forms/text_box.h"
#include "product_art.h"
#include "repository/data_source.h"
#include "servers/server_lists.h"
#include "settings/registry_values.h"
#include "shared_state.h"

FormRef<CurrentConfigForm> frmCurrentConfig;

namespace {

Label* makeLabel(Form* form, const QString& name, int id, int left, int top, int width, int height)
{
    auto* label = new Label(form, name);
    label->SetTag(QString::number(id));
    label->Move(left, top, width, height);
    return label;
}

ComboBox* makeCombo(Form* form, const QString& name, int left, int top)
{
    auto* combo = new ComboBox(form, name);
    combo->Move(left, top, 1935, 360);
    return combo;
}

} // namespace

CurrentConfigForm::CurrentConfigForm()
    : PageForm(QStringLiteral("frmCurrentConfig"))
{
    imgLogo = new Image(this, QStringLiteral("imgLogo"));
    imgLogo->SetPicture(ProductArt::pageLogo());
    imgLogo->Move(4800, 120, 960, 960);
    lblCurrentConfig = makeLabel(this, QStringLiteral("lblCurrentConfig"), 1102, 360, 360, 5415, 375);
    QFont bold = lblCurrentConfig->font();
    bold.setBold(true);
    lblCurrentConfig->setFont(bold);
    lblDataSource = makeLabel(this, QStringLiteral("lblDataSource"), 1101, 480, 720, 5175, 375);
    txtDataSource = new TextBox(this, QStringLiteral("txtDataSource"));
    txtDataSource->SetTag(QStringLiteral("CLEAR"));
    txtDataSource->SetLocked(true);
    txtDataSource->Move(480, 1080, 1212, 315);
    lblServers = makeLabel(this, QStringLiteral("lblServers"), 1103, 480, 1440, 5295, 375);
    lstServers = new ListBox(this, QStringLiteral("lstServers"));
    lstServers->Move(480, 1800, 4095, 1020);
    lblParams = makeLabel(this, QStringLiteral("lblParams"), 1104, 480, 2880, 5175, 375);
    lblPrograms = makeLabel(this, QStringLiteral("lblPrograms"), 1105, 480, 3240, 2535, 495);
    cmbPrograms = makeCombo(this, QStringLiteral("cmbPrograms"), 480, 3720);
    lblIDs = makeLabel(this, QStringLiteral("lblIDs"), 1106, 3000, 3240, 2775, 495);
    cmbIDs = makeCombo(this, QStringLiteral("cmbIDs"), 3000, 3720);
    lblTransactions = makeLabel(this, QStringLiteral("lblTransactions"), 1107, 480, 4200, 5295, 375);
    cmbTransactions = makeCombo(this, QStringLiteral("cmbTransactions"), 480, 4560);
    cmbTransactions->LostFocus.connect(this, &CurrentConfigForm::cmbTransactions_LostFocus);
}

void CurrentConfigForm::Form_Load()
{
    Move(PageFrame::PaneWidth, frmTreeView->Top(), PageFrame::PageBaseWidth, PageFrame::PaneHeight);
    clearSources();
    loadSources();
    ShowStatus(1454);
    CurrentPage = QStringLiteral("frmCurrentConfig");
}

void CurrentConfigForm::Form_Activate()
{
    LocalizeForm(this);
    clearSources();
    loadSources();
    ReadRegValue(QStringLiteral("Notation"));
    for (ComboBox* combo : { cmbIDs, cmbPrograms, cmbTransactions }) {
        if (combo->ListCount() > 0)
            combo->SetListIndex(0);
    }
    HideOtherPages(Name());
    FitPage(this);
    SetListExtent(lstServers);
    ShowStatus(1454);
}

void CurrentConfigForm::cmbTransactions_LostFocus()
{
    frmTreeView->SetFocus();
}

void CurrentConfigForm::clearSources()
{
    txtDataSource->SetText(QString());
    lstServers->Clear();
    cmbPrograms->Clear();
    cmbIDs->Clear();
    cmbTransactions->Clear();
}

// In this order; nothing is cached, so the page always tells what the store and the files hold.
void CurrentConfigForm::loadSources()
{
    LoadDataSource(Name());
    // this load is also what fills ServerTable at start-up
    LoadServerFile(Name());
    LoadProgsToIgnore(Name());
    LoadIDsToIgnore(Name());
    LoadTransToIgnore(Name());
}
