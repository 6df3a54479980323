#pragma once

#include <QString>

// The numbered texts the console shows. A lookup loads the text of an id into MsgText or MsgTitle;
// an id without a text gives the empty text.
namespace Catalogue {

// The built-in English text of an id.
QString builtInText(int id);

// The text of an id in the console's language.
QString text(int id);

} // namespace Catalogue

// The lookup idiom: the text of id into MsgText, or into MsgTitle.
void LoadMsgText(int id);
void LoadMsgTitle(int id);
