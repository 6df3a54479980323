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

namespace {

// A form as designed: catalogue ids in tags, tool tips and the menu caption.
class SampleForm : public Form
{
public:
    SampleForm()
        : Form(QStringLiteral("frmSample"))
    {
        SetTag(QStringLiteral("1400"));
        add(new Label(this, QStringLiteral("lblTitle")), "1300");
        add(new Label(this, QStringLiteral("lblNoTag")), "", "design");
        add(new CommandButton(this, QStringLiteral("cmdOK")), "1200");
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
    // The walks run in order: the German library appears only for the last.
    void initTestCase()
    {
        StringLibrary::setSearchDirectories({ m_libraries.path() });
        qunsetenv("LC_ALL");
        qunsetenv("LC_MESSAGES");
        qputenv("LANG", "de_CH.UTF-8");
    }

    // Without a library: the built-in texts, chosen by type. Captions compared blank-trimmed.
    void walkByTypeName()
    {
        const char* const expected[][3] = {
            { "lblTitle", "Add/Edit application name", "" }, { "lblNoTag", "", "" }, // a label without an id is blank
            { "cmdOK", "OK", "" }, { "cmdKeep", "Keep", "Press here" }, // no id: caption and tool tip kept
            { "optOracle", "Oracle", "1474" }, // option buttons untouched
            { "chkMonday", "&Monday", "Cancel" }, { "mnuExit", "E&xit", "" }, // a menu's caption is its id
        };
        SampleForm form;
        LocalizeForm(&form);
        for (const auto& [name, caption, toolTip] : expected) {
            QCOMPARE(form.caption(name).trimmed(), QLatin1String(caption));
            QCOMPARE(form.control(name)->ToolTipText(), QLatin1String(toolTip));
        }
        QCOMPARE(form.Caption(), QStringLiteral("Orvanta Monitor, Version 5.1.0 - Vantrel"));
        QCOMPARE(static_cast<TextBox*>(form.control("txtName"))->Text(), QStringLiteral("typed"));
        QCOMPARE(form.tree->Node(QStringLiteral("ndCurrentConfig"))->text(0), QStringLiteral("Current configuration"));
        QCOMPARE(form.control("lblTitle")->widget()->font().family(), QStringLiteral("MS Shell Dlg"));
        // the font database keeps family names in lower case
        QCOMPARE(QFont::substitute(QStringLiteral("MS Shell Dlg")).toLower(),
            QFontDatabase::systemFont(QFontDatabase::GeneralFont).family().toLower());
    }

    void germanLibraryFoundOnceItIsThere()
    {
        QVERIFY(!ResourceLibrary); // none found by the walks before: searched again at the next
        // Swiss German finds German through the default sublanguage
        QVERIFY(QFile::copy(QStringLiteral(QD7_TEST_STRINGS_DIR "/qd7tdcDEU.qm"),
            m_libraries.filePath(QStringLiteral("qd7tdcDEU.qm"))));
        SampleForm form;
        LocalizeForm(&form);
        QVERIFY(ResourceLibrary);
        QCOMPARE(form.Caption(), QStringLiteral("Orvanta Monitor, Version 5.1.0 - Vantrel (Deutsch)"));
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
