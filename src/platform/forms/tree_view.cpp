#include "tree_view.h"

#include "key_preview.h"
#include "twips.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QSignalBlocker>

TreeView::TreeView(QWidget* parent, const QString& name)
    : QTreeWidget(parent)
    , Control(this, this, parent, QStringLiteral("TreeView"), name)
{
    setHeaderHidden(true);
    setColumnCount(1);
    connect(this, &QTreeWidget::itemClicked, this, [this](QTreeWidgetItem* node) { NodeClick.raiseFromQt(node); });
}

QTreeWidgetItem* TreeView::AddNode(const QString& parentKey, const QString& key, const QString& text, int image)
{
    QTreeWidgetItem* parentNode = parentKey.isEmpty() ? nullptr : m_nodes.value(parentKey);
    auto* node = parentNode ? new QTreeWidgetItem(parentNode) : new QTreeWidgetItem(this);
    node->setText(0, text);
    node->setData(0, KeyRole, key);
    SetNodeImage(node, image);
    m_nodes.insert(key, node);
    return node;
}

QTreeWidgetItem* TreeView::Node(const QString& key) const
{
    return m_nodes.value(key);
}

QList<QTreeWidgetItem*> TreeView::Nodes() const
{
    QList<QTreeWidgetItem*> nodes;
    for (QTreeWidgetItemIterator it(const_cast<TreeView*>(this)); *it; ++it)
        nodes << *it;
    return nodes;
}

QString TreeView::NodeKey(const QTreeWidgetItem* node)
{
    return node ? node->data(0, KeyRole).toString() : QString();
}

QString TreeView::NodeTag(const QTreeWidgetItem* node)
{
    return node ? node->data(0, TagRole).toString() : QString();
}

void TreeView::SetNodeTag(QTreeWidgetItem* node, const QString& tag)
{
    if (node)
        node->setData(0, TagRole, tag);
}

void TreeView::SetNodeImage(QTreeWidgetItem* node, int image)
{
    if (node)
        node->setIcon(0, image >= 0 && image < m_images.size() ? m_images.at(image) : QIcon());
}

QTreeWidgetItem* TreeView::HitTest(int x, int y) const
{
    return itemAt(Twips::toPixels(x), Twips::toPixels(y));
}

void TreeView::SetSelectedItem(QTreeWidgetItem* node)
{
    const QSignalBlocker blocker(this);
    setCurrentItem(node);
}

bool TreeView::event(QEvent* event)
{
    if (event->type() == QEvent::KeyPress) {
        auto* key = static_cast<QKeyEvent*>(event);
        if (key->key() == Qt::Key_Tab || key->key() == Qt::Key_Backtab) {
            KeyDown.raiseFromQt(KeyPreview::keyCode(key), KeyPreview::shiftMask(key));
            return true;
        }
    }
    return QTreeWidget::event(event);
}

void TreeView::mousePressEvent(QMouseEvent* event)
{
    const int button = event->button() == Qt::LeftButton ? 1 : event->button() == Qt::RightButton ? 2 : 4;
    const int shift = KeyPreview::shiftMask(event->modifiers());
    QPointer<TreeView> guard(this);
    const QPoint at = event->position().toPoint();
    QTreeWidget::mousePressEvent(event);
    if (guard)
        MouseDown.raiseFromQt(button, shift, Twips::fromPixels(at.x()), Twips::fromPixels(at.y()));
}

void TreeView::keyPressEvent(QKeyEvent* event)
{
    KeyDown.raiseFromQt(KeyPreview::keyCode(event), KeyPreview::shiftMask(event));
    QTreeWidget::keyPressEvent(event);
}
