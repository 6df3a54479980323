#include "platform/forms/check_box.h"
#include "platform/forms/command_button.h"
#include "platform/forms/form.h"
#include "platform/forms/label.h"
#include "platform/forms/menu_item.h"
#include "platform/forms/option_button.h"
#include "platform/forms/text_box.h"
#include "platform/forms/tree_view.h"
#include "shell/localize_form.h"
#include "shell/shared_state.h"
#include "shell/string_library.h"

#include <QFile>
#include <QFontDatabase>
#include <QTemporaryDir>
#include <QTest>
#include <QTranslator>

namespace {

// A form as designed: catalogue ids in tags, tool tips and the menu caption.
class SampleForm : public Form
{
public:
    explicit SampleForm(const QString& tag = QStringLiteral("1400"))
        : Form(QStringLiteral("frmSample"))
    {
        SetTag(tag);
        add(new Label(this, QStringLiteral("lblTitle")), "1300");
        add(new Label(this, QStringLiteral("lblNoTag")), "", "design");
        add(new Label(this, QStringLiteral("lblClear")), "CLEAR", "design");
        add(new CommandButton(this, QStringLiteral("cmdOK")), "1200");
        add(new CommandButton(this, QStringLiteral("cmdCancel")), "1201");
        add(new CommandButton(this, QStringLiteral("cmdKeep")), "CLEAR", "Keep", "Press here");
        add(new OptionButton(this, QStringLiteral("optOracle")), "1201", "Oracle", "1474");
        add(new CheckBox(this, QStringLiteral("chkMonday")), "1347", "", "1201");
        add(new MenuItem(this, QStringLiteral("mnuExit"), QStringLiteral("1004")), "");
        add(new TextBox(this, QStringLiteral("txtName")), "CLEAR");
        static_cast<TextBox*>(control("txtName"))->SetText(QStringLiteral("typed"));
        tree = new TreeView(this, QStringLiteral("treConfigurator"));
        TreeView::SetNodeTag(tree->AddNode({}, QStringLiteral("ndCurrentConfig"), {}), QStringLiteral("1100"));
    }

    Control* control(const char* name) const { return controlOf(findChild<QObject*>(QLatin1String(name))); }
    QString caption(const char* name) const { return control(name)->Caption(); }

    TreeView* tree;

private:
    static void add(Control* control, const char* tag, const char* caption = "", const char* toolTip = "")
    {
        control->SetTag(QLatin1String(tag));
        if (*caption)
            control->SetCaption(QLatin1String(caption));
        control->SetToolTipText(QLatin1String(toolTip));
    }
};

} // namespace

