#pragma once

#include <QString>

// Brings the repository settings (User, DSN, Access, INST, DB, Oracle) into a page. With the caller
// "frmDataSource" the fields of that page take them; with any other caller only the data source
// goes to txtDataSource of frmCurrentConfig. The database type options of frmDataSource are set
// for every caller, and their click handlers run. A value that is missing or empty leaves its
// control as it was; an Access value that can't be deciphered leaves txtPassword empty and says so
// on the status bar.
void LoadDataSource(const QString& caller);
