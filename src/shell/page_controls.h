#pragma once

#include <QString>

class CommandButton;
class Form;
class Image;
class Label;
class QWidget;

// Controls as the pages place them: a catalogue id in the Tag, a place in twips (left, top,
// width, height) in the parent, which is the page or a frame on it.
Label* AddLabel(QWidget* parent, const QString& name, int id, int left, int top, int width, int height);
// The bold title at the top left of a page.
Label* AddPageTitle(Form* page, const QString& name, int id);
CommandButton* AddButton(QWidget* parent, const QString& name, int id, int left, int top, int width, int height);
// The product logo at the top right of a page.
Image* AddPageLogo(Form* page);
