#pragma once

#include "shell/product_art.h"

#include <QColor>
#include <QImage>

// The console's pictures, drawn in code. The build runs this once and ships the results as
// resources, so no start pays for the drawing.
namespace ArtDrawing {

// The grey the tree images are drawn on before it is made transparent.
inline constexpr QColor TransparencyKey(192, 192, 192);

QImage splash();
QImage aboutPicture();
// The mark on its tile: the page logo and the window icon.
QImage logoTile(int size);
QImage treeImage(ProductArt::TreeImage image);

} // namespace ArtDrawing
