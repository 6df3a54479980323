#pragma once

#include <QList>
#include <QString>

// The numbered texts the console shows. A lookup loads the text of an id into MsgText or MsgTitle;
// an id without a text gives the empty text.
namespace Catalogue {

// Every message of a string library sits in this context, with the built-in English text as its
// source and the id as its disambiguation.
inline constexpr char Context[] = "qd7console";

// Size of the MsgText and MsgTitle buffers, terminator included.
inline constexpr int BufferLength = 500;

// The built-in English text of an id; "" for an id without a text.
QString builtInText(int id);

// The ids of the built-in catalogue, ascending.
QList<int> builtInIds();

// The text of an id in the console's language: from the loaded string library (ResourceLibrary)
// when there is one, "" where it lacks the id; otherwise the built-in text.
QString text(int id);

} // namespace Catalogue

// The lookup idiom: the text of id into MsgText, or into MsgTitle, cut to the buffer, and its
// length into LastStringLength. An id below 1 names no text: the load fails and leaves the buffer
// and LastStringLength as they were.
void LoadMsgText(int id);
void LoadMsgTitle(int id);
