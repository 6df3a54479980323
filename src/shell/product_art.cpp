#include "product_art.h"

#include <QImage>
#include <QPixmapCache>
#include <QResource>

namespace ProductArt {
namespace {

// The build stores each picture as raw premultiplied ARGB32 pixels, uncompressed: no decoder and
// no image plugin is needed to show it.
QPixmap resource(const QString& name, QSize size)
{
    const QString path = QStringLiteral(":/art/%1.argb").arg(name);
    QPixmap pixmap;
    if (QPixmapCache::find(path, &pixmap))
        return pixmap;
    const QResource pixels(path);
    const qint64 expected = qint64(size.width()) * size.height() * 4;
    if (pixels.compressionAlgorithm() != QResource::NoCompression || pixels.size() != expected)
        return QPixmap();
    const QImage image(pixels.data(), size.width(), size.height(), QImage::Format_ARGB32_Premultiplied);
    pixmap = QPixmap::fromImage(image);
    QPixmapCache::insert(path, pixmap);
    return pixmap;
}

} // namespace

QPixmap splash()
{
    return resource(QStringLiteral("splash"), SplashSize);
}

QPixmap aboutPicture()
{
    return resource(QStringLiteral("about"), AboutPictureSize);
}

QPixmap pageLogo()
{
    return resource(QStringLiteral("logo48"), PageLogoSize);
}

QIcon appIcon()
{
    QIcon icon;
    for (int size : { 16, 32, 48 })
        icon.addPixmap(resource(QStringLiteral("logo%1").arg(size), QSize(size, size)));
    return icon;
}

QPixmap treeImage(TreeImage image)
{
    const int index = int(image);
    if (index < 1 || index > TreeImageCount)
        return QPixmap();
    return resource(QStringLiteral("tree%1").arg(index), TreeImageSize);
}

} // namespace ProductArt
