#pragma once

#include "control.h"

#include <QComboBox>
#include <QListWidget>
#include <QTreeWidget>

// The drive, folder and file pickers. Linux has no drive letters: the drive list holds the
// mounted file systems' roots, and paths join with "/".

class DriveListBox : public QComboBox, public Control
{
    Q_OBJECT

public:
    DriveListBox(QWidget* parent, const QString& name);

    QString Drive();
    void SetDrive(const QString& drive);

    Event<> Change;

protected:
    void showEvent(QShowEvent* event) override;
    void showPopup() override;

private:
    void fillRoots();
};

// The folders from the root down to Path, and Path's subfolders.
class DirListBox : public QTreeWidget, public Control
{
    Q_OBJECT

public:
    DirListBox(QWidget* parent, const QString& name);

    QString Path() const { return m_path; }
    void SetPath(const QString& path);

    Event<> Change;

protected:
    void showEvent(QShowEvent* event) override;

private:
    void rebuild();
    void rebuildWhenSeen();

    QString m_path;
    bool m_stale = true;
};

// The files of Path whose names match Pattern ("*.dat", or a full name), sorted.
class FileListBox : public QListWidget, public Control
{
    Q_OBJECT

public:
    FileListBox(QWidget* parent, const QString& name);

    QString Path() const { return m_path; }
    void SetPath(const QString& path);
    QString Pattern() const { return m_pattern; }
    void SetPattern(const QString& pattern);
    QString FileName() const;
    int ListIndex() const;
    int ListCount() const { return count(); }
    void Refresh();

    Event<> Click;
    Event<> DblClick;

private:
    QString m_path;
    QString m_pattern = QStringLiteral("*");
};
