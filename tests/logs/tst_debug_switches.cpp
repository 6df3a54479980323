#include "platform/forms/menu_item.h"
#include "settings/registry_values.h"
#include "shell/MDIMainForm.h"
#include "shell/shared_state.h"
#include "support/console_fixture.h"

#include <QMenu>

namespace {

// A null text stands for a value that isn't in the store at all.
void store(const char* name, const QString& value)
{
    if (value.isNull())
        DeleteRegistry(name);
    else
        ConsoleFixture::setValue(name, value);
}

} // namespace

// The debug switches of the Options menu: check marks from the store, clicks written at once.
class TestDebugSwitches : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QVERIFY(ConsoleFixture::startWithFirstPage());
    }

    void marks_data()
    {
        QTest::addColumn<QString>("snap");
        QTest::addColumn<QString>("load");
        QTest::addColumn<bool>("traceMark");
        QTest::addColumn<bool>("haltMark");
        QTest::newRow("True") << "True" << "True" << true << true;
        QTest::newRow("true, TRUE") << "true" << "TRUE" << false << false;
        QTest::newRow("missing") << QString() << QString() << false << false;
        QTest::newRow("blank around") << "True " << " True" << false << false;
    }

    void marks()
    {
        QFETCH(QString, snap);
        QFETCH(QString, load);
        QFETCH(bool, traceMark);
        QFETCH(bool, haltMark);
        store("SnapDebug", snap);
        store("StatiDebug", QStringLiteral("True")); // never consulted for the mark
        store("LoadDebug", load);
        emit MDIMainForm->mnuOptions->menu()->aboutToShow();
        QCOMPARE(MDIMainForm->mnuDebugLogFiles->Checked(), traceMark);
        QCOMPARE(MDIMainForm->mnuLoaderHalt->Checked(), haltMark);
    }

    // A click goes by the check mark, not by the store: two clicks from SnapDebug "False" leave
    // both trace values "False", whatever StatiDebug held; LoadDebug set meanwhile is set again.
    void clicksWriteAtOnce()
    {
        store("SnapDebug", QStringLiteral("False"));
        store("StatiDebug", QStringLiteral("True"));
        store("LoadDebug", QString());
        MDIMainForm->mnuOptions_Click();
        store("LoadDebug", QStringLiteral("True"));
        QStringList seen;
        for (int click = 0; click < 2; ++click) {
            MDIMainForm->mnuDebugLogFiles->trigger();
            MDIMainForm->mnuLoaderHalt->trigger();
            for (const char* name : { "SnapDebug", "StatiDebug", "LoadDebug" })
                seen << ReadRegValue(QString::fromLatin1(name));
        }
        QCOMPARE(seen, QStringList({ "True", "True", "True", "False", "False", "False" }));
        QVERIFY(!MDIMainForm->mnuDebugLogFiles->Checked() && !MDIMainForm->mnuLoaderHalt->Checked());
    }

private:
    ConsoleFixture m_console;
};

QTEST_MAIN(TestDebugSwitches)
#include "tst_debug_switches.moc"
