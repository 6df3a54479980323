#pragma once

#include "platform/forms/form.h"
#include "platform/forms/form_ref.h"

class MenuItem;
class QMdiArea;
class QMenuBar;
class QStatusBar;

// The frame: the menu, the area that holds the pane and the pages, and the status bar.
class MainForm : public Form
{
    Q_OBJECT

public:
    MainForm();

    void Form_Load() override { MDIForm_Load(); }
    void Form_Unload() override { MDIForm_Unload(); }
    void MDIForm_Load();
    void MDIForm_Unload();

    // Whether a two-character switch at StartPos of Text stands alone up to NextPos (0: the end).
    bool validate_parms(qint16 StartPos, qint16 NextPos, const QString& Text) const;

    void mnuExit_Click();
    void mnuDVXstatiLog_Click();
    void mnuDVXsnapLog_Click();
    void mnuStatiLog_Click();
    void mnuSnapLog_Click();
    void mnuLoadStatiLog_Click();
    void mnuLoadSnapLog_Click();
    void mnuAggStatiLog_Click();
    void mnuAggSnapLog_Click();
    void mnuLoaderLog_Click();
    void mnuOptions_Click();
    void mnuDebugLogFiles_Click();
    void mnuLoaderHalt_Click();
    void mnuAbout_Click();

    QMdiArea* mdiArea;
    QMenuBar* menuBar;
    QStatusBar* staMainStatusBar;

    MenuItem* mnuFile;
    MenuItem* mnuExit;
    MenuItem* mnuLogs;
    MenuItem* mnuDVXstatiLog;
    MenuItem* mnuDVXsnapLog;
    MenuItem* mnustatiLog;
    MenuItem* mnusnapLog;
    MenuItem* mnuLoadStatiLog;
    MenuItem* mnuLoadSnapLog;
    MenuItem* mnuAggStatiLog;
    MenuItem* mnuAggSnapLog;
    MenuItem* mnuLoaderLog;
    MenuItem* mnuOptions;
    MenuItem* mnuCurrentConfig;
    MenuItem* mnuInitialConfig;
    MenuItem* mnuDataSource;
    MenuItem* mnuServers;
    MenuItem* mnuDataRetensionPeriod;
    MenuItem* mnuReportConfig;
    MenuItem* mnuPrograms;
    MenuItem* mnuIDs;
    MenuItem* mnuTransactions;
    MenuItem* mnuSLA;
    MenuItem* mnuCustomizedSLA;
    MenuItem* mnuSystemSLA;
    MenuItem* mnuSchedule;
    MenuItem* mnuSchStatistics;
    MenuItem* mnuSnap;
    MenuItem* mnuSpecRun;
    MenuItem* mnuDebug;
    MenuItem* mnuDebugLogFiles;
    MenuItem* mnuLoaderHalt;
    MenuItem* mnuHelpMain;
    MenuItem* mnuAbout;

protected:
    bool event(QEvent* event) override;

private:
    void buildMenu();
};

extern FormRef<MainForm> MDIMainForm;
