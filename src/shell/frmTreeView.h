#pragma once

#include "platform/forms/form.h"
#include "platform/forms/form_ref.h"

#include <QIcon>

class Label;
class TreeView;
class QTreeWidgetItem;

// The navigation pane: the configuration tree and the legal notice, fixed at the frame's left.
class TreeViewForm : public Form
{
    Q_OBJECT

public:
    TreeViewForm();

    void Form_Load() override;
    void Form_KeyDown(int KeyCode, int Shift) override;
    void treConfigurator_KeyDown(int KeyCode, int Shift);
    void treConfigurator_MouseDown(int Button, int Shift, int x, int y);

    // Node index in creation order and image index in TreeViewImageList, both from 1.
    void SetNodeImageByIndex(int nodeIndex, int imageIndex);
    QTreeWidgetItem* NodeByIndex(int nodeIndex) const;

    TreeView* treConfigurator;
    Label* lblCopyWrite;
    QList<QIcon> TreeViewImageList;

private:
    QList<QTreeWidgetItem*> m_nodes;
};

extern FormRef<TreeViewForm> frmTreeView;
