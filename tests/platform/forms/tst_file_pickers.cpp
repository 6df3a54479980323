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
        QVERIFY(QDir(m_dir.path()).mkpath(QStringLiteral("b/inner")) && QDir(m_dir.path()).mkpath(QStringLiteral("a")));
    }
    void cleanup() { delete m_form; }

    // The roots are asked for only when first seen, and "/" is the current one. A folder path set
    // while hidden is what the tree shows once seen: the folders from the root, then the subfolders.
    void drivesAndFoldersFillWhenSeen()
    {
        auto* drives = new DriveListBox(m_form, QStringLiteral("drvDriveList"));
        auto* folders = new DirListBox(m_form, QStringLiteral("dirDirList"));
        int changes = 0;
        drives->Change.connect([&] { changes += 100; });
        folders->Change.connect([&] { ++changes; });
        QCOMPARE(drives->count(), 0);
        drives->SetDrive(QStringLiteral("/"));
        drives->SetDrive(QStringLiteral("no such root"));
        QCOMPARE(drives->Drive(), QStringLiteral("/"));
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
        folders->SetPath(m_dir.filePath(QStringLiteral("b"))); // while seen, at once
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
        QCOMPARE(files->ListIndex(), -1);
        files->setCurrentRow(1);
        QCOMPARE(files->FileName().toLower(), QStringLiteral("qd7server.dat"));
    }

private:
    QTemporaryDir m_dir;
    Form* m_form = nullptr;
};

QTEST_MAIN(TestFilePickers)
#include "tst_file_pickers.moc"
