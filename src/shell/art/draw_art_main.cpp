// Draws the console's pictures into the directory given, as the raw pixel files its resources list:
// premultiplied ARGB32 rows without a header, so the console starts without decoding any image.
#include "art_drawing.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>

#include <cstdio>

namespace {

bool save(const QImage& image, const QDir& dir, const QString& name)
{
    const QImage pixels = image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    QFile file(dir.filePath(name + QStringLiteral(".argb")));
    if (file.open(QIODevice::WriteOnly)
        && file.write(reinterpret_cast<const char*>(pixels.constBits()), pixels.sizeInBytes()) == pixels.sizeInBytes())
        return true;
    std::fprintf(stderr, "qd7_draw_art: cannot write %s\n", qPrintable(file.fileName()));
    return false;
}

} // namespace

int main(int argc, char** argv)
{
    QGuiApplication app(argc, argv);
    if (argc != 2) {
        std::fprintf(stderr, "usage: qd7_draw_art <directory>\n");
        return 2;
    }
    const QDir dir(QString::fromLocal8Bit(argv[1]));
    if (!dir.mkpath(QStringLiteral(".")))
        return 1;
    bool ok = save(ArtDrawing::splash(), dir, QStringLiteral("splash"))
        && save(ArtDrawing::aboutPicture(), dir, QStringLiteral("about"));
    for (int size : { 16, 32, 48 })
        ok = ok && save(ArtDrawing::logoTile(size), dir, QStringLiteral("logo%1").arg(size));
    for (int i = 1; i <= ProductArt::TreeImageCount; ++i)
        ok = ok && save(ArtDrawing::treeImage(ProductArt::TreeImage(i)), dir, QStringLiteral("tree%1").arg(i));
    return ok ? 0 : 1;
}
