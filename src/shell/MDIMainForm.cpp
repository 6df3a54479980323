#include "MDIMainForm.h"

#include "exclusions/frmIDsToIgnore.h"
#include "exclusions/frmProgsToIgnore.h"
#include "exclusions/frmTransToIgnore.h"
#include "frmAbout.h"
#include "frmCurrentConfig.h"
#include "frmTreeView.h"
#include "localize_form.h"
#include "logs/debug_switches.h"
#include "logs/log_files.h"
#include "main_status_bar.h"
#include "platform/event_guard.h"
#include "platform/forms/menu_item.h"
#include "platform/forms/twips.h"
#include "platform/single_instance.h"
#include "platform/text.h"
#include "product_art.h"
#include "repository/frmDataSource.h"
#include "schedules/frmKeepDays.h"
#include "schedules/frmSchStati.h"
#include "schedules/frmSnapConfig.h"
#include "servers/frmServers.h"
#include "shared_state.h"
#include "sla/frmSystemSLA.h"
#include "sla/frmTransGroup.h"
#include "specialrun/frmSpecRun.h"

#include <QGuiApplication>
#include <QMdiArea>
#include <QScreen>
#include <QMenu>
#include <QMenuBar>
#include <QStatusBar>
#include <QVBoxLayout>

FormRef<MainForm> MDIMainForm;

namespace {

// A menu item whose design-time caption is its catalogue id, as the localisation walk expects.
MenuItem* item(Form* form, const char* name, int id, QMenu* into)
{
    auto* entry = new MenuItem(form, QString::fromLatin1(name), QString::number(id));
    into->addAction(entry);
    return entry;
}

// An item that opens a submenu; its Click comes as the submenu opens.
MenuItem* submenu(Form* form, const char* name, int id, QWidget* into, QMenu** menu)
{
    auto* entry = new MenuItem(form, QString::fromLatin1(name), QString::number(id));
    *menu = new QMenu(form);
    entry->setMenu(*menu);
    into->addAction(entry);
    QObject::connect(*menu, &QMenu::aboutToShow, entry, [entry] { entry->Click.raiseFromQt(); });
    return entry;
}

template <class Page>
void showPageWithFocus(FormRef<Page>& page)
{
    page->Show();
    page->SetFocus();
}

} // namespace

MainForm::MainForm()
    : Form(QStringLiteral("MDIMainForm"), Kind::Window)
{
    setWindowIcon(ProductArt::appIcon());
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    menuBar = new QMenuBar(this);
    menuBar->setObjectName(QStringLiteral("mnuMainBar"));
    mdiArea = new QMdiArea(this);
    mdiArea->setObjectName(QStringLiteral("mdiArea"));
    mdiArea->setBackground(palette().window());
    staMainStatusBar = new QStatusBar(this);
    staMainStatusBar->setObjectName(QStringLiteral("staMainStatusBar"));
    staMainStatusBar->setSizeGripEnabled(false);
    staMainStatusBar->showMessage(QStringLiteral("Status: Ready"));
    layout->setMenuBar(menuBar);
    layout->addWidget(mdiArea, 1);
    layout->addWidget(staMainStatusBar);
    buildMenu();
    SetTag(QStringLiteral("1400"));
    Form::setMdiArea(mdiArea);
    SetMainStatusBar(staMainStatusBar);
    // client area of 9495 by 6150 twips below the menu
    resize(Twips::toPixels(9495), Twips::toPixels(6150) + menuBar->sizeHint().height());
    if (const QScreen* screen = QGuiApplication::primaryScreen())
        move(screen->availableGeometry().center() - rect().center());
}

