#include "editorfixture.h"
#include "jobedit/changemark.h"
#include "jobedit/nightcolours.h"

#include <QAccessible>

using namespace EditorTest;

namespace
{

constexpr int mostSteps = 200; // of Tab within one editor

/// What a screen reader finds at a widget.
struct Heard
{
    explicit Heard(QWidget* widget)
    {
        const QAccessibleInterface* found = QAccessible::queryAccessibleInterface(widget);
        role = found->role();
        name = found->text(QAccessible::Name);
        if (qobject_cast<QComboBox*>(widget)) // is called what it shows; readers take the name of its label
        {
            const auto labels = found->relations(QAccessible::Label);
            name = labels.isEmpty() ? QString() : labels.constFirst().first->text(QAccessible::Name);
        }
        value = found->text(QAccessible::Value);
        state = found->state();
    }

    QAccessible::Role role = QAccessible::NoRole;
    QString name;
    QString value;
    QAccessible::State state;
};

bool IsEditor(const QWidget& widget)
{
    return widget.focusPolicy() & Qt::TabFocus && !widget.focusProxy() && !qobject_cast<const QScrollBar*>(&widget) &&
           !qobject_cast<const QScrollArea*>(&widget);
}

/// The editors that stand for themselves: not those within another one, as the line edit of a spin box is.
std::vector<QWidget*> EditorsIn(const QWidget& top)
{
    std::vector<QWidget*> editors;
    for (QWidget* widget : top.findChildren<QWidget*>())
    {
        const QWidget* above = widget->parentWidget();
        const bool isPart = qobject_cast<const QAbstractSpinBox*>(above) || qobject_cast<const QComboBox*>(above) ||
                            qobject_cast<const QAbstractItemView*>(above) || qobject_cast<const QTabWidget*>(above);
        if (widget->isVisible() && IsEditor(*widget) && !isPart)
            editors.push_back(widget);
    }
    return editors;
}

/// How strongly two colours differ, from 1 to 21, as the guidelines for accessible web content count it.
double Contrast(const QColor& first, const QColor& second)
{
    const auto luminance = [](const QColor& colour)
    {
        const auto linear = [](double part)
        { return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4); };
        return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
    };
    const auto [low, high] = std::minmax({luminance(first), luminance(second)});
    return (high + 0.05) / (low + 0.05);
}

/// The strongest contrast of any pixel to the background.
double MostContrast(const QImage& image, const QColor& background)
{
    double most = 1;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (const QColor colour = image.pixelColor(x, y); colour.alpha() > 200)
                most = std::max(most, Contrast(colour, background));
    return most;
}

} // namespace

/// What somebody meets who hears the editor instead of seeing it, or goes through it by Tab, or sees little.
class TestAccessibility : public DeskTest
{
    Q_OBJECT

    void Listen(const QString& where, QWidget& editor)
    {
        const Heard heard(&editor);
        const QString what = where + ": " + Describe(editor) + ": ";
        if (heard.name.trimmed().isEmpty())
            m_faults << what + "has no name";
        if (heard.name.contains('&'))
            m_faults << what + "its name has the mark of a shortcut";
        // Lists and tables tell no state at all before Qt 6.
        const bool tellsState = QT_VERSION_MAJOR >= 6 || !qobject_cast<QAbstractItemView*>(&editor);
        if (tellsState && bool(heard.state.disabled) == editor.isEnabled())
            m_faults << what + "is not told to be enabled or disabled";
        const auto expect = [&](std::initializer_list<QAccessible::Role> roles)
        {
            if (std::ranges::find(roles, heard.role) == roles.end())
                m_faults << what + "has the role " + QString::number(heard.role);
        };
        QString shown = heard.value;
        if (const auto* combo = qobject_cast<QComboBox*>(&editor))
        {
            expect({QAccessible::ComboBox});
            shown = combo->currentText();
        }
        else if (const auto* spin = qobject_cast<QAbstractSpinBox*>(&editor))
        {
            expect({QAccessible::SpinBox});
            shown = spin->text();
        }
        else if (const auto* line = qobject_cast<QLineEdit*>(&editor))
        {
            expect({QAccessible::EditableText});
            shown = line->text();
            if (line->isReadOnly() != bool(heard.state.readOnly))
                m_faults << what + "is not told to be read-only";
        }
        else if (qobject_cast<QAbstractButton*>(&editor) || qobject_cast<QGroupBox*>(&editor))
        {
            expect({QAccessible::CheckBox, QAccessible::RadioButton, QAccessible::Button, QAccessible::ButtonMenu});
            if (editor.property("checked").toBool() != bool(heard.state.checked))
                m_faults << what + "is not told to be checked";
        }
        else
            expect({QAccessible::Table, QAccessible::Tree, QAccessible::List, QAccessible::PageTabList,
                    QAccessible::EditableText, QAccessible::StaticText, QAccessible::Graphic, QAccessible::Client,
                    QAccessible::Pane});
        if (heard.value != shown)
            m_faults << what + "says \"" + heard.value + "\" and shows \"" + shown + '"';
    }

