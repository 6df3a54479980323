#include "file_pickers.h"

#include <QDir>
#include <QSignalBlocker>
#include <QStorageInfo>

namespace {
constexpr int PathRole = Qt::UserRole;
}

DriveListBox::DriveListBox(QWidget* parent, const QString& name)
    : QComboBox(parent)
    , Control(this, this, parent, QStringLiteral("DriveListBox"), name)
{
    connect(this, &QComboBox::activated, this, [this] { Change.raiseFromQt(); });
}

// Asking for the mounted file systems costs more than making the whole page, and the page is
// made hidden at every start: the list fills when it is first shown or asked.
void DriveListBox::fillRoots()
{
    if (count() > 0)
        return;
    QStringList roots { QStringLiteral("/") }; // a chroot's root need not be a mount of its own
    for (const QStorageInfo& volume : QStorageInfo::mountedVolumes()) {
        if (volume.isValid() && volume.isReady())
            roots << volume.rootPath();
    }
    roots.removeDuplicates();
    roots.sort();
    const QSignalBlocker blocker(this);
    addItems(roots);
    setCurrentIndex(int(roots.indexOf(QStringLiteral("/"))));
}

QString DriveListBox::Drive()
{
    fillRoots();
    return currentText();
}

void DriveListBox::showEvent(QShowEvent* event)
{
    fillRoots();
    QComboBox::showEvent(event);
}

void DriveListBox::showPopup()
{
    fillRoots();
    QComboBox::showPopup();
}

void DriveListBox::SetDrive(const QString& drive)
{
    fillRoots();
    const int found = findText(drive);
    if (found < 0 || found == currentIndex())
        return;
    {
        const QSignalBlocker blocker(this);
        setCurrentIndex(found);
    }
    Change.raise();
}

DirListBox::DirListBox(QWidget* parent, const QString& name)
    : QTreeWidget(parent)
    , Control(this, this, parent, QStringLiteral("DirListBox"), name)
{
    setHeaderHidden(true);
    setRootIsDecorated(false);
    connect(this, &QTreeWidget::itemActivated, this, [this](QTreeWidgetItem* item) {
        const QString path = item->data(0, PathRole).toString();
        if (path != m_path) {
            m_path = path;
            rebuild();
            Change.raiseFromQt();
        }
    });
    m_path = QDir::rootPath();
}

// Like the drive list, the tree is made when it is first seen, not with its hidden page.
void DirListBox::showEvent(QShowEvent* event)
{
    if (m_stale)
        rebuild();
    QTreeWidget::showEvent(event);
}

void DirListBox::rebuildWhenSeen()
{
    if (isVisible())
        rebuild();
    else
        m_stale = true;
}

void DirListBox::SetPath(const QString& path)
{
    const QString cleaned = QDir::cleanPath(path);
    if (cleaned == m_path || !QFileInfo(cleaned).isDir())
        return;
    m_path = cleaned;
    rebuildWhenSeen();
    Change.raise();
}

void DirListBox::rebuild()
{
    m_stale = false;
    const QSignalBlocker blocker(this);
    clear();
    QStringList chain;
    for (QDir dir(m_path);; dir.cdUp()) {
        chain.prepend(dir.absolutePath());
        if (dir.isRoot())
            break;
    }
    QTreeWidgetItem* parentItem = nullptr;
    for (const QString& path : std::as_const(chain)) {
        auto* item = parentItem ? new QTreeWidgetItem(parentItem) : new QTreeWidgetItem(this);
        const QString name = QFileInfo(path).fileName();
        item->setText(0, name.isEmpty() ? path : name);
        item->setData(0, PathRole, path);
        item->setExpanded(true);
        parentItem = item;
    }
    const QFileInfoList subfolders = QDir(m_path).entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
    for (const QFileInfo& folder : subfolders) {
        auto* item = new QTreeWidgetItem(parentItem);
        item->setText(0, folder.fileName());
        item->setData(0, PathRole, folder.absoluteFilePath());
    }
    setCurrentItem(parentItem);
}

FileListBox::FileListBox(QWidget* parent, const QString& name)
    : QListWidget(parent)
    , Control(this, this, parent, QStringLiteral("FileListBox"), name)
{
    setSelectionMode(QAbstractItemView::SingleSelection);
    connect(this, &QListWidget::itemSelectionChanged, this, [this] { Click.raiseFromQt(); });
    connect(this, &QListWidget::itemDoubleClicked, this, [this] { DblClick.raiseFromQt(); });
}

void FileListBox::SetPath(const QString& path)
{
    m_path = QDir::cleanPath(path);
    Refresh();
}

void FileListBox::SetPattern(const QString& pattern)
{
    m_pattern = pattern;
    Refresh();
}

QString FileListBox::FileName() const
{
    const QList<QListWidgetItem*> selected = selectedItems();
    return selected.isEmpty() ? QString() : selected.first()->text();
}

int FileListBox::ListIndex() const
{
    const QList<QListWidgetItem*> selected = selectedItems();
    return selected.isEmpty() ? -1 : row(selected.first());
}

// Names match the pattern in any letter case, as on the file systems the pattern comes from.
void FileListBox::Refresh()
{
    const QSignalBlocker blocker(this);
    clear();
    if (m_path.isEmpty())
        return;
    QDir dir(m_path);
    dir.setNameFilters(m_pattern.split(QLatin1Char(';'), Qt::SkipEmptyParts));
    dir.setFilter(QDir::Files | QDir::Hidden);
    dir.setSorting(QDir::Name | QDir::IgnoreCase);
    addItems(dir.entryList());
}
