#pragma once

class Form;

// Turns the catalogue ids a form keeps into texts of the console's language: the form's Tag into
// its caption; a control's Tag into its caption and a numeric ToolTipText into its tool tip; a
// menu item's caption; each tree node's tag into the node's text. Option buttons keep their
// captions. The first call, and every call while no string library is loaded, runs the language
// search. Repeatable, and silent: a step that fails is passed over.
//
// MsgText is the work buffer, filled with blanks before each control, so a label without a
// numeric Tag comes out blank, and so does a menu item walked a second time, its caption no id by
// then.
void LocalizeForm(Form* form);
