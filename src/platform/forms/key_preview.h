#pragma once

#include <Qt>

class QKeyEvent;

// A form with key preview sees every key in Form_KeyDown before its controls do. One filter over
// the application does it, not QShortcut: a shortcut needs an active window, and after a modal box
// there may be none.
namespace KeyPreview {

void install();

// The classic key code of a key (13 Enter, 27 Escape, 65 "A", 112 F1, ...) and the shift mask
// (1 Shift, 2 Ctrl, 4 Alt).
int keyCode(const QKeyEvent* event);
int shiftMask(const QKeyEvent* event);
int shiftMask(Qt::KeyboardModifiers modifiers);

} // namespace KeyPreview
