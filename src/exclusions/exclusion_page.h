#pragma once

#include "platform/forms/list_box.h"

// The list of an exclusion page, the page's working copy: sorted, so an entry takes its place as
// it comes, and at the same place on all three pages.
inline ListBox* makeExclusionList(QWidget* page, const char* name)
{
    auto* list = new ListBox(page, QString::fromLatin1(name));
    list->SetSorted(true);
    list->Move(480, 2160, 3495, 2205);
    return list;
}