void MainForm::buildMenu()
{
    QMenu* file;
    mnuFile = submenu(this, "mnuFile", 1000, menuBar, &file);
    mnuExit = item(this, "mnuExit", 1004, file);
    mnuExit->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Q));
    mnuExit->Click.connect(this, &MainForm::mnuExit_Click);

    QMenu* logs;
    mnuLogs = submenu(this, "mnuLogs", 1001, menuBar, &logs);
    mnuDVXstatiLog = item(this, "mnuDVXstatiLog", 1005, logs);
    mnuDVXstatiLog->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_S));
    mnuDVXstatiLog->Click.connect(this, &MainForm::mnuDVXstatiLog_Click);
    mnuDVXsnapLog = item(this, "mnuDVXsnapLog", 1006, logs);
    mnuDVXsnapLog->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_I));
    mnuDVXsnapLog->Click.connect(this, &MainForm::mnuDVXsnapLog_Click);
    mnustatiLog = item(this, "mnustatiLog", 1008, logs);
    mnustatiLog->Click.connect(this, &MainForm::mnuStatiLog_Click);
    mnusnapLog = item(this, "mnusnapLog", 1009, logs);
    mnusnapLog->Click.connect(this, &MainForm::mnuSnapLog_Click);
    mnuLoadStatiLog = item(this, "mnuLoadStatiLog", 1011, logs);
    mnuLoadStatiLog->Click.connect(this, &MainForm::mnuLoadStatiLog_Click);
    mnuLoadSnapLog = item(this, "mnuLoadSnapLog", 1012, logs);
    mnuLoadSnapLog->Click.connect(this, &MainForm::mnuLoadSnapLog_Click);
    mnuAggStatiLog = item(this, "mnuAggStatiLog", 1014, logs);
    mnuAggStatiLog->Click.connect(this, &MainForm::mnuAggStatiLog_Click);
    mnuAggSnapLog = item(this, "mnuAggSnapLog", 1015, logs);
    mnuAggSnapLog->Click.connect(this, &MainForm::mnuAggSnapLog_Click);
    mnuLoaderLog = item(this, "mnuLoaderLog", 1017, logs);
    mnuLoaderLog->Click.connect(this, &MainForm::mnuLoaderLog_Click);

    QMenu* options;
    mnuOptions = submenu(this, "mnuOptions", 1002, menuBar, &options);
    mnuOptions->Click.connect(this, &MainForm::mnuOptions_Click);
    mnuCurrentConfig = item(this, "mnuCurrentConfig", 1018, options);
    mnuCurrentConfig->Click.connect([] { showPageWithFocus(frmCurrentConfig); });
    QMenu* initial;
    mnuInitialConfig = submenu(this, "mnuInitialConfig", 1019, options, &initial);
    mnuDataSource = item(this, "mnuDataSource", 1020, initial);
    mnuDataSource->Click.connect([] { showPageWithFocus(frmDataSource); });
    mnuServers = item(this, "mnuServers", 1021, initial);
    mnuServers->Click.connect([] { showPageWithFocus(frmServers); });
    mnuDataRetensionPeriod = item(this, "mnuDataRetensionPeriod", 1022, initial);
    mnuDataRetensionPeriod->Click.connect([] { showPageWithFocus(frmKeepDays); });
    QMenu* report;
    mnuReportConfig = submenu(this, "mnuReportConfig", 1023, options, &report);
    mnuPrograms = item(this, "mnuPrograms", 1024, report);
    mnuPrograms->Click.connect([] { showPageWithFocus(frmProgsToIgnore); });
    mnuIDs = item(this, "mnuIDs", 1025, report);
    mnuIDs->Click.connect([] { showPageWithFocus(frmIDsToIgnore); });
    mnuTransactions = item(this, "mnuTransactions", 1026, report);
    mnuTransactions->Click.connect([] { showPageWithFocus(frmTransToIgnore); });
    QMenu* sla;
    mnuSLA = submenu(this, "mnuSLA", 1027, options, &sla);
    mnuCustomizedSLA = item(this, "mnuCustomizedSLA", 1028, sla);
    mnuCustomizedSLA->Click.connect([] { showPageWithFocus(frmTransGroup); });
    mnuSystemSLA = item(this, "mnuSystemSLA", 1029, sla);
    mnuSystemSLA->Click.connect([] { showPageWithFocus(frmSystemSLA); });
    QMenu* schedule;
    mnuSchedule = submenu(this, "mnuSchedule", 1030, options, &schedule);
    mnuSchStatistics = item(this, "mnuSchStatistics", 1031, schedule);
    mnuSchStatistics->Click.connect([] { frmSchStati->Show(); });
    mnuSnap = item(this, "mnuSnap", 1032, schedule);
    mnuSnap->Click.connect([] { showPageWithFocus(frmSnapConfig); });
    mnuSpecRun = item(this, "mnuSpecRun", 1033, options);
    mnuSpecRun->Click.connect([] { showPageWithFocus(frmSpecRun); });
    QMenu* debug;
    mnuDebug = submenu(this, "mnuDebug", 1034, options, &debug);
    mnuDebugLogFiles = item(this, "mnuDebugLogFiles", 1035, debug);
    mnuDebugLogFiles->Click.connect(this, &MainForm::mnuDebugLogFiles_Click);
    mnuLoaderHalt = item(this, "mnuLoaderHalt", 1036, debug);
    mnuLoaderHalt->Click.connect(this, &MainForm::mnuLoaderHalt_Click);

    QMenu* help;
    mnuHelpMain = submenu(this, "mnuHelpMain", 1003, menuBar, &help);
    mnuAbout = item(this, "mnuAbout", 1039, help);
    mnuAbout->Click.connect(this, &MainForm::mnuAbout_Click);
}

