#pragma once

#include <QString>

class ListBox;
struct ExclusionFile;

// The three load routines append every entry of their file, in file order, without clearing the
// target first. The target is the list of the routine's own page when `caller` names that page
// ("frmIDsToIgnore", "frmProgsToIgnore", "frmTransToIgnore"), otherwise the matching combo box of
// frmCurrentConfig.
void LoadIDsToIgnore(const QString& caller);
void LoadProgsToIgnore(const QString& caller);
void LoadTransToIgnore(const QString& caller);

// The save of an exclusion page, its list being the working copy. An empty list deletes the file
// and nothing more. Otherwise the old file is copied over the .bak file and deleted, and every
// entry is selected in turn and written as its line; the last entry stays selected and the status
// bar says "KQM7052I Action successful". A failure part way leaves the file missing or partial,
// with the previous contents in the .bak file.
void SaveExclusionList(const ExclusionFile& file, ListBox* list);
