#pragma once

#include <QString>

// The logs and traces the collector and loader programs write into BinDir. Each name carries its
// leading "/": the path is BinDir followed by the name.
namespace LogFiles {
inline constexpr char StatiSummary[] = "/trace_qd7statisum.log";
inline constexpr char SnapSummary[] = "/trace_qd7snapsum.log";
inline constexpr char Stati[] = "/trace_qd7stati.log";
inline constexpr char Snap[] = "/trace_qd7snap.log";
inline constexpr char LoadStati[] = "/trace_qd7_load_stati.log";
inline constexpr char LoadSnap[] = "/trace_qd7_load_snap.log";
inline constexpr char AggStati[] = "/trace_qd7_agg_stati.log";
inline constexpr char AggSnap[] = "/trace_qd7_agg_snap.log";
inline constexpr char Loader[] = "/trace_qd7ldr.log";
} // namespace LogFiles

// Opens a log in the text viewer, not waiting for it, as many times as asked; the status bar stays
// as it is. A log that isn't there (a directory doesn't count) gets "KQM7043W Log does not exist"
// and the failed status. A viewer that can't be started rises as RuntimeError 53.
void OpenLog(const char* name);
