#pragma once

#include <QString>

class Form;

// The 24 pages in the order HideOtherPages walks them; a page not loaded yet is created on the way.
const QStringList& PageNames();
Form* PageByName(const QString& name);

// Hides every page but the one named, creating and loading those not loaded yet, and records the
// named one as CurrentPage.
void HideOtherPages(const QString& PageName);

// Gives the focus to CurrentPage when it is one of the pages the Tab key may return to.
void ShowCurrentPage();

// What selecting a tree node does: show a page, open a log, or nothing.
void ShowPageForNode(const QString& Key);

// Shows the open-folder image on the folder node whose index is given and the closed one on the
// other four; 1, or 0 after any failure.
qint16 ExpandTreeToNode(qint16 NodeIndex);
