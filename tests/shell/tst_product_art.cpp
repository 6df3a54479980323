#include "shell/art/art_drawing.h"
#include "shell/product_art.h"

#include <QTest>

using namespace ProductArt;

class TestProductArt : public QObject
{
    Q_OBJECT

private slots:
    void picturesHaveTheirSizes()
    {
        QCOMPARE(splash().size(), QSize(521, 396));
        QCOMPARE(aboutPicture().size(), QSize(145, 202));
        QCOMPARE(pageLogo().size(), QSize(48, 48));
        const QList<QSize> iconSizes = appIcon().availableSizes();
        for (int size : { 16, 32, 48 })
            QVERIFY(iconSizes.contains(QSize(size, size)));
    }

    void treeImagesShowNoKeyGrey_data()
    {
        QTest::addColumn<int>("index");
        for (int i = 1; i <= TreeImageCount; ++i)
            QTest::addRow("image %d", i) << i;
    }

    void treeImagesShowNoKeyGrey()
    {
        QFETCH(int, index);
        const QImage image = treeImage(TreeImage(index)).toImage();
        QCOMPARE(image.size(), QSize(16, 16));
        QCOMPARE(qAlpha(image.pixel(0, 0)), 0);
        int opaque = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                const QRgb pixel = image.pixel(x, y);
                if (qAlpha(pixel) == 0)
                    continue;
                ++opaque;
                QVERIFY2(
                    QColor(pixel) != ArtDrawing::TransparencyKey, qPrintable(QStringLiteral("key grey at %1,%2").arg(x).arg(y)));
            }
        }
        // Enough of the square is drawn to read as an image, and enough left clear to sit on the tree.
        QVERIFY(opaque > 60);
        QVERIFY(opaque < 16 * 16);
    }

    void unknownTreeImageIsNull() { QVERIFY(treeImage(TreeImage(0)).isNull()); }
};

QTEST_MAIN(TestProductArt)
#include "tst_product_art.moc"
