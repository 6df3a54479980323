#include "platform/forms/file_pickers.h"
#include "platform/forms/form.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

class TestFilePickers : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_form = new Form(QStringLiteral("frmTest"), Form::Kind::Window);
        QVERIFY(m_dir.isValid());
        QDir(m_dir.path()).mkpath(QStringLiteral("b/inner"));
        QDir(m_dir.path()).mkpath(QStringLiteral("a"));
    }
    void cleanup() { delete m_form; }

    // The roots are asked for only when the list is first needed, and "/" is the current one.
    void driveListStartsAtTheRoot()
    {
        auto* drives = new DriveListBox(m_form, QStringLiteral("drvDriveList"));
        int changes = 0;
        drives->Change.connect([&] { ++changes; });
        QCOMPARE(drives->count(), 0);
        QCOMPARE(drives->Drive(), QStringLiteral("/"));
        drives->SetDrive(QStringLiteral("/"));
        drives->SetDrive(QStringLiteral("no such root"));
        QCOMPARE(changes, 0);
        QCOMPARE(drives->Drive(), QStringLiteral("/"));
    }

    // A path set while hidden is what the tree shows once seen: the chain of folders from the
    // root, then the subfolders by name.
    void folderTreeFollowsThePath()
    {
        auto* folders = new DirListBox(m_form, QStringLiteral("dirDirList"));
        int changes = 0;
        folders->Change.connect([&] { ++changes; });
        folders->SetPath(m_dir.path() + QStringLiteral("/"));
        folders->SetPath(m_dir.filePath(QStringLiteral("missing")));
        QCOMPARE(changes, 1);
        QCOMPARE(folders->Path(), m_dir.path());
        QCOMPARE(folders->topLevelItemCount(), 0);

        m_form->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_form));
        QTreeWidgetItem* current = folders->currentItem();
        QVERIFY(current);
        QCOMPARE(current->text(0), QFileInfo(m_dir.path()).fileName());
        QCOMPARE(folders->topLevelItem(0)->text(0), QStringLiteral("/"));
        QCOMPARE(current->childCount(), 2);
        QCOMPARE(current->child(0)->text(0), QStringLiteral("a"));
        QCOMPARE(current->child(1)->text(0), QStringLiteral("b"));

        // while seen, a new path shows at once
        folders->SetPath(m_dir.filePath(QStringLiteral("b")));
        QCOMPARE(folders->currentItem()->text(0), QStringLiteral("b"));
        QCOMPARE(folders->currentItem()->child(0)->text(0), QStringLiteral("inner"));
    }

    // The pattern matches names in any letter case; folders are not files.
    void fileListFiltersByName()
    {
        for (const char* name : { "qd7server.dat", "QD7SERVER.DAT", "qd7server.bak" }) {
            QFile file(m_dir.filePath(QLatin1String(name)));
            QVERIFY(file.open(QIODevice::WriteOnly));
        }
        QDir(m_dir.path()).mkpath(QStringLiteral("Qd7Server.dat"));
        auto* files = new FileListBox(m_form, QStringLiteral("fileFileList"));
        files->SetPattern(QStringLiteral("qd7server.dat"));
        files->SetPath(m_dir.path());
        QCOMPARE(files->ListCount(), 2);
        QCOMPARE(files->FileName(), QString());
        QCOMPARE(files->ListIndex(), -1);
        files->setCurrentRow(1);
        QCOMPARE(files->ListIndex(), 1);
        QCOMPARE(files->FileName().toLower(), QStringLiteral("qd7server.dat"));
    }

private:
    QTemporaryDir m_dir;
    Form* m_form = nullptr;
};

QTEST_MAIN(TestFilePickers)
#include "tst_file_pickers.moc"
