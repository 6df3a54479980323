#include "page_controls.h"

#include "platform/forms/command_button.h"
#include "platform/forms/form.h"
#include "platform/forms/label.h"
#include "product_art.h"

Label* AddLabel(QWidget* parent, const QString& name, int id, int left, int top, int width, int height)
{
    auto* label = new Label(parent, name);
    label->SetTag(QString::number(id));
    label->Move(left, top, width, height);
    return label;
}

Label* AddPageTitle(Form* page, const QString& name, int id)
{
    Label* title = AddLabel(page, name, id, 360, 360, 4335, 375);
    QFont bold = title->font();
    bold.setBold(true);
    title->setFont(bold);
    return title;
}

CommandButton* AddButton(QWidget* parent, const QString& name, int id, int left, int top, int width, int height)
{
    auto* button = new CommandButton(parent, name);
    button->SetTag(QString::number(id));
    button->Move(left, top, width, height);
    return button;
}

Image* AddPageLogo(Form* page)
{
    auto* logo = new Image(page, QStringLiteral("imgLogo"));
    logo->SetPicture(ProductArt::pageLogo());
    logo->Move(4800, 120, 960, 960);
    return logo;
}
