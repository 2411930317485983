#include "keys/keys.h"
#include "panelgrid.h"
#include "tuner/tunerdlg.h"
#include "tuner/tunervuhfdlg.h"

#include <QTest>

using namespace TKE;
using namespace TKE::Keys;
using namespace PanelTest;

namespace
{

std::unique_ptr<ParameterDlg> Make(bool readOnly = false)
{
    QFETCH_GLOBAL(bool, vuhf);
    if (vuhf)
        return std::make_unique<TunerVUHFDlg>(basePath, false, true, nullptr, readOnly);
    return std::make_unique<TunerDlg>(basePath, false, true, nullptr, readOnly);
}

} // namespace

class TestTuner : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase_data()
    {
        QTest::addColumn<bool>("vuhf");
        QTest::newRow("HF") << false;
        QTest::newRow("V/UHF") << true;
    }
    void init()
    {
        QFETCH_GLOBAL(bool, vuhf);
        Fill(vuhf ? "G_TUNER_VUHF" : "G_TUNER_HF");
    }
    void cleanup() { Tree::Instance()->Clear(); }

    void everyValueOfTheGroupHasOneBoundWidgetWithAName()
    {
        const auto panel = Make();
        const auto readOnly = Make(true);
        QSet<QWidget*> buddies;
        for (const QLabel* label : panel->findChildren<QLabel*>())
            buddies.insert(label->buddy());
        for (const auto& value : Tree::Instance()->FindNode(basePath)->GetValues())
        {
            const QByteArray latin = value->GetName().toLatin1();
            const char* name = latin.constData();
            const auto widgets = panel->findChildren<QWidget*>(value->GetName());
            QVERIFY2(widgets.size() == 1, name);
            QWidget* widget = widgets.first();
            QVERIFY2(widget->isEnabledTo(panel.get()), name);
            QVERIFY2(!readOnly->findChild<QWidget*>(value->GetName())->isEnabledTo(readOnly.get()), name);
            value->SetState(stDisabled);
            QVERIFY2(!widget->isEnabledTo(panel.get()), name);
            const bool isLabelled = buddies.contains(widget) || buddies.contains(widget->focusProxy());
            QVERIFY2(isLabelled || qobject_cast<QCheckBox*>(widget) || !widget->accessibleName().isEmpty(), name);
        }
    }

    void noTwoWidgetsShareACell()
    {
        const auto panel = Make();
        const Grid grid(*panel);
        QSet<QPair<int, int>> taken;
        for (QWidget* widget : panel->findChild<QGroupBox*>()->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly))
        {
            const auto* label = qobject_cast<QLabel*>(widget);
            if (label && label->frameShape() != QFrame::NoFrame)
                continue; // lines cross
            const Place place = grid.PlaceOf(widget);
            QVERIFY2(place.rows > 0, qPrintable(widget->objectName()));
            for (int cell = 0; cell < place.rows * place.columns; ++cell)
            {
                const QPair at(place.row + cell / place.columns, place.column + cell % place.columns);
                QVERIFY2(!taken.contains(at), qPrintable(widget->objectName()));
                taken.insert(at);
            }
        }
    }
};

QTEST_MAIN(TestTuner)
#include "test_tuner.moc"
