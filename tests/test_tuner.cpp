#include "keys/keys.h"
#include "tuner/tunerdlg.h"
#include "tuner/tunervuhfdlg.h"
#include "jobmodel/jobmodel.h"
#include "value/tree.h"
#include "valuewidgets/vccheckbox.h"
#include "valuewidgets/vcfrequency.h"

#include <QTest>
#include <QtWidgets>

using namespace TKE;
using namespace Keys;

namespace
{

const QString basePath = QStringLiteral("/J/T/P/");

void Fill(const QString& group)
{
    static const auto model = JobModel::Load(QString());
    for (const auto& parameter : model->FindGroup(group, Band::Hf)->GetParameters())
        Tree::Instance()->CreateValue(basePath + parameter->GetUniqueParameterName(), parameter->GetValueDescriptor());
}

QGridLayout* GridOf(const QWidget& panel) { return qobject_cast<QGridLayout*>(panel.findChild<QGroupBox*>()->layout()); }

struct Place
{
    int row = -1, column = -1, rows = 0, columns = 0;
};

Place PlaceOf(const QWidget& panel, const QWidget* widget)
{
    Place place;
    QGridLayout* grid = GridOf(panel);
    grid->getItemPosition(grid->indexOf(widget), &place.row, &place.column, &place.rows, &place.columns);
    return place;
}

std::unique_ptr<ParameterDlg> Make(bool vuhf, bool readOnly = false)
{
    if (vuhf)
        return std::make_unique<TunerVUHFDlg>(basePath, false, true, nullptr, readOnly);
    return std::make_unique<TunerDlg>(basePath, false, true, nullptr, readOnly);
}

} // namespace

class TestTuner : public QObject
{
    Q_OBJECT

private Q_SLOTS:
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

    void everyValueOfTheGroupHasOneBoundWidget()
    {
        QFETCH_GLOBAL(bool, vuhf);
        const auto panel = Make(vuhf);
        const auto& values = Tree::Instance()->FindNode(basePath)->GetValues();
        for (const auto& value : values)
        {
            const auto widgets = panel->findChildren<QWidget*>(value->GetName());
            QVERIFY2(widgets.size() == 1, qPrintable(value->GetName()));
            QVERIFY2(widgets.first()->isEnabledTo(panel.get()), qPrintable(value->GetName()));
            value->SetState(stDisabled);
            QVERIFY2(!widgets.first()->isEnabledTo(panel.get()), qPrintable(value->GetName()));
        }
    }

    void aReadOnlyPanelEditsNothing()
    {
        QFETCH_GLOBAL(bool, vuhf);
        const auto panel = Make(vuhf, true);
        for (const auto& value : Tree::Instance()->FindNode(basePath)->GetValues())
            QVERIFY2(!panel->findChild<QWidget*>(value->GetName())->isEnabledTo(panel.get()), qPrintable(value->GetName()));
    }

    void theSeparatorReachesTheLastRow()
    {
        QFETCH_GLOBAL(bool, vuhf);
        const auto panel = Make(vuhf);
        int lastRow = 0;
        const QLabel* separator = nullptr;
        QGridLayout* grid = GridOf(*panel);
        for (int i = 0; i < grid->count(); ++i)
        {
            auto* label = qobject_cast<QLabel*>(grid->itemAt(i)->widget());
            if (label && label->frameShape() == QFrame::VLine)
                separator = label;
            else
            {
                int row, column, rows, columns;
                grid->getItemPosition(i, &row, &column, &rows, &columns);
                lastRow = qMax(lastRow, row + rows - 1);
            }
        }
        const Place place = PlaceOf(*panel, separator);
        QCOMPARE(place.row, 0);
        QCOMPARE(place.rows, lastRow + 1);
        QCOMPARE(place.column, vuhf ? 5 : 3);
    }

    void noTwoWidgetsShareACell()
    {
        QFETCH_GLOBAL(bool, vuhf);
        const auto panel = Make(vuhf);
        QGridLayout* grid = GridOf(*panel);
        QHash<QPair<int, int>, QWidget*> taken;
        for (int i = 0; i < grid->count(); ++i)
        {
            QWidget* widget = grid->itemAt(i)->widget();
            const auto* label = qobject_cast<QLabel*>(widget);
            if (!widget || (label && label->frameShape() != QFrame::NoFrame))
                continue; // lines cross
            const Place place = PlaceOf(*panel, widget);
            for (int row = place.row; row < place.row + place.rows; ++row)
            {
                for (int column = place.column; column < place.column + place.columns; ++column)
                {
                    QVERIFY2(!taken.contains({row, column}), qPrintable(widget->objectName()));
                    taken.insert({row, column}, widget);
                }
            }
        }
    }

    void everyEditorIsNamedForAssistiveTechnology()
    {
        QFETCH_GLOBAL(bool, vuhf);
        const auto panel = Make(vuhf);
        QSet<QWidget*> buddies;
        for (const QLabel* label : panel->findChildren<QLabel*>())
            buddies.insert(label->buddy());
        for (const auto& value : Tree::Instance()->FindNode(basePath)->GetValues())
        {
            auto* widget = panel->findChild<QWidget*>(value->GetName());
            const auto* box = qobject_cast<QCheckBox*>(widget);
            QVERIFY2(buddies.contains(widget) || buddies.contains(widget->focusProxy()) || box || !widget->accessibleName().isEmpty(), qPrintable(value->GetName()));
        }
    }

    void quirksOfTheLayoutStay()
    {
        QFETCH_GLOBAL(bool, vuhf);
        const auto panel = Make(vuhf);
        const auto placeOf = [&](const QString& key) { return PlaceOf(*panel, panel->findChild<QWidget*>(key)); };
        if (vuhf)
        {
            // The check box stands in the label's place, beside its spin box.
            QCOMPARE(placeOf(TUNER_VUHF_SQUELCHMODE).column, 0);
            QCOMPARE(placeOf(TUNER_VUHF_SQUELCH_THRESHOLD).column, 1);
            QCOMPARE(placeOf(TUNER_VUHF_SQUELCHMODE).row, placeOf(TUNER_VUHF_SQUELCH_THRESHOLD).row);
            QCOMPARE(placeOf(TUNER_VUHF_FREQUENCY).columns, 3);
        }
        else
        {
            QCOMPARE(placeOf(TUNER_HF_NB_FREQUENCY).rows, 2);
            QCOMPARE(placeOf(TUNER_HF_NB_REPLAY_FREQUENCY_OFFSET).column, 6);
            QCOMPARE(placeOf(TUNER_HF_NB_AUDIOFORMAT).columns, 2);
            QCOMPARE(panel->findChild<QCheckBox*>(TUNER_HF_NB_WIDEBAND_PREAMPLIFIER_STATUS)->text(),
                     panel->findChild<QCheckBox*>(TUNER_HF_NB_PREAMPLIFIER_STATUS)->text());
        }
    }
};

QTEST_MAIN(TestTuner)
#include "test_tuner.moc"
