#include "navigation.h"

#include "exclusions/frmAddID.h"
#include "exclusions/frmAddProg.h"
#include "exclusions/frmAddTrans.h"
#include "exclusions/frmIDsToIgnore.h"
#include "exclusions/frmProgsToIgnore.h"
#include "exclusions/frmTransToIgnore.h"
#include "frmCurrentConfig.h"
#include "frmInitConfig.h"
#include "frmRepConfig.h"
#include "frmSchConfig.h"
#include "frmSLAconfig.h"
#include "frmTreeView.h"
#include "MDIMainForm.h"
#include "platform/forms/hourglass.h"
#include "product_art.h"
#include "repository/frmDataSource.h"
#include "schedules/frmAddStatSch.h"
#include "schedules/frmKeepDays.h"
#include "schedules/frmSchStati.h"
#include "schedules/frmSnapConfig.h"
#include "servers/frmAddServers.h"
#include "servers/frmGetServerFile.h"
#include "servers/frmServers.h"
#include "shared_state.h"
#include "sla/frmAddApplication.h"
#include "sla/frmAddAppTrans.h"
#include "sla/frmSystemSLA.h"
#include "sla/frmTransGroup.h"
#include "specialrun/frmSpecRun.h"

#include <QHash>

#include <functional>

namespace {

struct PageEntry {
    QString name;
    std::function<Form*()> get;
};

template <class T>
PageEntry page(const char* name, FormRef<T>& ref)
{
    return { QString::fromLatin1(name), [&ref] { return static_cast<Form*>(ref.get()); } };
}

const QList<PageEntry>& pages()
{
    static const QList<PageEntry> list = {
        page("frmAddApplication", frmAddApplication),
        page("frmAddAppTrans", frmAddAppTrans),
        page("frmAddID", frmAddID),
        page("frmAddProg", frmAddProg),
        page("frmAddServers", frmAddServers),
        page("frmAddTrans", frmAddTrans),
        page("frmCurrentConfig", frmCurrentConfig),
        page("frmDataSource", frmDataSource),
        page("frmIDsToIgnore", frmIDsToIgnore),
        page("frmInitConfig", frmInitConfig),
        page("frmKeepDays", frmKeepDays),
        page("frmProgsToIgnore", frmProgsToIgnore),
        page("frmRepConfig", frmRepConfig),
        page("frmSchStati", frmSchStati),
        page("frmServers", frmServers),
        page("frmSLAconfig", frmSLAconfig),
        page("frmSnapConfig", frmSnapConfig),
        page("frmSpecRun", frmSpecRun),
        page("frmSystemSLA", frmSystemSLA),
        page("frmTransGroup", frmTransGroup),
        page("frmTransToIgnore", frmTransToIgnore),
        page("frmSchConfig", frmSchConfig),
        page("frmAddStatSch", frmAddStatSch),
        page("frmGetServerFile", frmGetServerFile),
    };
    return list;
}

// The pages the Tab key in the tree may return to: not the four information pages, not the
// network file page.
bool tabReturnsTo(const QString& name)
{
    static const QStringList excluded = { QStringLiteral("frmInitConfig"), QStringLiteral("frmRepConfig"),
        QStringLiteral("frmSLAconfig"), QStringLiteral("frmSchConfig"), QStringLiteral("frmGetServerFile") };
    return PageNames().contains(name) && !excluded.contains(name);
}

void showWithFocus(Form* page)
{
    page->Show();
    page->SetFocus();
}

} // namespace

const QStringList& PageNames()
{
    static const QStringList names = [] {
        QStringList list;
        for (const PageEntry& entry : pages())
            list << entry.name;
        return list;
    }();
    return names;
}

Form* PageByName(const QString& name)
{
    for (const PageEntry& entry : pages()) {
        if (entry.name == name)
            return entry.get();
    }
    return nullptr;
}

void HideOtherPages(const QString& PageName)
{
    for (const PageEntry& entry : pages()) {
        if (entry.name != PageName)
            entry.get()->Hide();
    }
    CurrentPage = PageName;
}

