#include "frmTreeView.h"

#include "localize_form.h"
#include "navigation.h"
#include "page_frame.h"
#include "platform/forms/label.h"
#include "platform/forms/tree_view.h"
#include "platform/runtime_error.h"
#include "product_art.h"
#include "shared_state.h"

FormRef<TreeViewForm> frmTreeView;

namespace {

struct NodeEntry {
    const char* key;
    int parent; // index of the folder, 0 for a top-level node
    int tag;
    ProductArt::TreeImage image;
};

using Img = ProductArt::TreeImage;

// The 26 nodes in creation order; the order is their index, which the folder marks rely on.
const NodeEntry nodeEntries[] = {
    { "ndCurrentConfig", 0, 1100, Img::CloseFolder },
    { "ndInitialConfig", 0, 1108, Img::CloseFolder },
    { "ndDataSource", 2, 1113, Img::Data },
    { "ndServer", 2, 1114, Img::Server },
    { "ndKeepDays", 2, 1115, Img::Data },
    { "ndReportConfig", 0, 1109, Img::CloseFolder },
    { "ndProgsToIgnore", 6, 1116, Img::Apps },
    { "ndIDsToIgnore", 6, 1117, Img::ID },
    { "ndTransToIgnore", 6, 1118, Img::Trans },
    { "ndSLA", 0, 1110, Img::CloseFolder },
    { "ndSLAapplications", 10, 1119, Img::SLA },
    { "ndSystemSLA", 10, 1120, Img::SLA },
    { "ndSchedule", 0, 1111, Img::CloseFolder },
    { "ndSchStati", 13, 1121, Img::OSCollect },
    { "ndSnapConfig", 13, 1122, Img::OSCollect },
    { "ndLogs", 0, 1112, Img::CloseFolder },
    { "ndDVXstatiLog", 16, 1123, Img::TransGroup },
    { "ndDVXsnapLog", 16, 1124, Img::TransGroup },
    { "ndStatiLog", 16, 1126, Img::TransGroup },
    { "ndSnapLog", 16, 1127, Img::TransGroup },
    { "ndLoadStatiLog", 16, 1129, Img::TransGroup },
    { "ndLoadSnapLog", 16, 1130, Img::TransGroup },
    { "ndAggStatiLog", 16, 1132, Img::TransGroup },
    { "ndAggSnapLog", 16, 1133, Img::TransGroup },
    { "ndLoaderLog", 16, 1135, Img::TransGroup },
    { "ndSpecRun", 0, 1136, Img::SpecRun },
};

} // namespace

TreeViewForm::TreeViewForm()
    : Form(QStringLiteral("frmTreeView"), Kind::MdiChild)
{
    SetKeyPreview(true);
    treConfigurator = new TreeView(this, QStringLiteral("treConfigurator"));
    treConfigurator->Move(0, 120, 3360, 4335);
    treConfigurator->KeyDown.connect(this, &TreeViewForm::treConfigurator_KeyDown);
    treConfigurator->MouseDown.connect(this, &TreeViewForm::treConfigurator_MouseDown);
    lblCopyWrite = new Label(this, QStringLiteral("lblCopyWrite"));
    lblCopyWrite->SetTag(QStringLiteral("1485"));
    lblCopyWrite->Move(120, 4560, 3255, 375);
    for (int i = 1; i <= ProductArt::TreeImageCount; ++i)
        TreeViewImageList << QIcon(ProductArt::treeImage(Img(i)));
}

void TreeViewForm::Form_Load()
{
    treConfigurator->SetImageList(TreeViewImageList);
    m_nodes.clear();
    for (const NodeEntry& entry : nodeEntries) {
        const QString parentKey = entry.parent ? TreeView::NodeKey(m_nodes.at(entry.parent - 1)) : QString();
        QTreeWidgetItem* node = treConfigurator->AddNode(parentKey, QString::fromLatin1(entry.key), QString(), int(entry.image) - 1);
        TreeView::SetNodeTag(node, QString::number(entry.tag));
        if (entry.image == Img::CloseFolder) {
            // a folder shows the open folder while selected
            QIcon icon(ProductArt::treeImage(Img::CloseFolder));
            icon.addPixmap(ProductArt::treeImage(Img::OpenFolder), QIcon::Selected);
            node->setIcon(0, icon);
        }
        m_nodes << node;
    }
    Move(0, 0, PageFrame::PaneWidth, PageFrame::PaneHeight);
    LocalizeForm(this);
}

void TreeViewForm::Form_KeyDown(int KeyCode, int Shift)
{
    Q_UNUSED(Shift);
    if (KeyCode == 9)
        ShowCurrentPage();
}

void TreeViewForm::treConfigurator_KeyDown(int KeyCode, int Shift)
{
    Q_UNUSED(Shift);
    if (KeyCode == 9)
        ShowCurrentPage();
    else if (KeyCode == 13)
        ShowPageForNode(TreeView::NodeKey(treConfigurator->SelectedItem()));
}

void TreeViewForm::treConfigurator_MouseDown(int Button, int Shift, int x, int y)
{
    Q_UNUSED(Button);
    Q_UNUSED(Shift);
    QTreeWidgetItem* node = treConfigurator->HitTest(x, y);
    if (!node)
        return;
    SelectedNodeKey = TreeView::NodeKey(node);
    ShowPageForNode(SelectedNodeKey);
}

QTreeWidgetItem* TreeViewForm::NodeByIndex(int nodeIndex) const
{
    if (nodeIndex < 1 || nodeIndex > m_nodes.size())
        throw RuntimeError(RuntimeError::SubscriptOutOfRange, QStringLiteral("Node %1 of the tree").arg(nodeIndex));
    return m_nodes.at(nodeIndex - 1);
}

void TreeViewForm::SetNodeImageByIndex(int nodeIndex, int imageIndex)
{
    if (imageIndex < 1 || imageIndex > TreeViewImageList.size())
        throw RuntimeError(RuntimeError::SubscriptOutOfRange, QStringLiteral("Image %1 of the tree").arg(imageIndex));
    QIcon icon = TreeViewImageList.at(imageIndex - 1);
    if (imageIndex == int(Img::CloseFolder))
        icon.addPixmap(ProductArt::treeImage(Img::OpenFolder), QIcon::Selected);
    NodeByIndex(nodeIndex)->setIcon(0, icon);
}