class TestLocalizeForm : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        StringLibrary::setSearchDirectories({ m_libraries.path() });
        qunsetenv("LC_ALL");
        qunsetenv("LC_MESSAGES");
        qputenv("LANG", "de_CH.UTF-8");
    }

    void cleanup()
    {
        delete ResourceLibrary;
        ResourceLibrary = nullptr;
        QFile::remove(m_libraries.filePath(QStringLiteral("qd7tdcDEU.qm")));
    }

    // Without a library: the built-in texts. Captions compared blank-trimmed.
    void walk_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("caption");
        QTest::addColumn<QString>("toolTip");
        // clang-format off
        QTest::newRow("label")                          << "lblTitle"  << "Add/Edit application name" << "";
        QTest::newRow("label without tag is blank")     << "lblNoTag"  << ""          << "";
        QTest::newRow("label with no number is blank")  << "lblClear"  << ""          << "";
        QTest::newRow("button")                         << "cmdOK"     << "OK"        << "";
        QTest::newRow("text tag and tool tip kept")     << "cmdKeep"   << "Keep"      << "Press here";
        QTest::newRow("option button kept")             << "optOracle" << "Oracle"    << "1474";
        QTest::newRow("tool tip id")                    << "chkMonday" << "&Monday"   << "Cancel";
        QTest::newRow("menu caption is the id")         << "mnuExit"   << "E&xit"     << "";
        // clang-format on
    }

    void walk()
    {
        QFETCH(QString, name);
        QFETCH(QString, caption);
        QFETCH(QString, toolTip);
        SampleForm form;
        LocalizeForm(&form);
        Control* control = form.control(qPrintable(name));
        QCOMPARE(control->Caption().trimmed(), caption);
        QCOMPARE(control->ToolTipText(), toolTip);
        QCOMPARE(form.Caption(), QStringLiteral("Orvanta Monitor, Version 5.1.0 - Vantrel"));
        QCOMPARE(static_cast<TextBox*>(form.control("txtName"))->Text(), QStringLiteral("typed"));
        QCOMPARE(form.tree->Node(QStringLiteral("ndCurrentConfig"))->text(0), QStringLiteral("Current configuration"));
        QCOMPARE(form.control("lblTitle")->widget()->font().family(), QStringLiteral("MS Shell Dlg"));
        QCOMPARE(form.tree->Node(QStringLiteral("ndCurrentConfig"))->font(0).family(), QStringLiteral("MS Shell Dlg"));
        // the font database keeps family names in lower case
        QCOMPARE(QFont::substitute(QStringLiteral("MS Shell Dlg")).toLower(),
            QFontDatabase::systemFont(QFontDatabase::GeneralFont).family().toLower());
    }

    void walkAgainSetsStaticTextsBack()
    {
        SampleForm form;
        LocalizeForm(&form);
        form.control("lblTitle")->SetCaption(QStringLiteral("changed"));
        form.control("lblNoTag")->SetCaption(QStringLiteral("filled by the page"));
        LocalizeForm(&form);
        QCOMPARE(form.caption("lblTitle"), QStringLiteral("Add/Edit application name"));
        QCOMPARE(form.caption("lblNoTag").trimmed(), QString());
        // no id any more: the frame walks its menu only once
        QCOMPARE(form.caption("mnuExit").trimmed(), QString());
    }

    void formWithoutTagGetsWhatMsgTextHeld()
    {
        SampleForm form { QString() };
        MsgText = QStringLiteral("left over");
        LocalizeForm(&form);
        QCOMPARE(form.Caption(), QStringLiteral("left over"));
    }

    void germanLibraryFoundOnceItIsThere()
    {
        SampleForm english;
        LocalizeForm(&english);
        QVERIFY(!ResourceLibrary);
        QCOMPARE(english.caption("cmdCancel"), QStringLiteral("Cancel"));
        // Swiss German finds German through the default sublanguage, at the next walk
        QVERIFY(QFile::copy(QStringLiteral(QD7_TEST_STRINGS_DIR "/qd7tdcDEU.qm"),
            m_libraries.filePath(QStringLiteral("qd7tdcDEU.qm"))));
        SampleForm form;
        LocalizeForm(&form);
        QVERIFY(ResourceLibrary);
        QCOMPARE(form.Caption(), QStringLiteral("Orvanta Monitor, Version 5.1.0 - Vantrel (Deutsch)"));
        QCOMPARE(form.caption("cmdCancel"), QStringLiteral("Abbrechen"));
        QCOMPARE(form.control("chkMonday")->ToolTipText(), QStringLiteral("Abbrechen"));
        QCOMPARE(form.caption("mnuExit"), QStringLiteral("&Beenden"));
        QCOMPARE(form.tree->Node(QStringLiteral("ndCurrentConfig"))->text(0), QStringLiteral("Aktuelle Konfiguration"));
        // the library lacks these ids: empty, never English
        QCOMPARE(form.caption("cmdOK"), QString());
        QCOMPARE(form.caption("lblTitle"), QString());
    }

private:
    QTemporaryDir m_libraries;
};

QTEST_MAIN(TestLocalizeForm)
#include "tst_localize_form.moc"