    std::vector<QWidget*> ListenToAll(const QString& where, const QWidget& top)
    {
        const std::vector<QWidget*> editors = EditorsIn(top);
        for (QWidget* editor : editors)
            Listen(where, *editor);
        return editors;
    }

    /// Presses Tab from the first editor on. Each that is enabled comes once, after those above it and left of it.
    void GoThrough(const QString& where, QWidget& page, const std::vector<QWidget*>& editors)
    {
        QSet<QWidget*> open;
        QWidget* first = nullptr;
        for (QWidget* editor : editors)
            if (const auto* radio = qobject_cast<QRadioButton*>(editor); // one of the group stands for it
                editor->isEnabled() && (!radio || radio->isChecked()))
            {
                first = first ? first : editor;
                open.insert(editor);
            }
        if (open.isEmpty())
            return;
        for (QWidget* before = first; (before = before->previousInFocusChain()) && page.isAncestorOf(before);)
            if (open.contains(before))
                first = before;
        first->setFocus(Qt::TabFocusReason);
        QWidget* last = nullptr;
        QSet<QWidget*> met;
        int steps = 0;
        for (QWidget* focus = QApplication::focusWidget(); focus && page.isAncestorOf(focus);
             focus = QApplication::focusWidget())
        {
            // Tab goes through the sections of a date and the cells of a list, and leaves behind the last.
            const bool hasParts = qobject_cast<QDateTimeEdit*>(focus) || qobject_cast<QAbstractItemView*>(focus);
            if (hasParts && focus == last && ++steps < mostSteps)
            {
                QTest::keyClick(focus, Qt::Key_Tab);
                continue;
            }
            steps = 0;
            if (met.contains(focus))
            {
                m_faults << where + ": " + Describe(*focus) + " comes twice";
                break;
            }
            met.insert(focus);
            open.remove(focus);
            if (last && last->parentWidget() == focus->parentWidget())
            {
                const QPoint before = last->mapTo(&page, last->rect().center());
                const QPoint here = focus->mapTo(&page, focus->rect().center());
                const int line = focus->fontMetrics().height();
                const bool isAbove = here.y() < before.y() - line / 2;
                const bool isBeside = std::abs(here.y() - before.y()) <= line / 2;
                if ((isAbove && here.x() < before.x() + line) || (isBeside && here.x() < before.x()))
                    m_faults
                        << QString("%1: from %2 Tab goes back to %3").arg(where, Describe(*last), Describe(*focus));
            }
            last = focus;
            QTest::keyClick(focus, Qt::Key_Tab);
        }
        for (const QWidget* left : open)
            m_faults << where + ": " + Describe(*left) + " is not reached by Tab";
    }

private Q_SLOTS:
    void initTestCase() { QAccessible::setActive(true); }
    void init() { Begin(); }
    void cleanup()
    {
        NightColours::Switch(false);
        End();
    }

    void everyEditorSaysWhatItIsAndHoldsAndIsReachedByTab_data()
    {
        const Table<Opened, int> row("opened", "atLeast");
        row("job form", Opened::JobForm, 500);
        row("stand-alone form", Opened::StandAloneForm, 500);
        row("panels", Opened::Panels, 50);
    }
    void everyEditorSaysWhatItIsAndHoldsAndIsReachedByTab()
    {
        QFETCH(Opened, opened);
        QFETCH(int, atLeast);
        const QByteArray loaded = m_desk->Bytes();
        size_t count = 0;
        ForEachTab(Window().Nodes().GetNodes(), opened,
                   [&](const QString& where, QWidget& page)
                   {
                       const std::vector<QWidget*> editors = ListenToAll(where, page);
                       GoThrough(where, page, editors);
                       count += editors.size();
                   });
        qInfo("%zu editors", count);
        Verdict();
        QVERIFY(count > size_t(atLeast));
        QVERIFY(!Window().isWindowModified()); // viewing never writes
        QCOMPARE(m_desk->Bytes(), loaded);
    }

    void theWindowAndItsPanesSayWhatTheyAreAndHold()
    {
        for (QDockWidget* dock : Window().findChildren<QDockWidget*>())
            dock->show();
        Window().OfferHint();
        Window().Nodes().SelectNode(tunerPath);
        QCoreApplication::processEvents();
        QVERIFY(ListenToAll("window", Window()).size() > 30);
        for (const QDockWidget* dock : Window().findChildren<QDockWidget*>())
            if (dock->windowTitle().isEmpty())
                m_faults << Describe(*dock) + " has no title";
        Verdict();
    }

