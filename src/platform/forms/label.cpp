#include "label.h"

Label::Label(QWidget* parent, const QString& name)
    : QLabel(parent)
    , Control(this, this, parent, QStringLiteral("Label"), name)
{
    setWordWrap(true);
    setTextFormat(Qt::PlainText);
    setAlignment(Qt::AlignLeft | Qt::AlignTop);
}

Image::Image(QWidget* parent, const QString& name)
    : QLabel(parent)
    , Control(this, this, parent, QStringLiteral("Image"), name)
{
}

void Image::SetPicture(const QPixmap& picture)
{
    setPixmap(picture);
    resize(picture.deviceIndependentSize().toSize());
}
