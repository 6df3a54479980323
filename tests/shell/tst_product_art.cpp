#include "shell/product_art.h"

#include <QTest>

using namespace ProductArt;

class TestProductArt : public QObject
{
    Q_OBJECT

private slots:
    // The pages and the tree lay out around these sizes.
    void picturesHaveTheirSizes()
    {
        QCOMPARE(splash().size(), QSize(521, 396));
        for (int i = 1; i <= TreeImageCount; ++i)
            QCOMPARE(treeImage(TreeImage(i)).size(), QSize(16, 16));
        QVERIFY(treeImage(TreeImage(0)).isNull());
    }
};

QTEST_MAIN(TestProductArt)
#include "tst_product_art.moc"
