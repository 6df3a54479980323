#pragma once

#include <QString>

class Control;
class Form;
class ListBox;
class TextBox;

// The fixed measures of the page frame, in twips.
namespace PageFrame {
constexpr int PaneWidth = 3564;
constexpr int PaneHeight = 4995;
constexpr int PageBaseWidth = 5884;
constexpr int FrameDesignWidth = 9650;
constexpr int PageDesignWidth = 5880;
constexpr int PageDesignHeight = 4995;
} // namespace PageFrame

// Places a page beside the pane and widens it with the frame, never below its design width; then
// gives the pane its fixed size.
void FitPage(Form* Page);

// Empties every field of a page whose Tag is exactly "CLEAR".
void ClearTaggedFields(Form* Page);

// Selects the whole text of a rejected field, gives it the focus and yields once.
void SelectFieldText(TextBox* Field);

// After a list is filled: a horizontal scroll range as wide as its longest item, the one with the
// most characters (the first of equals), measured in the default font. An empty list keeps the
// range it had.
void SetListExtent(ListBox* List);

// The status bar, from a catalogue id.
void ShowStatus(int id);
