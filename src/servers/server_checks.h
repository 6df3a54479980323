#pragma once

#include <QString>

// The rules of a server entry that need no page.

// What must be a qualified host name: the text after the last "/" of a route, or all of it.
QString HostPart(const QString& server);

// The host part holds a "." and is no number once its dots are gone, by the broad numeric test:
// "sap1.corp" and "/H/gw/S/3299/H/sap1.corp" pass; "sap1", "10.0.0.7", "1.2e3" and "gw/" fail.
bool IsFullyQualified(const QString& server);

// The first row of ServerTable, other than `row` (0 for a new server), with the same server and
// SID in any letter case, the same client and the same instance, all trimmed; 0 when none.
int DuplicateServerRow(
    int row, const QString& server, const QString& sid, const QString& client, const QString& instance);
