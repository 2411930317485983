#include <QTest>
class TestCheck : public QObject
{
    Q_OBJECT
};
QTEST_MAIN(TestCheck)
#include "test_check.moc"