    void everyDialogThatACommandOpensSaysWhatItIsAndHolds_data()
    {
        EachText("command", {"Add Chain...", "Rename...", "Duplicate...", "Manage Presets...", "Report...",
                             "Compare with Saved...", "Guide", "About Job Editor"});
    }
    void everyDialogThatACommandOpensSaysWhatItIsAndHolds()
    {
        QFETCH(QString, command);
        Window().Nodes().SelectNode(tunerPath.chopped(int(qstrlen("TUNER/"))));
        QVERIFY(Window().SaveTo(File()));
        size_t count = 0;
        QTimer reader;
        reader.callOnTimeout(
            [&]
            {
                for (QWidget* window : QApplication::topLevelWidgets())
                    if (auto* dialog = qobject_cast<QDialog*>(window); dialog && dialog->isVisible())
                    {
                        count += ListenToAll(command, *dialog).size();
                        if (dialog->windowTitle().isEmpty())
                            m_faults << "the dialog has no title";
                        dialog->reject();
                    }
            });
        reader.start(10);
        m_desk->Action(command)->trigger();
        QTRY_VERIFY2(count > 0, "no dialog has come up");
        Verdict();
    }

    void aRefusedEntrySaysWhyUntilItIsTakenBack()
    {
        m_desk->TypeFrequency("7.1M");
        QLineEdit* field = m_desk->FrequencyField();
        QTest::keyClick(field, Qt::Key_Return);
        const auto description = [&]
        { return QAccessible::queryAccessibleInterface(field)->text(QAccessible::Description); };
        QTRY_VERIFY(description().contains("saved file")); // a mark has been set
        const QString marked = description();
        m_desk->TypeFrequency("nonsense");
        QTest::keyClick(field, Qt::Key_Return);
        QVERIFY(!field->toolTip().isEmpty());
        QCOMPARE(description(), field->toolTip());
        QTest::keyClick(field, Qt::Key_Escape);
        QCOMPARE(description(), marked);
    }

    void whatIsMarkedIsSeenInBothPalettes_data() { WithAndWithout("night"); }
    void whatIsMarkedIsSeenInBothPalettes()
    {
        QFETCH(bool, night);
        NightColours::Switch(night);
        QCoreApplication::processEvents(); // reaches the widgets
        const QPalette palette = QApplication::palette();
        const auto look = [&](const QString& what, const QImage& image, QPalette::ColorRole background)
        {
            const double contrast = MostContrast(image, palette.color(background));
            QVERIFY2(contrast >= 3, qPrintable(QString("%1 has a contrast of %2").arg(what).arg(contrast)));
        };
        const auto mark = [&](bool fromSaved, bool fromDefault)
        {
            QImage image(ChangeMark::width, 20, QImage::Format_RGB32);
            image.fill(palette.color(QPalette::Window));
            QPainter painter(&image);
            ChangeMark{fromSaved, fromDefault}.Paint(painter, image.rect(), palette);
            return image;
        };
        look("the mark of a value that is not saved", mark(true, false), QPalette::Window);
        look("the mark of a value that is not the default", mark(false, true), QPalette::Window);
        for (const auto icon : {QStyle::SP_MessageBoxCritical, QStyle::SP_MessageBoxWarning})
            look("a sign of the check", QApplication::style()->standardIcon(icon).pixmap(16).toImage(), QPalette::Base);

        const auto* model = Window().Nodes().View()->model();
        const auto dimmed = model->index(0, 0, model->index(0, 0)).data(Qt::ForegroundRole).value<QBrush>();
        for (const auto role : {QPalette::Base, QPalette::AlternateBase})
        {
            QVERIFY(Contrast(palette.color(QPalette::Text), palette.color(role)) > 7);
            QImage sheet(1, 1, QImage::Format_RGB32); // dimmed texts may be half transparent
            sheet.fill(palette.color(role));
            QPainter(&sheet).fillRect(sheet.rect(), dimmed);
            look("a node without a dialog", sheet, role);
        }

        m_desk->TypeFrequency("nonsense");
        QLineEdit* field = m_desk->FrequencyField();
        QTest::keyClick(field, Qt::Key_Return);
        const QImage frame = field->grab().toImage().copy(field->width() / 2, 0, 1, 1);
        QVERIFY(frame.pixelColor(0, 0).red() > frame.pixelColor(0, 0).green() * 2);
        for (const auto role : {QPalette::Window, QPalette::Base})
            look("the frame of a refused entry", frame, role);
    }
};

QTEST_MAIN(TestAccessibility)
#include "test_accessibility.moc"
