#include "exclusion_lists.h"

#include "exclusion_files.h"
#include "frmIDsToIgnore.h"
#include "frmProgsToIgnore.h"
#include "frmTransToIgnore.h"
#include "platform/file_system.h"
#include "platform/forms/combo_box.h"
#include "platform/forms/list_box.h"
#include "platform/line_file.h"
#include "shell/frmCurrentConfig.h"
#include "shell/page_frame.h"

namespace {

template <class Target>
void loadInto(const ExclusionFile& file, Target* target)
{
    ReadExclusionEntries(file, [target](const QString& entry) { target->AddItem(entry); });
}

} // namespace

void LoadIDsToIgnore(const QString& caller)
{
    if (caller == QLatin1String("frmIDsToIgnore"))
        loadInto(ExclusionFiles::IDs, frmIDsToIgnore->lstIDsToIgnore);
    else
        loadInto(ExclusionFiles::IDs, frmCurrentConfig->cmbIDs);
}

void LoadProgsToIgnore(const QString& caller)
{
    if (caller == QLatin1String("frmProgsToIgnore"))
        loadInto(ExclusionFiles::Programs, frmProgsToIgnore->lstProgsToIgnore);
    else
        loadInto(ExclusionFiles::Programs, frmCurrentConfig->cmbPrograms);
}

void LoadTransToIgnore(const QString& caller)
{
    if (caller == QLatin1String("frmTransToIgnore"))
        loadInto(ExclusionFiles::Transactions, frmTransToIgnore->lstTransToIgnore);
    else
        loadInto(ExclusionFiles::Transactions, frmCurrentConfig->cmbTransactions);
}

void SaveExclusionList(const ExclusionFile& file, ListBox* list)
{
    const QString path = file.path();
    // an empty list is never stored as an empty file; the last .bak stays as it is
    if (list->ListCount() == 0) {
        if (fileExists(path))
            deleteFile(path);
        return;
    }
    if (fileExists(path)) {
        copyFile(path, file.backupPath());
        deleteFile(path);
    }
    LineFile lines(path, LineFile::Mode::Append);
    for (int i = 0; i < list->ListCount(); ++i) {
        list->SetListIndex(i);
        lines.writeLine(ExclusionLine(list->Text(), file.width));
    }
    lines.close();
    ShowStatus(1455);
}