void MainForm::MDIForm_Load()
{
    LocalizeForm(this);
    frmTreeView->Show();
    frmCurrentConfig->Show();
    frmCurrentConfig->SetFocus();
    // a second console goes through its whole start and ends here without a word
    if (earlierInstanceRunning())
        EventGuard::terminateConsole(0);
}

void MainForm::MDIForm_Unload()
{
    EventGuard::terminateConsole(0);
}

void MainForm::mnuExit_Click()
{
    MDIMainForm.Unload();
    EventGuard::terminateConsole(0);
}

bool MainForm::validate_parms(qint16 StartPos, qint16 NextPos, const QString& Text) const
{
    const int count = NextPos != 0 ? NextPos - StartPos - 3 : int(Text.size()) - (StartPos + 2);
    if (count < 1)
        return true;
    return Text::Trim(Text::Mid(Text, StartPos + 2, count)).isEmpty();
}

void MainForm::mnuDVXstatiLog_Click()
{
    OpenLog(LogFiles::StatiSummary);
}

void MainForm::mnuDVXsnapLog_Click()
{
    OpenLog(LogFiles::SnapSummary);
}

void MainForm::mnuStatiLog_Click()
{
    OpenLog(LogFiles::Stati);
}

void MainForm::mnuSnapLog_Click()
{
    OpenLog(LogFiles::Snap);
}

void MainForm::mnuLoadStatiLog_Click()
{
    OpenLog(LogFiles::LoadStati);
}

void MainForm::mnuLoadSnapLog_Click()
{
    OpenLog(LogFiles::LoadSnap);
}

void MainForm::mnuAggStatiLog_Click()
{
    OpenLog(LogFiles::AggStati);
}

void MainForm::mnuAggSnapLog_Click()
{
    OpenLog(LogFiles::AggSnap);
}

void MainForm::mnuLoaderLog_Click()
{
    OpenLog(LogFiles::Loader);
}

// The check marks come from the store each time the menu opens, so a change that another program
// made shows. Of the two trace switches only SnapDebug counts here.
void MainForm::mnuOptions_Click()
{
    ShowDebugSwitch(mnuDebugLogFiles, QStringLiteral("SnapDebug"));
    DebugValue.clear();
    ShowDebugSwitch(mnuLoaderHalt, QStringLiteral("LoadDebug"));
}

void MainForm::mnuDebugLogFiles_Click()
{
    FlipDebugSwitch(mnuDebugLogFiles, { QStringLiteral("SnapDebug"), QStringLiteral("StatiDebug") });
}

void MainForm::mnuLoaderHalt_Click()
{
    FlipDebugSwitch(mnuLoaderHalt, { QStringLiteral("LoadDebug") });
}

void MainForm::mnuAbout_Click()
{
    frmAbout->Show();
}

bool MainForm::event(QEvent* event)
{
    // opening a menu sends empty status tips that would wipe the console's status text
    if (event->type() == QEvent::StatusTip)
        return true;
    return Form::event(event);
}