void ShowCurrentPage()
{
    if (tabReturnsTo(CurrentPage))
        PageByName(CurrentPage)->SetFocus();
}

void ShowPageForNode(const QString& Key)
{
    struct NodeAction {
        int folderMark; // -1: ExpandTreeToNode is not called
        std::function<void()> action;
    };
    static const QHash<QString, NodeAction> actions = {
        { QStringLiteral("ndSchedule"), { -1, [] { frmSchConfig->Show(); } } },
        { QStringLiteral("ndCurrentConfig"), { -1, [] { showWithFocus(frmCurrentConfig); } } },
        { QStringLiteral("ndDataSource"), { 2, [] { showWithFocus(frmDataSource); } } },
        { QStringLiteral("ndServer"), { 2, [] { showWithFocus(frmServers); } } },
        { QStringLiteral("ndKeepDays"), { 2, [] { showWithFocus(frmKeepDays); } } },
        { QStringLiteral("ndInitialConfig"), { 1, [] { showWithFocus(frmInitConfig); } } },
        { QStringLiteral("ndReportConfig"), { 6, [] { showWithFocus(frmRepConfig); } } },
        { QStringLiteral("ndProgsToIgnore"), { 6, [] { showWithFocus(frmProgsToIgnore); } } },
        { QStringLiteral("ndIDsToIgnore"), { 6, [] { showWithFocus(frmIDsToIgnore); } } },
        { QStringLiteral("ndTransToIgnore"), { 6, [] { showWithFocus(frmTransToIgnore); } } },
        { QStringLiteral("ndSLA"), { 10, [] { showWithFocus(frmSLAconfig); } } },
        { QStringLiteral("ndSystemSLA"), { 10, [] { showWithFocus(frmSystemSLA); } } },
        { QStringLiteral("ndSLAapplications"), { 10,
                                                   [] {
                                                       Hourglass::set(true);
                                                       showWithFocus(frmTransGroup);
                                                       Hourglass::set(false);
                                                   } } },
        { QStringLiteral("ndSnapConfig"), { 13, [] { showWithFocus(frmSnapConfig); } } },
        { QStringLiteral("ndSchStati"), { 13, [] { showWithFocus(frmSchStati); } } },
        { QStringLiteral("ndDVXstatiLog"), { 16, [] { MDIMainForm->mnuDVXstatiLog_Click(); } } },
        { QStringLiteral("ndDVXsnapLog"), { 16, [] { MDIMainForm->mnuDVXsnapLog_Click(); } } },
        { QStringLiteral("ndStatiLog"), { 16, [] { MDIMainForm->mnuStatiLog_Click(); } } },
        { QStringLiteral("ndSnapLog"), { 16, [] { MDIMainForm->mnuSnapLog_Click(); } } },
        { QStringLiteral("ndLoadStatiLog"), { 16, [] { MDIMainForm->mnuLoadStatiLog_Click(); } } },
        { QStringLiteral("ndLoadSnapLog"), { 16, [] { MDIMainForm->mnuLoadSnapLog_Click(); } } },
        { QStringLiteral("ndAggStatiLog"), { 16, [] { MDIMainForm->mnuAggStatiLog_Click(); } } },
        { QStringLiteral("ndAggSnapLog"), { 16, [] { MDIMainForm->mnuAggSnapLog_Click(); } } },
        { QStringLiteral("ndLoaderLog"), { 16, [] { MDIMainForm->mnuLoaderLog_Click(); } } },
        { QStringLiteral("ndSpecRun"), { 0, [] { showWithFocus(frmSpecRun); } } },
    };
    const auto found = actions.constFind(Key);
    if (found == actions.constEnd())
        return;
    if (found->folderMark >= 0)
        ExpandTreeToNode(qint16(found->folderMark));
    found->action();
}

qint16 ExpandTreeToNode(qint16 NodeIndex)
{
    try {
        for (int folder : { 2, 6, 10, 13, 16 })
            frmTreeView->SetNodeImageByIndex(folder, folder == NodeIndex ? 8 : 5);
        return 1;
    } catch (...) {
        return 0;
    }
}
