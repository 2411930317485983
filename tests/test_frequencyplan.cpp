#include <QTest>
class TestFrequencyPlan : public QObject
{
    Q_OBJECT
};
QTEST_MAIN(TestFrequencyPlan)
#include "test_frequencyplan.moc"
