#pragma once

#include "page_form.h"

class Image;
class Label;

// A page that explains a section of the tree: a logo, a heading and a paragraph. It never keeps
// the focus: the user stays in the tree.
class InfoPageForm : public PageForm
{
    Q_OBJECT

public:
    void Form_Activate() override;

    Image* imgLogo;

protected:
    InfoPageForm(const QString& name, const QString& headingName, int headingId, const QString& paragraphName,
        int paragraphId);

    Label* m_heading;
    Label* m_paragraph;
};
