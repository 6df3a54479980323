#pragma once

#include "control.h"

#include <QIcon>
#include <QTreeWidget>

// A tree of nodes, each with a key (kept in Qt::UserRole of column 0), a tag and an image of the
// tree's image list.
class TreeView : public QTreeWidget, public Control
{
    Q_OBJECT

public:
    static constexpr int KeyRole = Qt::UserRole;
    static constexpr int TagRole = Qt::UserRole + 1;

    TreeView(QWidget* parent, const QString& name);

    void SetImageList(const QList<QIcon>& images) { m_images = images; }
    // Adds a node under the node with parentKey, or at the top for an empty parentKey.
    QTreeWidgetItem* AddNode(const QString& parentKey, const QString& key, const QString& text, int image = -1);
    QTreeWidgetItem* Node(const QString& key) const;
    QList<QTreeWidgetItem*> Nodes() const;
    static QString NodeKey(const QTreeWidgetItem* node);
    static QString NodeTag(const QTreeWidgetItem* node);
    static void SetNodeTag(QTreeWidgetItem* node, const QString& tag);
    void SetNodeImage(QTreeWidgetItem* node, int image);
    // The node at a point given in twips, or null.
    QTreeWidgetItem* HitTest(int x, int y) const;
    QTreeWidgetItem* SelectedItem() const { return currentItem(); }
    void SetSelectedItem(QTreeWidgetItem* node);

    Event<QTreeWidgetItem*> NodeClick;
    // button (1 left, 2 right, 4 middle), shift mask, x and y in twips
    Event<int, int, int, int> MouseDown;
    Event<int, int> KeyDown;

protected:
    // Tab is a key of the tree's own, not a step in the focus chain.
    bool event(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QList<QIcon> m_images;
    QHash<QString, QTreeWidgetItem*> m_nodes;
};
