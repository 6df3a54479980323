#include <QTest>

class Placeholder : public QObject
{
    Q_OBJECT
private slots:
    void nothingYet() { }
};

QTEST_GUILESS_MAIN(Placeholder)
#include "tst_text.moc"
